#include "store/small_store.h"

#include <array>

namespace orvane {

const DatabaseDefinition Definition{{{"T",
                                      {{"Num", ColumnType::Key, {}},
                                       {"Nom", ColumnType::Text, {}},
                                       {"Nb", ColumnType::Whole, {}},
                                       {"Prix", ColumnType::Decimal, {}}}}},
                                    {},
                                    {}};

class RecordsetTest : public StoreTest
{
  protected:
    RecordsetTest()
    {
        Raw("a.mdb", "INSERT INTO T VALUES (1, 'Fer', 10, 1.5), (2, 'Bois', NULL, 2), "
                     "(5, 'Cuir', 40000, 0)");
    }

    std::string Names() { return Walk(File, "SELECT * FROM T", "Nom"); }

    const std::filesystem::path File = Make("a.mdb", Definition);
    const Database Base = TheStore.Open(File);
};

TEST_F(RecordsetTest, IsWalkedFromTheFirstRowToTheEnd)
{
    Recordset Rows = Base.OpenRecordset("SELECT Nom, Nb FROM T WHERE Num < 3");
    EXPECT_EQ(Rows.RecordCount(), 2U);
    EXPECT_EQ(Rows.Text("nom"), "Fer");
    Rows.MoveNext();
    EXPECT_EQ(Rows.Text("Nom"), "Bois");
    Rows.MoveNext();
    Rows.MoveNext();
    EXPECT_TRUE(Rows.Eof());
    EXPECT_FAILS(NoRow, Rows.Text("Nom"));
    EXPECT_FAILS(NoRow, Rows.Edit());
    Rows.MoveFirst();
    EXPECT_EQ(Rows.Whole("Nb"), 10);
}

TEST_F(RecordsetTest, NullsAndTextsThatAreNoNumbersFailWhereAValueIsNeeded)
{
    Recordset Rows = Base.OpenRecordset("SELECT * FROM T WHERE Num >= 2");
    EXPECT_TRUE(Rows.IsNull("Nb"));
    EXPECT_EQ(Rows.TextOrEmpty("Nb"), "");
    EXPECT_FAILS(NullValue, Rows.Text("Nb"));
    EXPECT_FAILS(NullValue, Rows.Whole("Nb"));
    EXPECT_FAILS(NullValue, Rows.Number("Nom"));
    Rows.MoveNext();
    EXPECT_FAILS(NullValue, Rows.Whole("Nb")); // 40000 doesn't fit 16 bits
    EXPECT_EQ(Rows.Number("Nb"), 40000.0);
}

TEST_F(RecordsetTest, AMissingRowIsToldByWhatWasLookedFor)
{
    const std::array<std::string, 2> Cases[] = {
        {"Nom = \"Étain\"", "Aucune donnée pour «\u00A0Étain\u00A0»."},
        {"Nom = \"Étain\" AND Nb = 9", "Aucune donnée pour «\u00A0Étain, 9\u00A0»."},
        {"Nom IS NULL", "Aucune donnée pour «\u00A0T\u00A0»."},
        {"Nom = \"\"", "Il faut d’abord faire le choix précédent."},
        {"Nom = \"Fer\" AND Nom = \"\"",
         "Il faut d’abord faire le choix précédent, puis reprendre «\u00A0Fer\u00A0»."}};
    for (const auto& [Where, Sentence] : Cases)
        EXPECT_EQ(
            SentenceOf([&] { Base.OpenRecordset("SELECT * FROM T WHERE " + Where).MoveFirst(); }),
            Sentence);
    EXPECT_EQ(SentenceOf([&] { Base.OpenRecordset("SELECT * FROM T WHERE Num = 2").Text("Nb"); }),
              "Aucune donnée pour «\u00A02 (T), Nb\u00A0».");
}

TEST_F(RecordsetTest, EditingWhileWalkingChangesEachRowOnce)
{
    Recordset Rows = Base.OpenRecordset("SELECT * FROM T WHERE Prix < 100 ORDER BY Nom");
    for (; !Rows.Eof(); Rows.MoveNext()) {
        Rows.Edit();
        Rows.Set("Nom", "Z" + Rows.Text("Nom"));
        Rows.Set("Prix", "100");
        Rows.Update();
    }
    EXPECT_EQ(Names(), "ZFer|ZBois|ZCuir");
    Rows.MoveFirst();
    EXPECT_EQ(Rows.Text("Nom"), "ZBois") << "the snapshot shows what was stored";
}

TEST_F(RecordsetTest, OnlyTheColumnsThatWereSetChange)
{
    Recordset Rows = Base.OpenRecordset("SELECT Nom, Nb FROM T WHERE Nom = \"FER\"");
    Rows.Edit();
    Rows.Set("Nb", 12);
    Rows.Update();
    Rows.Edit();
    Rows.SetNull("Nb");
    Rows.Update();
    EXPECT_TRUE(Rows.IsNull("Nb"));
    EXPECT_EQ(RawCell("a.mdb", "SELECT Nom || Prix FROM T WHERE Nb IS NULL AND Num = 1"), "Fer1.5");
    EXPECT_FAILS(DatabaseIncomplete, Rows.Set("Absent", "x"));
}

TEST_F(RecordsetTest, ANewRowGetsANumOfItsOwn)
{
    Recordset Rows = Base.OpenRecordset("SELECT * FROM T WHERE Nom = \"rien\"");
    for (const char* Name : {"Lin", "Soie"}) {
        Rows.AddNew();
        Rows.Set("Nom", Name);
        Rows.Update();
    }
    EXPECT_EQ(Walk(Base, "SELECT * FROM T WHERE Num > 5", "Num"), "6|7");
    EXPECT_EQ(Names(), "Fer|Bois|Cuir|Lin|Soie");
}

TEST_F(RecordsetTest, MovingAwayNeverSendsAnEditToAnotherRow)
{
    Recordset Rows = Base.OpenRecordset("SELECT * FROM T");
    Rows.Edit();
    Rows.Set("Nom", "X");
    Rows.MoveNext();
    try {
        Rows.Update();
    } catch (const Failure&) {
    }
    EXPECT_EQ(Walk(Base, "SELECT * FROM T WHERE Num = 2", "Nom"), "Bois");
}

TEST_F(RecordsetTest, DeleteTakesTheRowsOfItsConditionOrAll)
{
    Recordset Gone = Base.OpenRecordset("SELECT * FROM T WHERE Nom = \"fer\"");
    Base.Execute("DELETE * FROM T WHERE Nom = \"FER\" OR Nb > 30000");
    EXPECT_EQ(Names(), "Bois");
    Gone.Edit();
    Gone.Set("Nom", "X");
    EXPECT_FAILS(NoRow, Gone.Update()); // a row that is gone can't be changed
    Base.Execute("DELETE FROM t");
    EXPECT_EQ(Names(), "");
}

} // namespace orvane
