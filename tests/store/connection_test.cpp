#include "store/small_store.h"
#include "store/sqlite_error.h"
#include "support/ordinary_user.h"

#include <csignal>
#include <sys/resource.h>

namespace orvane {

namespace {

using std::filesystem::perms;

const std::string All = "SELECT * FROM T";

} // namespace

class ConnectionTest : public StoreTest
{
  protected:
    // What the crafter reads when the table is read or written.
    std::string Reading()
    {
        return SentenceOf([&] { TheStore.Open(File).OpenRecordset(All); });
    }
    std::string Writing()
    {
        return SentenceOf([&] {
            Recordset Rows = TheStore.Open(File).OpenRecordset(All);
            Put(Rows, "Nom", "Or");
        });
    }

    const std::filesystem::path File =
        Raw("Métiers.mdb", "CREATE TABLE T (Nom TEXT); INSERT INTO T VALUES ('Fer'), ('Bois')");
    const std::string ReadOnly = Failure(FailureKind::DatabaseReadOnly, "Métiers.mdb").Sentence();
    const std::string Damaged = Failure(FailureKind::DatabaseUnreadable, "Métiers.mdb").Sentence();
};

TEST_F(ConnectionTest, WhatIsNotADatabaseFailsWhenItIsOpened)
{
    EXPECT_FAILS(DatabaseMissing, TheStore.Open(Folder / "absent.mdb"));
    EXPECT_FALSE(std::filesystem::exists(Folder / "absent.mdb"));
    EXPECT_FAILS(NotADatabase, TheStore.Open(Folder.Path()));
    for (const std::string& Content :
         {std::string(), std::string("du texte"), std::string(9000, 'Z')}) {
        SCOPED_TRACE(Content.substr(0, 9));
        EXPECT_FAILS(NotADatabase, TheStore.Open(Folder.Write("faux.mdb", Content)));
    }
}

TEST_F(ConnectionTest, ATruncatedFileIsUnreadable)
{
    Raw("Métiers.mdb", "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 2000) "
                       "INSERT INTO T SELECT 'ligne ' || i FROM n");
    std::filesystem::resize_file(File, std::filesystem::file_size(File) / 2 / 4096 * 4096);
    EXPECT_EQ(Reading(), Damaged);
}

TEST_F(ConnectionTest, AFileLockedByAnotherProgramFailsAndWorksAgainOnceItIsFree)
{
    const Database Base = TheStore.Open(File);
    Recordset Rows = Base.OpenRecordset(All);
    Base.Execute("DELETE * FROM T WHERE Nom = \"x\""); // ends the reading
    SQLite::Database Other(File.string(), SQLite::OPEN_READWRITE);
    Other.exec("BEGIN EXCLUSIVE");
    EXPECT_FAILS(DatabaseLocked, Store().Open(File));
    EXPECT_FAILS(DatabaseLocked, Base.OpenRecordset(All));
    EXPECT_FAILS(DatabaseLocked, Put(Rows, "Nom", "Or"));
    EXPECT_EQ(Rows.Text("Nom"), "Fer") << "what wasn't stored isn't shown";
    Other.exec("COMMIT; BEGIN");
    Other.execAndGet("SELECT count(*) FROM T");
    EXPECT_EQ(Walk(Base, All, "Nom"), "Fer|Bois");
    EXPECT_FAILS(DatabaseLocked, Put(Rows, "Nom", "Or")); // the other one reads
    Other.exec("COMMIT");
    EXPECT_EQ(Walk(Base, All, "Nom"), "Fer|Bois");
    EXPECT_EQ(Writing(), "");
    EXPECT_EQ(Walk(Base, All, "Nom"), "Or|Bois");
}

TEST_F(ConnectionTest, WhatTheFolderAllowsIsDoneAndTheRestIsTold)
{
    const struct
    {
        perms OfFile;
        perms OfFolder;
        std::string ToRead;
        std::string ToWrite;
    } Rows[] = {{perms(0555), perms(0777), "", ReadOnly},
                {perms(0777), perms(0555), "", ReadOnly},
                {perms(0000), perms(0777), Damaged, Damaged},
                {perms(0777), perms(0000), Damaged, Damaged}};
    for (const auto& [OfFile, OfFolder, ToRead, ToWrite] : Rows) {
        SCOPED_TRACE(static_cast<int>(OfFile));
        TheStore = Store();
        std::filesystem::permissions(File, OfFile);
        std::filesystem::permissions(Folder.Path(), OfFolder);
        AsOrdinaryUser([&] {
            EXPECT_EQ(Reading(), ToRead);
            EXPECT_EQ(Writing(), ToWrite);
        });
        std::filesystem::permissions(Folder.Path(), perms::owner_all);
    }
    std::filesystem::permissions(File, perms::owner_all);
    EXPECT_EQ(RawCell("Métiers.mdb", "SELECT Nom FROM T"), "Fer");
}

TEST_F(ConnectionTest, ANestedHandleWritesWhileItsCallerReads)
{
    const Database Outer = TheStore.Open(File);
    Recordset Rows = Outer.OpenRecordset(All);
    {
        const Database Nested = TheStore.Open(Folder / "." / "Métiers.mdb");
        Recordset Same = Nested.OpenRecordset(All);
        Put(Same, "Nom", "Or");
        Nested.Execute("DELETE * FROM T WHERE Nom = \"Bois\"");
        EXPECT_EQ(Walk(Nested, All, "Nom"), "Or");
    }
    EXPECT_EQ(RawCell("Métiers.mdb", "SELECT group_concat(Nom) FROM T"), "Or")
        << "others see it at once";
    EXPECT_EQ(Rows.Text("Nom"), "Fer") << "a set is a snapshot";
    EXPECT_EQ(Walk(Outer, All, "Nom"), "Or") << "a new set shows what is stored";
}

TEST_F(ConnectionTest, ATransactionStoresAllOrNothing)
{
    const Database Base = TheStore.Open(File);
    Recordset Rows = Base.OpenRecordset(All);
    const auto Change = [&] {
        Put(Rows, "Nom", "Or");
        Base.Execute("DELETE * FROM T WHERE Nom = \"Bois\"");
        Recordset Added = TheStore.Open(File).OpenRecordset(All); // a nested handle
        Added.AddNew();
        Added.Set("Nom", "Cuir");
        EXPECT_EQ(Added.Update(), 2);
        EXPECT_EQ(Walk(Base, All, "Nom"), "Or|Cuir");
    };
    EXPECT_FAILS(Told, Base.Transaction([&] {
        Change();
        throw Failure(FailureKind::Told, "Non.");
    }));
    EXPECT_EQ(Walk(Base, All, "Nom"), "Fer|Bois");
    {
        SQLite::Database Other(File.string(), SQLite::OPEN_READWRITE);
        Other.exec("BEGIN");
        Other.execAndGet("SELECT count(*) FROM T"); // it reads: nothing can be stored
        EXPECT_FAILS(DatabaseLocked, Base.Transaction(Change));
    }
    EXPECT_EQ(Walk(Base, All, "Nom"), "Fer|Bois");
    Base.Transaction(Change);
    EXPECT_EQ(RawCell("Métiers.mdb", "SELECT group_concat(Nom) FROM T"), "Or,Cuir");
    EXPECT_TRUE(Base.HasTable("t"));
    EXPECT_FALSE(Base.HasTable("Absente"));
}

TEST_F(ConnectionTest, OneEventReadsOneStateOfTheFileUntilItCloses)
{
    auto Base = std::make_unique<Database>(TheStore.Open(File));
    const Recordset Rows = Base->OpenRecordset(All);
    SQLite::Database Writer(File.string(), SQLite::OPEN_READWRITE);
    EXPECT_THROW(Writer.exec("DELETE FROM T"), SQLite::Exception) << "the reader holds its state";
    Base = nullptr;
    Writer.exec("DELETE FROM T");
    EXPECT_EQ(Walk(File, All, "Nom"), "");
    EXPECT_EQ(Rows.Text("Nom"), "Fer") << "a set stays readable";
}

TEST_F(ConnectionTest, WhatOthersDoToAFileIsNoticedAtTheNextOpening)
{
    {
        Database First = TheStore.Open(File);
        const Database Second = std::move(First); // closes once
        EXPECT_EQ(Walk(Second, All, "Nom"), "Fer|Bois");
    }
    Raw("Métiers.mdb", "ALTER TABLE T ADD COLUMN Nb INTEGER; INSERT INTO T VALUES ('Cuir', 3)");
    EXPECT_EQ(Walk(File, All, "Nb"), "||3");
    Raw("b.mdb", "CREATE TABLE T (Num INTEGER, Nom TEXT); INSERT INTO T VALUES (1, 'Neuf')");
    std::filesystem::rename(Folder / "b.mdb", File);
    EXPECT_EQ(Walk(File, All, "Nom"), "Neuf");
    std::filesystem::copy_file(File, Folder / "b.mdb");
    std::filesystem::last_write_time(Folder / "b.mdb", std::filesystem::last_write_time(File));
    std::filesystem::rename(Folder / "b.mdb", File); // of the same time and size
    Recordset Rows = TheStore.Open(File).OpenRecordset(All);
    EXPECT_EQ(SentenceOf([&] { Put(Rows, "Nom", "Or"); }), "");
    EXPECT_EQ(RawCell("Métiers.mdb", "SELECT Nom FROM T"), "Or");
    std::filesystem::remove(File);
    EXPECT_FAILS(DatabaseMissing, TheStore.Open(File));
}

TEST_F(ConnectionTest, AFileFromElsewhereIsDataAndOneQueryOfItDoesNotGoOnForEver)
{
    Raw("Métiers.mdb", R"(
        CREATE TABLE N (Num INTEGER PRIMARY KEY, Mot TEXT);
        WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 5000)
        INSERT INTO N SELECT i, CASE WHEN i = 1 THEN hex(zeroblob(500000)) END FROM n;
        CREATE TABLE SavedQueries (Nom TEXT, Texte TEXT);
        INSERT INTO SavedQueries VALUES
        ('R_Rien', 'SELECT N.Num FROM N INNER JOIN N AS A ON A.Mot > N.Mot'),
        ('R_Grand', 'SELECT A.Mot FROM N INNER JOIN N AS A ON A.Num = 1 WHERE 101 > N.Num');
        CREATE TABLE G (Mot TEXT);
        INSERT INTO G VALUES (hex(zeroblob(600000)));
        CREATE VIRTUAL TABLE F USING fts5(Mot);
        CREATE TRIGGER Appel BEFORE UPDATE ON T BEGIN SELECT fold_case(NEW.Nom); END)");
    const std::string Refused = Failure(FailureKind::Store, "Métiers.mdb").Sentence();
    const Database Base = TheStore.Open(File);
    for (const std::string From : {"R_Rien", "R_Grand", "G"}) {
        EXPECT_EQ(SentenceOf([&] { Base.OpenRecordset("SELECT * FROM " + From); }), Refused)
            << From;
        EXPECT_EQ(Walk(Base, All, "Nom"), "Fer|Bois") << "after " << From;
    }
    EXPECT_EQ(Writing(), Refused) << "a trigger that calls a function of the program";
    EXPECT_EQ(SentenceOf([&] { Base.Execute("DELETE * FROM F_data WHERE id = 1"); }), Refused);
    EXPECT_EQ(SentenceOf([&] { Base.Execute("DELETE * FROM T WHERE Nom = \"Fer\""); }), "");
    EXPECT_EQ(RawCell("Métiers.mdb", "SELECT group_concat(Nom) FROM T"), "Bois");
}

