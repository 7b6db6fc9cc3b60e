#include "store/small_store.h"

#include <array>

namespace orvane {

// A list that points twice into one table of materials, sometimes into nothing, and a linked table.
const char* const Tables = R"(
    CREATE TABLE Mats (Num INTEGER PRIMARY KEY, Nom TEXT);
    INSERT INTO Mats VALUES (1, 'Fer'), (2, 'Bois');
    CREATE TABLE Types (Num INTEGER PRIMARY KEY, Nom TEXT);
    INSERT INTO Types VALUES (1, 'à l''arc'), (2, 'Épée');
    CREATE TABLE Objets (Num INTEGER PRIMARY KEY, Nom TEXT, Type INTEGER, Mat1 INTEGER, Mat2 INTEGER);
    INSERT INTO Objets VALUES (1, 'Zibeline', 2, 2, 1), (2, 'Arc', 1, 1, 9),
    (3, 'zibeline', 1, 1, 2), (4, 'Lame', 1, NULL, 1), (5, 'Sans type', 7, 1, 1);
    CREATE TABLE SavedQueries (Nom TEXT, Texte TEXT);
    INSERT INTO SavedQueries VALUES
    ('R_Objets', 'SELECT Objets.Nom, Types.Nom, Mats.Nom, Mats_1.Nom, Objets.Mat2
     FROM ((Objets INNER JOIN Types ON Objets.Type = Types.Num)
     LEFT JOIN Mats ON Objets.Mat1 = Mats.Num) LEFT JOIN Mats AS Mats_1 ON Objets.Mat2 = Mats_1.Num'),
    ('R_Arcs', 'SELECT Objets.Nom, Types.Nom FROM Objets INNER JOIN Types ON Objets.Type = Types.Num
     WHERE Types.Num = 1 AND Objets.Mat1 = 1'),
    ('R_Trou', 'SELECT Objets.Nom, Objets.Prix FROM Objets'),
    ('R_Texte', 'SELECT Objets.Nom FROM Objets WHERE Objets.Nom = "Arc"'),
    ('R_Cercle', 'SELECT R_Cercle.Nom FROM R_Cercle INNER JOIN Objets ON Objets.Nom = Objets.Nom'),
    ('R_Seconde', 'SELECT R_Arcs.Nom FROM R_Absente INNER JOIN R_Arcs ON R_Arcs.Nom = R_Arcs.Nom'),
    ('R_Liés', 'SELECT Objets.Nom, Liée.Nom FROM Objets LEFT JOIN Liée ON Objets.Type = Liée.Num
     WHERE 4 > Objets.Num');
    CREATE TABLE LinkedTables (Nom TEXT, Connect TEXT, Source TEXT);
    INSERT INTO LinkedTables VALUES ('Liée', '', 'Liste'))";

class SourceTest : public StoreTest
{
  protected:
    SourceTest()
    {
        const std::string Table = "CREATE TABLE Liste (Num INTEGER PRIMARY KEY, Nom TEXT);"
                                  "INSERT INTO Liste VALUES (1, ";
        Raw("commun.mdb", Table + "'Teinture'), (2, 'Élixir')");
        Raw("autre.mdb", Table + "'Autre')");
        Raw("a.mdb", "UPDATE LinkedTables SET Connect = '" + ConnectTo("commun.mdb") + "'");
    }

    std::string ConnectTo(std::string_view Name) const
    {
        return ";DATABASE=" + (Folder / Name).string();
    }

    // What the linked table gives for three objects.
    std::string Linked() { return Walk(File, "SELECT * FROM R_Liés", "Liée.Nom"); }

    const std::filesystem::path File = Raw("a.mdb", Tables);
};

TEST_F(SourceTest, ASavedQueryJoinsItsTablesInTheOrderOfTheFirst)
{
    const std::array<const char*, 3> Rows[] = {
        {"SELECT * FROM R_Objets", "Objets.Nom", "Zibeline|Arc|zibeline|Lame"},
        {"SELECT * FROM R_Objets", "Mats.Nom", "Bois|Fer|Fer|"},
        {"SELECT * FROM R_Objets", "Mats_1.Nom", "Fer||Bois|Fer"},
        {"SELECT * FROM R_Objets", "Mat2", "1|9|2|1"}, // a short name that only one column has
        {"SELECT * FROM r_objets WHERE Types.Nom = \"À L'ARC\"", "Objets.Nom", "Arc|zibeline|Lame"},
        {"SELECT DISTINCT Objets.Nom FROM R_Objets", "Nom", "Zibeline|Arc|Lame"},
        {"SELECT Objets.Nom FROM R_Objets ORDER BY Objets.Nom", "Nom",
         "Arc|Lame|zibeline|Zibeline"},
        {"SELECT Objets.Nom FROM R_Arcs", "Objets.Nom", "Arc|zibeline"}};
    for (const auto& [Sql, Column, Cells] : Rows)
        EXPECT_EQ(Walk(File, Sql, Column), Cells) << Sql << ", " << Column;
}

TEST_F(SourceTest, WhatASavedQueryCannotGiveFails)
{
    const Database Base = TheStore.Open(File);
    Recordset Rows = Base.OpenRecordset("SELECT * FROM R_Objets");
    EXPECT_FAILS(DatabaseIncomplete, Rows.Text("Nom")); // of several columns
    EXPECT_FAILS(DatabaseIncomplete, Base.OpenRecordset("SELECT Nom FROM R_Objets"));
    EXPECT_FAILS(Program, Rows.Edit());
    EXPECT_FAILS(Program, Base.Execute("DELETE * FROM R_Objets"));
    for (const auto& [Query, Missing] :
         {std::pair{"R_Seconde", "R_Absente"}, {"R_Trou", "Objets.Prix"}})
        for (int Time : {1, 2})
            EXPECT_EQ(
                SentenceOf([&] { Base.OpenRecordset("SELECT * FROM " + std::string(Query)); }),
                "La base de données est incomplète\u00A0: il manque «\u00A0" +
                    std::string(Missing) + "\u00A0» dans «\u00A0a.mdb\u00A0».")
                << "time " << Time;
    EXPECT_FAILS(Store, Base.OpenRecordset("SELECT * FROM R_Cercle"));
    EXPECT_FAILS(Store, Base.OpenRecordset("SELECT * FROM R_Texte"));
}

TEST_F(SourceTest, ALinkedTableIsReadDirectlyAndThroughASavedQuery)
{
    const Database Base = TheStore.Open(File);
    EXPECT_EQ(Walk(Base, "SELECT * FROM Mats", "Nom"), "Fer|Bois") << "reading has begun";
    EXPECT_EQ(Linked(), "Élixir|Teinture|Teinture");
    EXPECT_EQ(Walk(Base, "SELECT Nom FROM Liée WHERE Nom = \"élixir\"", "Nom"), "Élixir");
    EXPECT_FAILS(Program, Base.OpenRecordset("SELECT * FROM Liée").Edit());
}

TEST_F(SourceTest, ALinkThatMovedIsFoundAgainOnceItIsSet)
{
    const Database Base = TheStore.Open(File);
    EXPECT_EQ(Linked(), "Élixir|Teinture|Teinture");
    EXPECT_EQ(Base.LinkConnect("LIÉE"), ConnectTo("commun.mdb"));
    std::filesystem::create_directory(Folder / "été");
    std::filesystem::rename(Folder / "autre.mdb", Folder / "été/autre.mdb");
    Base.SetLinkConnect("Liée", ConnectTo("autre.mdb"));
    EXPECT_FAILS(DatabaseMissing, Base.RefreshLink("Liée"));
    EXPECT_EQ(SentenceOf([&] { Linked(); }),
              "La base de données «\u00A0autre.mdb\u00A0» est introuvable.\n"
              "Replacez le fichier à côté du programme.");
    EXPECT_FALSE(std::filesystem::exists(Folder / "autre.mdb")) << "looking makes no file";
    Base.SetLinkConnect("Liée", ConnectTo("été/autre.mdb"));
    Base.RefreshLink("Liée");
    EXPECT_EQ(Linked(), "|Autre|Autre");
}

TEST_F(SourceTest, AnUnknownLinkOrOneToADamagedFileFails)
{
    const Database Base = TheStore.Open(File);
    EXPECT_FAILS(DatabaseIncomplete, Base.LinkConnect("Absent"));
    EXPECT_FAILS(DatabaseIncomplete, Base.SetLinkConnect("Absent", "x"));
    EXPECT_FAILS(DatabaseIncomplete, Base.RefreshLink("Absent"));
    Folder.Write("commun.mdb", std::string(4096, 'x'));
    EXPECT_FAILS(NotADatabase, Base.RefreshLink("Liée"));
    for (const char* Content : {"", "du texte"}) {
        Folder.Write("commun.mdb", Content);
        EXPECT_FAILS(NotADatabase, Base.RefreshLink("Liée"));
    }
    std::filesystem::remove(Folder / "commun.mdb");
    std::filesystem::create_directory(Folder / "commun.mdb");
    EXPECT_FAILS(NotADatabase, Base.RefreshLink("Liée"));
    std::filesystem::remove(Folder / "commun.mdb");
    Raw("commun.mdb", "CREATE TABLE Autre (Num INTEGER)");
    EXPECT_EQ(SentenceOf([&] { Base.RefreshLink("Liée"); }),
              "La base de données est incomplète\u00A0: il manque «\u00A0Liste\u00A0» dans "
              "«\u00A0commun.mdb\u00A0».");
}

TEST_F(SourceTest, TheFileThatIsWrongIsNamedWhenItIsTheLinkedOne)
{
    const auto Told = [&] { return SentenceOf([&] { Linked(); }); };
    const auto About = [](FailureKind Kind, const char* File) {
        return Failure(Kind, File).Sentence();
    };
    Raw("commun.mdb", "WITH RECURSIVE n(i) AS (SELECT 3 UNION ALL SELECT i + 1 FROM n LIMIT 2000) "
                      "INSERT INTO Liste SELECT i, 'ligne ' || i FROM n");
    EXPECT_EQ(Told(), "");
    for (const char* Name : {"commun.mdb", "a.mdb"}) {
        SQLite::Database Other((Folder / Name).string(), SQLite::OPEN_READWRITE);
        Other.exec("BEGIN EXCLUSIVE");
        EXPECT_EQ(Told(), About(FailureKind::DatabaseLocked, Name));
    }
    EXPECT_EQ(Told(), "") << "free again";
    for (const char* Name : {"commun.mdb", "a.mdb"}) { // but for the first page
        const std::filesystem::path Whole = Folder / "entier.mdb";
        std::filesystem::copy_file(Folder / Name, Whole);
        const auto Size = std::filesystem::file_size(Whole);
        std::filesystem::resize_file(Folder / Name, 4096);
        std::filesystem::resize_file(Folder / Name, Size);
        EXPECT_EQ(Told(), About(FailureKind::DatabaseUnreadable, Name));
        std::filesystem::rename(Whole, Folder / Name);
    }
    Raw("commun.mdb", "ALTER TABLE Liste RENAME COLUMN Nom TO Mot");
    EXPECT_EQ(Told(),
              Failure(FailureKind::DatabaseIncomplete, "Liée.Nom", {}, "commun.mdb").Sentence());
}

TEST_F(SourceTest, ALinkLeadsNowhereOutsideTheFolder)
{
    const TempFolder Elsewhere;
    std::filesystem::copy_file(Folder / "autre.mdb", Elsewhere / "autre.mdb");
    const Database Base = TheStore.Open(File);
    std::filesystem::create_directory(Folder / "Skins");
    std::filesystem::create_symlink(Elsewhere.Path(), Folder / "Skins/dehors");
    for (const std::filesystem::path& Path :
         {Folder / "Skins/dehors/autre.mdb", Elsewhere / "autre.mdb",
          Folder / ".." / Elsewhere.Path().filename() / "autre.mdb",
          std::filesystem::path("/absente/autre.mdb")}) {
        Base.SetLinkConnect("Liée", ";DATABASE=" + Path.string());
        EXPECT_EQ(SentenceOf([&] { Base.RefreshLink("Liée"); }),
                  Failure(FailureKind::OutsideFolder, "autre.mdb").Sentence())
            << Path;
    }
}

TEST_F(SourceTest, ALinkedFileThatWasReplacedIsNoticedAtTheNextOpening)
{
    EXPECT_EQ(Linked(), "Élixir|Teinture|Teinture");
    std::filesystem::rename(Folder / "autre.mdb", Folder / "commun.mdb");
    EXPECT_EQ(Linked(), "|Autre|Autre");
}

TEST_F(SourceTest, ANestedWriteToTheLinkedFileDoesNotWaitForItsCallersReading)
{
    const Database Outer = TheStore.Open(File);
    EXPECT_EQ(Linked(), "Élixir|Teinture|Teinture");
    const Database Nested = TheStore.Open(Folder / "commun.mdb");
    Recordset Rows = Nested.OpenRecordset("SELECT * FROM Liste");
    EXPECT_EQ(SentenceOf([&] { Put(Rows, "Nom", "Encre"); }), "");
    EXPECT_EQ(Linked(), "Élixir|Encre|Encre");
}

} // namespace orvane
