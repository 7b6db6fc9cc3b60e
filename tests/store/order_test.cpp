#include "store/small_store.h"

namespace orvane {

class OrderTest : public StoreTest
{
  protected:
    OrderTest()
    {
        Raw("a.mdb", "CREATE TABLE T (Nom TEXT, Sorte TEXT, Nb INTEGER);"
                     "CREATE INDEX T_Sorte ON T (Sorte COLLATE NOCASE);"
                     "INSERT INTO T VALUES ('œuf', 'B', 10), ('Zinc', 'a', 9), ('épée', 'b', 2),"
                     "('Étain', 'A', 2), ('eau', 'B', 10), ('ÉPÉE', 'b', 3), ('oeuvre', 'b', 1)");
    }

    std::string Names(const std::string& Sql) { return Walk(Folder / "a.mdb", Sql, "Nom"); }
};

TEST_F(OrderTest, OrderByIsThatOfAFrenchReader)
{
    EXPECT_EQ(Names("SELECT Nom FROM T ORDER BY Nom"), "eau|épée|ÉPÉE|Étain|œuf|oeuvre|Zinc");
    EXPECT_EQ(Names("SELECT * FROM T ORDER BY Nom DESC"), "Zinc|oeuvre|œuf|Étain|ÉPÉE|épée|eau");
}

TEST_F(OrderTest, NumbersSortAsNumbersAndEqualRowsKeepTheOrderOfInsertion)
{
    EXPECT_EQ(Names("SELECT Nom FROM T ORDER BY Nb"), "oeuvre|épée|Étain|ÉPÉE|Zinc|œuf|eau");
    EXPECT_EQ(Names("SELECT Nom FROM T ORDER BY Nb DESC, Nom ASC"),
              "eau|œuf|Zinc|ÉPÉE|épée|Étain|oeuvre");
}

TEST_F(OrderTest, WithoutOrderByRowsComeInTheOrderOfInsertionAlsoThroughAnIndex)
{
    EXPECT_EQ(Names("SELECT Nom FROM T"), "œuf|Zinc|épée|Étain|eau|ÉPÉE|oeuvre");
    EXPECT_EQ(Names("SELECT Nom FROM T WHERE Sorte = \"b\""), "œuf|épée|eau|ÉPÉE|oeuvre");
    EXPECT_EQ(Names("SELECT Nom FROM T WHERE Sorte = \"b\" OR Sorte = \"a\";"),
              "œuf|Zinc|épée|Étain|eau|ÉPÉE|oeuvre");
}

TEST_F(OrderTest, DistinctKeepsTheFirstOccurrenceWithoutRegardToCase)
{
    EXPECT_EQ(Walk(Folder / "a.mdb", "SELECT DISTINCT Sorte FROM T", "Sorte"), "B|a");
    EXPECT_EQ(Names("SELECT DISTINCT Nom FROM T WHERE Nom LIKE \"é*\""), "épée|Étain");
    EXPECT_EQ(Names("SELECT DISTINCT Nom, Nb FROM T WHERE Nom = \"Épée\""), "épée|ÉPÉE");
    EXPECT_EQ(Names("SELECT DISTINCT Nom FROM T WHERE Nom = \"Épée\" ORDER BY Nb DESC"), "ÉPÉE");
    EXPECT_EQ(Names("SELECT DISTINCT Nom FROM T WHERE Nom = \"Épée\" ORDER BY Nb"), "épée");
}

TEST_F(OrderTest, DistinctTellsANullFromTheEmptyTextAndCellsFromEachOther)
{
    Raw("b.mdb", "CREATE TABLE T (A TEXT, B TEXT); INSERT INTO T VALUES ('', 'x'), (NULL, 'x'),"
                 "('a' || char(10), 'b'), ('a', char(10) || 'b'), (NULL, 'X')");
    const Database Base = TheStore.Open(Folder / "b.mdb");
    EXPECT_EQ(Base.OpenRecordset("SELECT DISTINCT A, B FROM T").RecordCount(), 4U);
}

} // namespace orvane
