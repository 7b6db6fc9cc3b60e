#include "store/small_store.h"

namespace orvane {

class SharingTest : public StoreTest
{
  protected:
    static void Rename(const Database& Base, const std::string& Name)
    {
        Recordset Rows = Base.OpenRecordset("SELECT * FROM T");
        Rows.Edit();
        Rows.Set("Nom", Name);
        Rows.Update();
    }

    const std::string All = "SELECT * FROM T";
    const std::filesystem::path File =
        Raw("a.mdb", "CREATE TABLE T (Nom TEXT); INSERT INTO T VALUES ('Fer'), ('Bois')");
};

TEST_F(SharingTest, AStoredRowIsSeenByOtherProgramsAtOnce)
{
    const Database Base = TheStore.Open(File);
    EXPECT_EQ(Walk(Base, All, "Nom"), "Fer|Bois");
    Rename(Base, "Or");
    EXPECT_EQ(RawCell("a.mdb", "SELECT Nom FROM T"), "Or");
    EXPECT_FALSE(std::filesystem::exists(Folder / "a.mdb-journal")) << "nothing is left to finish";
}

TEST_F(SharingTest, ANestedHandleWritesWhileItsCallerReads)
{
    const Database Outer = TheStore.Open(File);
    Recordset Rows = Outer.OpenRecordset(All);
    {
        const Database Nested = TheStore.Open(File);
        Rename(Nested, "Or");
        Nested.Execute("DELETE * FROM T WHERE Nom = \"Bois\"");
        EXPECT_EQ(Walk(Nested, All, "Nom"), "Or");
    }
    EXPECT_EQ(Rows.Text("Nom"), "Fer") << "a set is a snapshot";
    EXPECT_EQ(Rows.RecordCount(), 2U);
    EXPECT_EQ(Walk(Outer, All, "Nom"), "Or") << "a new set shows what is stored";
}

TEST_F(SharingTest, OneFileSpelledInTwoWaysIsStillOneFile)
{
    const Database Outer = TheStore.Open(File);
    Walk(Outer, All, "Nom");
    const Database Nested = TheStore.Open(Folder / "." / "a.mdb");
    EXPECT_EQ(SentenceOf([&] { Rename(Nested, "Or"); }), "");
    EXPECT_EQ(Walk(Outer, All, "Nom"), "Or|Bois");
}

TEST_F(SharingTest, OneEventReadsOneStateOfTheFileUntilItCloses)
{
    Database Base = TheStore.Open(File);
    const Recordset Rows = Base.OpenRecordset(All);
    SQLite::Database Writer(File.string(), SQLite::OPEN_READWRITE);
    EXPECT_THROW(Writer.exec("DELETE FROM T"), SQLite::Exception) << "the reader holds its state";
    Base.Close();
    Base.Close();
    Writer.exec("DELETE FROM T");
    EXPECT_EQ(Walk(File, All, "Nom"), "");
    EXPECT_EQ(Rows.Text("Nom"), "Fer") << "a set stays readable";
}

TEST_F(SharingTest, AHandleThatIsMovedClosesOnce)
{
    Database First = TheStore.Open(File);
    Database Second = std::move(First);
    First = TheStore.Open(File);
    Second = std::move(First);
    EXPECT_EQ(Walk(Second, All, "Nom"), "Fer|Bois");
    Second.Close();
    Raw("a.mdb", "DELETE FROM T");
    EXPECT_EQ(Walk(File, All, "Nom"), "");
}

TEST_F(SharingTest, AFileReplacedBetweenTwoEventsIsNoticed)
{
    EXPECT_EQ(Walk(File, All, "Nom"), "Fer|Bois");
    Raw("b.mdb", "CREATE TABLE T (Num INTEGER, Nom TEXT); INSERT INTO T VALUES (1, 'Neuf')");
    std::filesystem::rename(Folder / "b.mdb", File);
    EXPECT_EQ(Walk(File, All, "Nom"), "Neuf");
    std::filesystem::remove(File);
    EXPECT_FAILS(DatabaseMissing, TheStore.Open(File));
    Raw("a.mdb", "CREATE TABLE T (Nom TEXT); INSERT INTO T VALUES ('Retour')");
    EXPECT_EQ(Walk(File, All, "Nom"), "Retour");
}

TEST_F(SharingTest, AFileReplacedByACopyOfTheSameTimeAndSizeIsNoticed)
{
    EXPECT_EQ(Walk(File, All, "Nom"), "Fer|Bois");
    const auto Copy = Folder / "copie.mdb";
    std::filesystem::copy_file(File, Copy);
    std::filesystem::last_write_time(Copy, std::filesystem::last_write_time(File));
    std::filesystem::rename(Copy, File);
    EXPECT_EQ(SentenceOf([&] { Rename(TheStore.Open(File), "Or"); }), "");
    EXPECT_EQ(RawCell("a.mdb", "SELECT Nom FROM T"), "Or");
}

TEST_F(SharingTest, WhatAnotherProgramAddsIsSeenAtTheNextOpening)
{
    EXPECT_EQ(Walk(File, All, "Nom"), "Fer|Bois");
    Raw("a.mdb", "ALTER TABLE T ADD COLUMN Nb INTEGER; INSERT INTO T VALUES ('Cuir', 3)");
    EXPECT_EQ(Walk(File, All, "Nb"), "||3");
}

} // namespace orvane
