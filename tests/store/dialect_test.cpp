#include "store/small_store.h"
#include "store/source.h"
#include "store/sql_text.h"

#include <array>

namespace orvane {

// In T, row 8 has no name. U is found through an index, V holds cells that look alike.
const char* const Tables = R"(
    CREATE TABLE T (Num INTEGER PRIMARY KEY, Nom TEXT, Prix DECIMAL(19,4));
    INSERT INTO T VALUES (1, 'Épée', 1.5), (2, 'ÉPÉE', 2), (3, 'epee', 3), (4, 'épée', 4),
    (5, 'Créé à l''été', 5), (6, '100%_sûr', 6), (7, '100 pour sûr', 7), (8, NULL, 8),
    (9, 'dit "Le Noir"', 9), (10, 'Éàèçêù', 1), (11, 'éÀÈÇÊÙ', 1), (12, 'eàèçêù', 1), (13, 'LIN', 1);
    CREATE TABLE U (Nom TEXT, Sorte TEXT, Nb INTEGER);
    CREATE INDEX U_Sorte ON U (Sorte COLLATE NOCASE);
    INSERT INTO U VALUES ('œuf', 'B', 10), ('Zinc', 'a', 9), ('épée', 'b', 2), ('Étain', 'A', 2),
    ('eau', 'B', 10), ('ÉPÉE', 'b', 3), ('oeuvre', 'b', 1);
    CREATE TABLE "V à part" (A TEXT, B TEXT);
    INSERT INTO "V à part" VALUES ('', 'x'), (NULL, 'x'), ('a+:b', ''), ('a', 'b+:'), (NULL, 'X'))";

class DialectTest : public StoreTest
{
  protected:
    std::string NumsWhere(const std::string& Condition)
    {
        return Walk(File, "SELECT Num FROM T WHERE " + Condition, "Num");
    }

    const std::filesystem::path File = Raw("a.mdb", Tables);
};

TEST_F(DialectTest, AConditionFindsItsRows)
{
    const std::pair<const char*, const char*> Texts[] = {
        {"éàèçÊÙ", "10|11"}, {"épée", "1|2|4"},        {"ÉpÉE", "1|2|4"},     {"EPEE", "3"},
        {"lin", "13"},       {"DIT \"le noir\"", "9"}, {"créé À l'ÉtÉ", "5"}, {"", ""}};
    const std::pair<const char*, const char*> Patterns[] = {
        {"épée*", "1|2|4"}, {"*é", "5"},          {"100%*", "6"},
        {"100_*", ""},      {"*%_*", "6"},        {"100*sûr", "6|7"},
        {"ep?e", ""},       {"e*", "3|12"},       {"**ÉÉ**", "5"},
        {"*é*é*é*é", "5"},  {"*\"le noir*", "9"}, {"*", "1|2|3|4|5|6|7|9|10|11|12|13"}};
    const std::pair<const char*, const char*> Conditions[] = {
        {"Nom = 3", ""},           {"Nom=\"Lin\"", "13"},
        {"Num=\"3\"", "3"},        {"Num>11", "12|13"},
        {"Num>-1 AND Num=-2", ""}, {"(Prix=1 AND (Nom = \"lin\") AND Num>1)", "13"},
        {"Nom = 'LIN'", "13"}};
    for (const auto& [Condition, Found] : Conditions)
        EXPECT_EQ(NumsWhere(Condition), Found) << Condition;
    for (const auto& [Text, Found] : Texts)
        EXPECT_EQ(NumsWhere("Nom = " + Quoted(Text)), Found) << Text;
    for (const auto& [Pattern, Found] : Patterns)
        EXPECT_EQ(NumsWhere("Nom LIKE " + Quoted(Pattern)), Found) << Pattern;
}

TEST_F(DialectTest, RowsComeInTheirOrderAndOnceWhenDistinct)
{
    const std::array<const char*, 3> Rows[] = {
        {"SELECT Nom FROM U ORDER BY Nom", "Nom", "eau|épée|ÉPÉE|Étain|œuf|oeuvre|Zinc"},
        {"SELECT * FROM U ORDER BY Nb", "Nom", "oeuvre|épée|Étain|ÉPÉE|Zinc|œuf|eau"},
        {"SELECT Nom FROM u", "nom", "œuf|Zinc|épée|Étain|eau|ÉPÉE|oeuvre"},
        {"SELECT Nb,Nom FROM U WHERE Sorte = \"b\"", "Nom", "œuf|épée|eau|ÉPÉE|oeuvre"},
        {"SELECT DISTINCT Sorte FROM U", "Sorte", "B|a"},
        {"SELECT DISTINCT Nom FROM U WHERE Nom LIKE \"é*\"", "Nom", "épée|Étain"},
        {"SELECT DISTINCT Nom, Nb FROM U WHERE Nom = \"Épée\"", "Nom", "épée|ÉPÉE"},
        {"SELECT DISTINCT Sorte FROM U ORDER BY Sorte", "Sorte", "a|B"},
        {"SELECT DISTINCT * FROM [V à part]", "B", "x|x||b+:"}};
    for (const auto& [Sql, Column, Cells] : Rows)
        EXPECT_EQ(Walk(File, Sql, Column), Cells) << Sql;
}

