#include "store/small_store.h"

#include <functional>
#include <unistd.h>

namespace orvane {

namespace {

const std::string All = "SELECT * FROM T";

// Runs Action as an ordinary user, in a process of its own when root runs the tests: root reads and
// writes everything. Gives what Action tells.
std::string AsOrdinaryUser(const std::function<std::string()>& Action)
{
    if (::geteuid() != 0)
        return Action();
    constexpr uid_t Nobody = 65534;
    if (::seteuid(Nobody) != 0)
        return "no ordinary user to become";
    const std::string Told = Action();
    return ::seteuid(0) == 0 ? Told : "root is gone";
}

void AllowAll(const std::filesystem::path& File, bool Writing)
{
    std::filesystem::permissions(File, std::filesystem::perms(Writing ? 0777 : 0555));
}

} // namespace

class ConnectionTest : public StoreTest
{
  protected:
    // The sentence that opening a file and reading its table ends with.
    std::string SentenceOfReading(const std::filesystem::path& Which)
    {
        return SentenceOf([&] { TheStore.Open(Which).OpenRecordset(All); });
    }

    std::string SentenceOfWriting()
    {
        return SentenceOf([&] {
            Recordset Rows = TheStore.Open(File).OpenRecordset(All);
            Rows.AddNew();
            Rows.Set("Nom", "Or");
            Rows.Update();
        });
    }

    const std::filesystem::path File =
        Raw("Métiers.mdb", "CREATE TABLE T (Nom TEXT); INSERT INTO T VALUES ('Fer')");
    const std::string Locked = "La base de données «\u00A0Métiers.mdb\u00A0» est utilisée par un "
                               "autre programme.\nFermez-le, puis recommencez.";
    const std::string Unreadable = "La base de données «\u00A0Métiers.mdb\u00A0» ne peut pas être "
                                   "lue.\nLe fichier est endommagé ou inaccessible.";
    const std::string ReadOnly = "La base de données «\u00A0Métiers.mdb\u00A0» est en lecture "
                                 "seule\u00A0: rien n’a été enregistré.";
};

TEST_F(ConnectionTest, WhatIsNotADatabaseFailsWhenItIsOpened)
{
    EXPECT_FAILS(DatabaseMissing, TheStore.Open(Folder / "absent.mdb"));
    EXPECT_FALSE(std::filesystem::exists(Folder / "absent.mdb"));
    EXPECT_FAILS(NotADatabase, TheStore.Open(Folder.Write("vide.mdb", "")));
    EXPECT_FAILS(NotADatabase, TheStore.Open(Folder.Path()));
    EXPECT_FAILS(NotADatabase, TheStore.Open(Folder.Write("texte.mdb", "du texte")));
    EXPECT_FAILS(NotADatabase, TheStore.Open(Folder.Write("bruit.mdb", std::string(9000, '\x5A'))));
}

TEST_F(ConnectionTest, ATruncatedFileIsUnreadable)
{
    Raw("Métiers.mdb", "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 2000) "
                       "INSERT INTO T SELECT 'ligne ' || i FROM n");
    std::filesystem::resize_file(File, std::filesystem::file_size(File) / 2 / 4096 * 4096);
    EXPECT_EQ(SentenceOfReading(File), Unreadable);
}

TEST_F(ConnectionTest, AFileLockedByAnotherProgramFailsAndWorksAgainOnceItIsFree)
{
    EXPECT_EQ(SentenceOfReading(File), "") << "the query is known from now on";
    {
        SQLite::Database Other(File.string(), SQLite::OPEN_READWRITE);
        Other.exec("BEGIN EXCLUSIVE");
        EXPECT_EQ(SentenceOfReading(File), Locked);
        EXPECT_EQ(SentenceOfWriting(), Locked);
    }
    EXPECT_EQ(SentenceOfReading(File), "");
    EXPECT_EQ(SentenceOfWriting(), "");
    EXPECT_EQ(Walk(File, All, "Nom"), "Fer|Or");
}

TEST_F(ConnectionTest, AFileLockedInTheMiddleOfAnEventWorksAgainInTheSameEvent)
{
    const Database Base = TheStore.Open(File);
    Recordset Rows = Base.OpenRecordset(All);
    Base.Execute("DELETE * FROM T WHERE Nom = \"x\""); // ends the reading
    {
        SQLite::Database Other(File.string(), SQLite::OPEN_READWRITE);
        Other.exec("BEGIN EXCLUSIVE");
        EXPECT_FAILS(DatabaseLocked, Base.OpenRecordset(All));
        Rows.Edit();
        Rows.Set("Nom", "Or");
        EXPECT_FAILS(DatabaseLocked, Rows.Update());
    }
    EXPECT_EQ(Rows.Text("Nom"), "Fer") << "what wasn't stored isn't shown";
    EXPECT_EQ(SentenceOf([&] { Base.OpenRecordset(All); }), "");
}

TEST_F(ConnectionTest, AWriteThatAnotherReaderHoldsUpLeavesTheRowAsItWas)
{
    SQLite::Database Other(File.string());
    Other.exec("BEGIN");
    Other.execAndGet("SELECT count(*) FROM T");
    EXPECT_EQ(SentenceOfWriting(), Locked);
    Other.exec("COMMIT");
    EXPECT_EQ(Walk(File, All, "Nom"), "Fer");
    EXPECT_EQ(SentenceOfWriting(), "");
}

TEST_F(ConnectionTest, AReadOnlyFileIsReadButNotWritten)
{
    AllowAll(Folder.Path(), true);
    AllowAll(File, false);
    EXPECT_EQ(AsOrdinaryUser([&] { return SentenceOfReading(File); }), "");
    EXPECT_EQ(AsOrdinaryUser([&] { return SentenceOfWriting(); }), ReadOnly);
    EXPECT_EQ(Walk(File, All, "Nom"), "Fer");
}

TEST_F(ConnectionTest, AFileInAReadOnlyFolderSaysThatNothingWasStored)
{
    AllowAll(File, true);
    AllowAll(Folder.Path(), false);
    EXPECT_EQ(AsOrdinaryUser([&] { return SentenceOfReading(File); }), "");
    EXPECT_EQ(AsOrdinaryUser([&] { return SentenceOfWriting(); }), ReadOnly);
    std::filesystem::permissions(Folder.Path(), std::filesystem::perms::owner_all);
}

TEST_F(ConnectionTest, AFileThatMayNotBeReadIsUnreadable)
{
    AllowAll(Folder.Path(), true);
    std::filesystem::permissions(File, std::filesystem::perms::none);
    EXPECT_EQ(AsOrdinaryUser([&] { return SentenceOfReading(File); }), Unreadable);
}

} // namespace orvane
