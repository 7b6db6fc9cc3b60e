#include "store/small_store.h"
#include "store/source.h"

namespace orvane {

namespace {

using Names = std::vector<std::string>;

// A plain table whose columns bear dotted names, as a tool that flattens queries leaves it.
const char* const Flat = R"(CREATE TABLE R_Objets ("Produits.Nom" TEXT, "Objets.Nom" TEXT,
    "Objets.Qté1" INTEGER, "Libre" TEXT);
    INSERT INTO R_Objets VALUES ('Arc', 'Arc court', 3, 'x'), ('Dague', 'Stylet', 2, 'y'))";

} // namespace

TEST(FindColumn, FindsWholeThenShortThenPrefixedNames)
{
    const Names Columns{"Produits.Nom", "Objets.Nom", "Objets.Qté1", "Libre"};
    const std::pair<const char*, int> Cases[] = {
        {"Objets.Nom", 1}, {"OBJETS.NOM", 1}, {"Qté1", 2},        {"QTÉ1", 2},    {"Nom", -1},
        {"libre", 3},      {"R.Libre", 3},    {"X.Libre", -1},    {"R.Qté2", -1}, {"té1", -1},
        {"", -1},          {"Produits.", -1}, {"r.objets.nom", 1}};
    for (const auto& [Name, Place] : Cases)
        EXPECT_EQ(FindColumn(Columns, "R", Name), Place) << Name;
}

TEST(FindColumn, AnExactNameGoesBeforeOneThatOnlyLooksAlike)
{
    EXPECT_EQ(FindColumn({"T.Nom", "nom", "Nom"}, "T", "Nom"), 2);
    EXPECT_EQ(FindColumn({"nom", "NOM"}, "T", "Nom"), -1) << "two that differ by case";
    EXPECT_EQ(FindColumn({"A_Nom", "B.Nom"}, "T", "Nom"), 1) << "the dot belongs to the short name";
}

using SourceTest = StoreTest;

TEST_F(SourceTest, DottedColumnsOfAPlainTableAreFoundByBothNames)
{
    const auto File = Raw("a.mdb", Flat);
    const Database Base = TheStore.Open(File);
    EXPECT_EQ(Walk(Base, "SELECT * FROM R_Objets WHERE Qté1 = 2", "Objets.Nom"), "Stylet");
    EXPECT_EQ(Walk(Base, "SELECT Objets.Qté1 FROM r_objets WHERE Produits.Nom = \"ARC\"", "Qté1"),
              "3");
    EXPECT_EQ(Walk(Base, "SELECT [Objets.Nom] FROM R_Objets ORDER BY Objets.Nom DESC", "Nom"),
              "Stylet|Arc court");
}

TEST_F(SourceTest, AnAmbiguousOrUnknownNameFails)
{
    const auto File = Raw("a.mdb", Flat);
    const Database Base = TheStore.Open(File);
    EXPECT_FAILS(DatabaseIncomplete, Base.OpenRecordset("SELECT Nom FROM R_Objets"));
    EXPECT_FAILS(DatabaseIncomplete, Base.OpenRecordset("SELECT * FROM R_Objets WHERE Nom = 1"));
    EXPECT_FAILS(DatabaseIncomplete, Base.OpenRecordset("SELECT * FROM Rien"));
    EXPECT_FAILS(DatabaseIncomplete, Base.OpenRecordset("SELECT * FROM R_Objets").Text("Nom"));
    EXPECT_EQ(Walk(Base, "SELECT Libre FROM R_Objets", "Libre"), "x|y") << "and goes on after it";
}

TEST_F(SourceTest, AQueryThatCannotBeReadFailsInsteadOfBeingHalfRun)
{
    const auto File = Raw("a.mdb", "CREATE TABLE A (Nom TEXT); CREATE TABLE B (Nom TEXT)");
    const Database Base = TheStore.Open(File);
    for (const char* Sql :
         {"", "SELECT", "SELECT FROM A", "SELECT * FROM", "SELECT * FROM WHERE Nom = 1",
          "UPDATE A SET Nom = 1", "SELECT * FROM A, B",
          "SELECT * FROM A INNER JOIN B ON A.Nom = B.Nom"}) {
        SCOPED_TRACE(Sql);
        EXPECT_FAILS(Store, Base.OpenRecordset(Sql));
    }
    EXPECT_FAILS(Store, Base.Execute("DELETE"));
    EXPECT_FAILS(Store, Base.Execute("DROP TABLE A"));
}

} // namespace orvane
