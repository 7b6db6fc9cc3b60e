#include "store/small_store.h"

namespace orvane {

const DatabaseDefinition Commune{
    {{"ListeObjets", {{"Num", ColumnType::Key, {}}, {"Nom", ColumnType::Text, {}}}}}, {}, {}};

const DatabaseDefinition Royaume{
    {{"Types",
      {{"Nom", ColumnType::Text, {}}, {"Objet", ColumnType::Reference, "Commun_ListeObjets"}}}},
    {{"R_Types", "SELECT Types.Nom, Commun_ListeObjets.Nom FROM Types LEFT JOIN Commun_ListeObjets "
                 "ON Types.Objet = Commun_ListeObjets.Num"}},
    {{"Commun_ListeObjets", "commun.mdb", "ListeObjets"}}};

class LinkTest : public StoreTest
{
  protected:
    LinkTest()
    {
        Make("commun.mdb", Commune);
        Make("royaume.mdb", Royaume);
        Raw("commun.mdb", "INSERT INTO ListeObjets VALUES (1, 'Teinture'), (2, 'Élixir')");
        Raw("royaume.mdb", "INSERT INTO Types VALUES ('Feu', 2), ('Glace', NULL), ('Air', 1)");
    }

    const std::filesystem::path File = Folder / "royaume.mdb";
    const std::string Query = "SELECT * FROM R_Types";
};

TEST_F(LinkTest, ATableOfAnotherFileIsReadDirectlyAndThroughASavedQuery)
{
    const Database Base = TheStore.Open(File);
    EXPECT_EQ(Walk(Base, "SELECT * FROM Types", "Nom"), "Feu|Glace|Air") << "reading has begun";
    EXPECT_EQ(Walk(Base, Query, "Commun_ListeObjets.Nom"), "Élixir||Teinture");
    EXPECT_EQ(Walk(Base, "SELECT Nom FROM Commun_ListeObjets WHERE Nom = \"élixir\"", "Nom"),
              "Élixir");
    EXPECT_FAILS(Store, Base.OpenRecordset("SELECT * FROM Commun_ListeObjets").Edit());
}

TEST_F(LinkTest, ALinkThatMovedIsFoundAgainOnceItIsSet)
{
    std::filesystem::create_directory(Folder / "été");
    std::filesystem::rename(Folder / "commun.mdb", Folder / "été/commun.mdb");
    const Database Base = TheStore.Open(File);
    EXPECT_EQ(Base.LinkConnect("Commun_ListeObjets"),
              ";DATABASE=" + (Folder / "commun.mdb").string());
    EXPECT_FAILS(DatabaseMissing, Base.RefreshLink("Commun_ListeObjets"));
    EXPECT_EQ(SentenceOf([&] { Base.OpenRecordset(Query); }),
              "La base de données «\u00A0commun.mdb\u00A0» est introuvable.\n"
              "Replacez le fichier à côté du programme.");
    EXPECT_FALSE(std::filesystem::exists(Folder / "commun.mdb")) << "looking makes no file";
    Base.SetLinkConnect("Commun_ListeObjets", ";DATABASE=" + (Folder / "été/commun.mdb").string());
    Base.RefreshLink("Commun_ListeObjets");
    EXPECT_EQ(Walk(Base, Query, "Commun_ListeObjets.Nom"), "Élixir||Teinture");
}

TEST_F(LinkTest, ALinkSetToAnotherFileIsFollowedAfterTheRefresh)
{
    Make("autre.mdb", Commune);
    Raw("autre.mdb", "INSERT INTO ListeObjets VALUES (1, 'Autre')");
    const Database Base = TheStore.Open(File);
    EXPECT_EQ(Walk(Base, Query, "Commun_ListeObjets.Nom"), "Élixir||Teinture");
    Base.SetLinkConnect("Commun_ListeObjets", ";DATABASE=" + (Folder / "autre.mdb").string());
    Base.RefreshLink("Commun_ListeObjets");
    EXPECT_EQ(Walk(Base, Query, "Commun_ListeObjets.Nom"), "||Autre");
}

TEST_F(LinkTest, AnUnknownLinkOrOneToADamagedFileFails)
{
    const Database Base = TheStore.Open(File);
    EXPECT_FAILS(DatabaseIncomplete, Base.LinkConnect("Absent"));
    EXPECT_FAILS(DatabaseIncomplete, Base.RefreshLink("Absent"));
    EXPECT_EQ(Base.LinkConnect("COMMUN_listeobjets"), Base.LinkConnect("Commun_ListeObjets"))
        << "names are found whatever their case";
    Folder.Write("commun.mdb", std::string(4096, 'x'));
    EXPECT_FAILS(NotADatabase, Base.RefreshLink("Commun_ListeObjets"));
    Folder.Write("commun.mdb", "");
    EXPECT_FAILS(DatabaseIncomplete, Base.RefreshLink("Commun_ListeObjets"));
}

TEST_F(LinkTest, ALinkedFileThatWasReplacedIsNoticedAtTheNextOpening)
{
    EXPECT_EQ(Walk(File, Query, "Commun_ListeObjets.Nom"), "Élixir||Teinture");
    Make("neuf.mdb", Commune);
    Raw("neuf.mdb", "INSERT INTO ListeObjets VALUES (2, 'Neuf')");
    std::filesystem::rename(Folder / "neuf.mdb", Folder / "commun.mdb");
    EXPECT_EQ(Walk(File, Query, "Commun_ListeObjets.Nom"), "Neuf||");
}

TEST_F(LinkTest, ANestedWriteToTheLinkedFileDoesNotWaitForItsCallersReading)
{
    const Database Outer = TheStore.Open(File);
    EXPECT_EQ(Walk(Outer, Query, "Commun_ListeObjets.Nom"), "Élixir||Teinture");
    Recordset Rows =
        TheStore.Open(Folder / "commun.mdb").OpenRecordset("SELECT * FROM ListeObjets");
    Rows.Edit();
    Rows.Set("Nom", "Encre");
    EXPECT_EQ(SentenceOf([&] { Rows.Update(); }), "");
    EXPECT_EQ(RawCell("commun.mdb", "SELECT Nom FROM ListeObjets WHERE Num = 1"), "Encre");
}

} // namespace orvane
