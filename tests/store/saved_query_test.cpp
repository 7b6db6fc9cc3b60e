#include "store/small_store.h"

namespace orvane {

// Two lists that point into one table of materials, some into nothing.
const DatabaseDefinition Definition{
    {{"Mats", {{"Num", ColumnType::Key, {}}, {"Nom", ColumnType::Text, {}}}},
     {"Types", {{"Num", ColumnType::Key, {}}, {"Nom", ColumnType::Text, {}}}},
     {"Objets",
      {{"Num", ColumnType::Key, {}},
       {"Nom", ColumnType::Text, {}},
       {"Type", ColumnType::Reference, "Types"},
       {"Mat1", ColumnType::Reference, "Mats"},
       {"Mat2", ColumnType::Reference, "Mats"}}}},
    {{"R_Objets", "SELECT Objets.Nom, Types.Nom, Mats.Nom, Mats_1.Nom, Objets.Mat2 "
                  "FROM ((Objets INNER JOIN Types ON Objets.Type = Types.Num) "
                  "LEFT JOIN Mats ON Objets.Mat1 = Mats.Num) "
                  "LEFT JOIN Mats AS Mats_1 ON Objets.Mat2 = Mats_1.Num"},
     {"R_Arcs", "SELECT Objets.Nom, Types.Nom FROM Objets INNER JOIN Types "
                "ON Objets.Type = Types.Num WHERE Types.Nom = \"À l'ARC\" AND Objets.Num < 4"},
     {"R_Cercle", "SELECT R_Cercle.Nom FROM R_Cercle INNER JOIN Objets ON Objets.Nom = Objets.Nom"},
     {"R_Seconde",
      "SELECT R_Arcs.Nom FROM R_Absente INNER JOIN R_Arcs ON R_Arcs.Nom = R_Arcs.Nom"}},
    {}};

class SavedQueryTest : public StoreTest
{
  protected:
    SavedQueryTest()
    {
        Raw("a.mdb",
            "INSERT INTO Mats VALUES (1, 'Fer'), (2, 'Bois');"
            "INSERT INTO Types VALUES (1, 'à l''arc'), (2, 'Épée');"
            "INSERT INTO Objets VALUES (1, 'Zibeline', 2, 2, 1), (2, 'Arc', 1, 1, 9),"
            "(3, 'zibeline', 1, 1, 2), (4, 'Lame', 1, NULL, 1), (5, 'Sans type', 7, 1, 1)");
    }

    const std::filesystem::path File = Make("a.mdb", Definition);
};

TEST_F(SavedQueryTest, RepeatedJoinsBearTheirAliasesAndOuterOnesGiveNulls)
{
    Recordset Rows = TheStore.Open(File).OpenRecordset("SELECT * FROM R_Objets");
    ASSERT_EQ(Rows.RecordCount(), 4U) << "a row without its type isn't in an inner join";
    EXPECT_EQ(Rows.Text("Objets.Nom"), "Zibeline");
    EXPECT_EQ(Rows.Text("Types.Nom"), "Épée");
    EXPECT_EQ(Rows.Text("Mats.Nom"), "Bois");
    EXPECT_EQ(Rows.Text("Mats_1.Nom"), "Fer");
    EXPECT_EQ(Rows.Whole("Mat2"), 1) << "a short name that only one column has";
    EXPECT_FAILS(DatabaseIncomplete, Rows.Text("Nom"));
    Rows.MoveNext();
    EXPECT_TRUE(Rows.IsNull("Mats_1.Nom"));
    EXPECT_EQ(Rows.TextOrEmpty("Mats_1.Nom"), "");
}

TEST_F(SavedQueryTest, RowsComeInTheOrderOfTheListTable)
{
    EXPECT_EQ(Walk(File, "SELECT * FROM R_Objets", "Objets.Nom"), "Zibeline|Arc|zibeline|Lame");
    EXPECT_EQ(Walk(File, "SELECT * FROM r_objets WHERE Types.Nom = \"À L'ARC\"", "Objets.Nom"),
              "Arc|zibeline|Lame");
    EXPECT_EQ(Walk(File, "SELECT DISTINCT Objets.Nom FROM R_Objets", "Nom"), "Zibeline|Arc|Lame");
    EXPECT_EQ(Walk(File, "SELECT Objets.Nom FROM R_Objets ORDER BY Objets.Nom", "Nom"),
              "Arc|Lame|zibeline|Zibeline");
}

TEST_F(SavedQueryTest, ItsOwnConditionComparesAsTheDialectDoes)
{
    EXPECT_EQ(Walk(File, "SELECT Objets.Nom FROM R_Arcs", "Objets.Nom"), "Arc|zibeline");
}

TEST_F(SavedQueryTest, ItsRowsCannotBeChangedOrDeleted)
{
    const Database Base = TheStore.Open(File);
    Recordset Rows = Base.OpenRecordset("SELECT * FROM R_Objets");
    EXPECT_FAILS(Store, Rows.Edit());
    EXPECT_FAILS(Store, Rows.AddNew());
    EXPECT_FAILS(Store, Base.Execute("DELETE * FROM R_Objets"));
    EXPECT_EQ(RawCell("a.mdb", "SELECT count(*) FROM Objets"), "5");
}

TEST_F(SavedQueryTest, OneThatRestsOnNothingFailsAndDoesNotEndTheProgram)
{
    const Database Base = TheStore.Open(File);
    EXPECT_FAILS(DatabaseIncomplete, Base.OpenRecordset("SELECT * FROM R_Seconde"));
    EXPECT_NE(SentenceOf([&] { Base.OpenRecordset("SELECT * FROM R_Cercle"); }), "");
}

} // namespace orvane
