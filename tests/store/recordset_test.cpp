#include "store/small_store.h"

#include <array>

namespace orvane {

class RecordsetTest : public StoreTest
{
  protected:
    // What the first row holds after Given was written to it.
    std::string Stored(const std::string& Column, const std::string& Given)
    {
        Recordset Rows = Base.OpenRecordset("SELECT * FROM T WHERE Num = 1");
        Put(Rows, Column, Given);
        return Walk(Base, "SELECT * FROM T WHERE Num = 1", Column);
    }

    std::string Names() { return Walk(Base, "SELECT * FROM T", "Nom"); }

    const Database Base = TheStore.Open(
        Raw("a.mdb",
            "CREATE TABLE T (Num INTEGER PRIMARY KEY, Nom TEXT, Nb INTEGER, Prix DECIMAL(19,4));"
            "INSERT INTO T (Num, Nom, Nb, Prix) VALUES (1, 'Fer', 10, 1.5), (2, 'Bois', NULL, 2), "
            "(5, 'Cuir', 40000, 0)"));
};

TEST_F(RecordsetTest, IsWalkedFromTheFirstRowToTheEnd)
{
    Recordset Rows = Base.OpenRecordset("SELECT Nom, Nb, Num FROM T WHERE Num>0");
    ASSERT_EQ(Rows.RecordCount(), 3U);
    EXPECT_EQ(Rows.Text("nom"), "Fer");
    EXPECT_EQ(Rows.Whole("Nb"), 10);
    Rows.MoveNext();
    EXPECT_TRUE(Rows.IsNull("Nb"));
    EXPECT_FAILS(NullValue, Rows.Text("Nb"));
    EXPECT_FAILS(NullValue, Rows.Number("Nom"));
    Rows.MoveNext();
    EXPECT_FAILS(NullValue, Rows.Whole("Nb")); // 40000 doesn't fit 16 bits
    EXPECT_EQ(Rows.Number("Nb"), 40000.0);
    Rows.MoveNext();
    Rows.MoveNext();
    EXPECT_TRUE(Rows.Eof());
    EXPECT_FAILS(NoRow, Rows.Text("Nom"));
    EXPECT_FAILS(NoRow, Rows.Edit());
    Rows.MoveTo(1);
    EXPECT_EQ(Rows.Text("Nom"), "Bois");
}

TEST_F(RecordsetTest, AMissingRowIsToldByWhatWasLookedFor)
{
    const std::array<std::string, 2> Cases[] = {
        {"Nom = \"Étain\"", "Aucune donnée pour «\u00A0Étain\u00A0» dans «\u00A0a.mdb\u00A0»."},
        {"Nom = \"Étain\" AND Nb = 9",
         "Aucune donnée pour «\u00A0Étain, 9\u00A0» dans «\u00A0a.mdb\u00A0»."},
        {"Num = 2", "Aucune donnée pour «\u00A02 (T), Nb\u00A0» dans «\u00A0a.mdb\u00A0»."},
        {"Num OR Nom", "La base de données «\u00A0a.mdb\u00A0» a refusé l’opération."},
        {"Nom = \"\"", "Il faut d’abord faire le choix précédent."},
        {"Nom = \"Fer\" AND Nom = \"\"",
         "Il faut d’abord faire le choix précédent, puis reprendre «\u00A0Fer\u00A0»."}};
    for (const auto& [Where, Sentence] : Cases)
        EXPECT_EQ(SentenceOf([&] {
                      Recordset Rows = Base.OpenRecordset("SELECT * FROM T WHERE " + Where);
                      Rows.MoveFirst();
                      Rows.Text("Nb");
                  }),
                  Sentence);
    Base.Execute("DELETE * FROM T WHERE Num>0");
    EXPECT_EQ(SentenceOf([&] { Base.OpenRecordset("SELECT * FROM T").MoveFirst(); }),
              "Aucune donnée pour «\u00A0T\u00A0» dans «\u00A0a.mdb\u00A0».");
}

TEST_F(RecordsetTest, EditingWhileWalkingChangesEachRowOnceAndOnlyWhatWasSet)
{
    Recordset Rows = Base.OpenRecordset("SELECT * FROM T WHERE Num>0 ORDER BY Nom");
    for (; !Rows.Eof(); Rows.MoveNext()) {
        Put(Rows, "Nom", "Z" + Rows.Text("Nom"));
        Put(Rows, "Prix", "100");
    }
    EXPECT_EQ(Names(), "ZFer|ZBois|ZCuir");
    EXPECT_EQ(Walk(Base, "SELECT * FROM T", "Nb"), "10||40000");
    Rows.MoveFirst();
    EXPECT_EQ(Rows.Text("Nom"), "ZBois") << "the snapshot shows what was stored";
    EXPECT_FAILS(DatabaseIncomplete, Put(Rows, "Absent", "x"));
    Rows.Edit();
    Rows.Set("Nom", "X");
    Rows.MoveNext();
    SentenceOf([&] { Rows.Update(); });
    EXPECT_EQ(Names(), "ZFer|ZBois|ZCuir") << "moving away drops the change";
}

TEST_F(RecordsetTest, RowsAreAddedWithANumOfTheirOwnAndDeletedByTheirCondition)
{
    Recordset Rows = Base.OpenRecordset("SELECT * FROM T");
    for (const char* Name : {"Lin", "Soie"}) {
        Rows.AddNew();
        Rows.Set("Nom", Name);
        Rows.Update();
    }
    EXPECT_EQ(Walk(Base, "SELECT * FROM T", "Num"), "1|2|5|6|7");
    Base.Execute("DELETE * FROM t WHERE Nom = \"FER\"");
    Base.Execute("DELETE * FROM T WHERE Num=7");
    EXPECT_EQ(Names(), "Bois|Cuir|Lin");
    EXPECT_FAILS(NoRow, Put(Rows, "Nom", "X")); // a row that is gone can't be changed
}

TEST_F(RecordsetTest, AColumnHoldsWhatWasWrittenToItInItsOwnWay)
{
    for (const std::string Exact : {"-0,0001", "922337203685477,5807", "-922337203685477,5808",
                                    "99999999999,9999", "900719925474,0993", "100000000000000"})
        EXPECT_EQ(Stored("Prix", Exact), Exact);
    const std::array<const char*, 3> Cells[] = {
        {"Prix", "0,00005", "0"},
        {"Prix", "0,00015", "0,0002"},
        {"Prix", "-1,00025", "-1,0002"},
        {"Prix", "0,000050001", "0,0001"},
        {"Nb", "2,5", "2"},
        {"Nb", "-3,5", "-4"},
        {"Nb", "9223372036854775807", "9223372036854775807"},
        {"Nom", "1,1250", "1,1250"}};
    for (const auto& [Column, Given, Text] : Cells)
        EXPECT_EQ(Stored(Column, Given), Text) << Column << " of " << Given;
}

TEST_F(RecordsetTest, ATextThatIsNoNumberIsRefusedAndTheRowLeftAsItWas)
{
    Recordset Rows = Base.OpenRecordset("SELECT * FROM T");
    EXPECT_EQ(SentenceOf([&] { Put(Rows, "Prix", "dix"); }),
              "«\u00A0dix\u00A0» n’est pas un nombre\u00A0: rien n’a été enregistré dans "
              "«\u00A0a.mdb\u00A0».");
    const std::array<const char*, 2> Cells[] = {
        {"Prix", ""},    {"Prix", "abc"}, {"Prix", "922337203685477,5808"},
        {"Nb", "1 234"}, {"Nb", "12.5"},  {"Nb", "9223372036854775808"}};
    for (const auto& [Column, Wrong] : Cells) {
        SCOPED_TRACE(Wrong);
        Rows.Edit();
        Rows.Set("Nom", "X");
        Rows.Set(Column, Wrong);
        EXPECT_FAILS(RefusedNumber, Rows.Update());
    }
    EXPECT_EQ(Rows.Text("Nom"), "Fer") << "nor does the snapshot change";
    EXPECT_EQ(Names(), "Fer|Bois|Cuir");
}

} // namespace orvane