TEST_F(ConnectionTest, AWriteThatFailsWithRoomOnTheDiskIsNoDamagedFile)
{
    rlimit Before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &Before), 0);
    const auto Ended = std::signal(SIGXFSZ, SIG_IGN); // a write then fails instead
    const rlim_t Size = std::filesystem::file_size(File);
    for (const rlim_t Greatest : {rlim_t(16), Size}) { // of the journal, of the file
        Recordset Rows = TheStore.Open(File).OpenRecordset(All);
        const rlimit Limit{Greatest, Before.rlim_max};
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &Limit), 0);
        const std::string Told = SentenceOf([&] { Put(Rows, "Nom", std::string(2 * Size, 'x')); });
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &Before), 0);
        EXPECT_EQ(Told, "L’écriture dans «\u00A0Métiers.mdb\u00A0» a échoué\u00A0: "
                        "rien n’a été enregistré.")
            << Greatest;
        EXPECT_EQ(Walk(File, All, "Nom"), "Fer|Bois");
    }
    std::signal(SIGXFSZ, Ended);
    EXPECT_EQ(Writing(), "");
    EXPECT_EQ(RawCell("Métiers.mdb", "SELECT group_concat(Nom) FROM T"), "Or,Bois");
}

TEST(SqliteError, AFullFileLeavesTheDiskFullSentence)
{
    SQLite::Database Base(":memory:", SQLite::OPEN_READWRITE);
    Base.exec("PRAGMA max_page_count = 2; CREATE TABLE T (Nom TEXT)");
    EXPECT_EQ(SentenceOf([&] {
                  Translated("Panier.mdb",
                             [&] { Base.exec("INSERT INTO T VALUES (zeroblob(99999))"); });
              }),
              "Le disque est plein\u00A0: rien n’a été enregistré dans «\u00A0Panier.mdb\u00A0».");
}

} // namespace orvane