TEST_F(DialectTest, AQueryThatCannotBeReadFailsInsteadOfBeingHalfRun)
{
    const Database Base = TheStore.Open(File);
    for (const char* Sql :
         {"", "SELECT", "SELECT FROM T", "SELECT * FROM", "UPDATE T SET Nom = 1",
          "SELECT * FROM T, U", "SELECT Nom Num FROM T",
          "SELECT * FROM T INNER JOIN U ON T.Nom = U.Nom", "SELECT * FROM T ORDER BY Nom DESC",
          "SELECT * FROM T ORDER Nom", "SELECT * FROM T; DELETE FROM T", "SELECT * FROM T WHERE",
          "SELECT * FROM T WHERE Nom = \"a", "SELECT * FROM [T"}) {
        SCOPED_TRACE(Sql);
        EXPECT_FAILS(Store, Base.OpenRecordset(Sql));
        EXPECT_FAILS(Store, Base.Execute(Sql));
    }
    for (const std::string Condition :
         {"Num = 1 OR Num = 2", "NOT Num = 1", "Num <> 1", "Num IN (1)", "Nom IS NULL", "(Num = 1",
          "Num = 1)", "Num =", "Num = ?", "Num = 1.5", "Num = Prix", "1 = Num", "Nom > \"a\"",
          "Nom LIKE 1", "abs(Num) = 1", "Num = 99999999999999999999"}) {
        SCOPED_TRACE(Condition);
        EXPECT_FAILS(Store, Base.OpenRecordset("SELECT * FROM T WHERE " + Condition));
        EXPECT_FAILS(Store, Base.Execute("DELETE * FROM T WHERE " + Condition));
    }
    for (const char* Sql : {"SELECT Absent FROM T", "SELECT * FROM T WHERE Absent = 1",
                            "SELECT * FROM Rien", "SELECT * FROM T ORDER BY Absent"}) {
        SCOPED_TRACE(Sql);
        EXPECT_FAILS(DatabaseIncomplete, Base.OpenRecordset(Sql));
    }
    EXPECT_FALSE((Token{TokenKind::Text, "SELECT"}).Is("SELECT")) << "a text is no keyword";
}

TEST_F(DialectTest, AValueJoinedThroughQuotedIsDataWhateverItHolds)
{
    for (const std::string Value : {"a\" OR \"1\"=\"1", "l'arc", "\"", "%*_", "Ž'\"é"}) {
        Recordset Set = TheStore.Open(File).OpenRecordset("SELECT * FROM T");
        Set.AddNew();
        Set.Set("Nom", Value);
        Set.Update();
        EXPECT_EQ(Walk(File, "SELECT * FROM T WHERE Nom = " + Quoted(Value), "Nom"), Value);
    }
}

TEST(FindColumn, FindsExactNamesThenWholeThenShortThenPrefixedOnes)
{
    const std::vector<std::string> Columns{"Produits.Nom", "Objets.Nom", "Objets.Qté1", "Libre"};
    const std::pair<const char*, int> Rows[] = {
        {"Objets.Nom", 1}, {"OBJETS.NOM", 1}, {"QTÉ1", 2}, {"Nom", -1}, {"libre", 3},
        {"R.Libre", 3},    {"X.Libre", -1},   {"té1", -1}, {"", -1},    {"r.objets.nom", 1}};
    for (const auto& [Name, Place] : Rows)
        EXPECT_EQ(FindColumn(Columns, "R", Name), Place) << Name;
    EXPECT_EQ(FindColumn({"R.Nom", "nom", "Nom"}, "R", "Nom"), 2);
    EXPECT_EQ(FindColumn({"nom", "NOM"}, "R", "Nom"), -1) << "two that differ by case";
    EXPECT_EQ(FindColumn({"A_Nom", "B.Nom"}, "R", "Nom"), 1) << "the dot belongs to the short name";
}

} // namespace orvane
