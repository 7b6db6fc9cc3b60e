#include "catalogue/upgrade.h"
#include "store/small_store.h"

namespace orvane {

class UpgradeTest : public StoreTest
{
  protected:
    // A basket of before, in which somebody has been at work.
    const std::filesystem::path File =
        Raw("Panier.mdb",
            "CREATE TABLE PanierGlobal (Num INTEGER PRIMARY KEY, Nom TEXT, Nb INTEGER, "
            "\"PrixCoûtant\" DECIMAL(19,4), PrixVente DECIMAL(19,4), Royaume TEXT, Acheteur TEXT, "
            "Remarque TEXT NOT NULL DEFAULT 'rien');"
            "CREATE INDEX PanierGlobal_Acheteur ON PanierGlobal (Acheteur COLLATE NOCASE);"
            "CREATE TRIGGER Noter AFTER INSERT ON PanierGlobal BEGIN INSERT INTO Journal VALUES "
            "(new.Nom); END;"
            "CREATE TABLE Journal (Texte TEXT); CREATE VIEW Noms AS SELECT Nom FROM PanierGlobal;"
            "INSERT INTO PanierGlobal (Num, Nom, \"PrixCoûtant\") VALUES (7, 'Cape', "
            "'922337203685477,5807'), (3, 'Arc', 12.5)");

    std::string Add(const std::string& Name) const
    {
        Raw("Panier.mdb", "INSERT INTO PanierGlobal (Nom) VALUES ('" + Name + "')");
        return RawCell("Panier.mdb", "SELECT max(Num) || Remarque FROM PanierGlobal");
    }
};

TEST_F(UpgradeTest, NumbersAreNotGivenTwiceAndAllElseStays)
{
    BringUpToDate(File, PanierDefinition());
    EXPECT_EQ(RawCell("Panier.mdb",
                      "SELECT group_concat(Num || Nom || \"PrixCoûtant\" || Remarque) "
                      "FROM PanierGlobal"),
              "3Arc12.5rien,7Cape922337203685477,5807rien");
    EXPECT_EQ(RawCell("Panier.mdb",
                      "SELECT group_concat(name) FROM (SELECT name FROM sqlite_schema "
                      "WHERE name NOT LIKE 'sqlite%' ORDER BY name)"),
              "Journal,Noms,Noter,PanierGlobal,PanierGlobal_Acheteur");
    EXPECT_EQ(RawCell("Panier.mdb", "SELECT count(*) FROM Journal"), "2") << "copying is no event";
    EXPECT_EQ(RawCell("Panier.mdb", "SELECT group_concat(Nom) FROM Noms"), "Arc,Cape");
    EXPECT_EQ(Add("Lance"), "8rien");
    Raw("Panier.mdb", "DELETE FROM PanierGlobal WHERE Num = 8");
    EXPECT_EQ(Add("Dague"), "9rien");
    const auto Before = std::filesystem::last_write_time(File);
    BringUpToDate(File, PanierDefinition());
    EXPECT_EQ(std::filesystem::last_write_time(File), Before) << "once only";
}

TEST_F(UpgradeTest, AFileThatCannotBeRebuiltNowIsLeftAsItIs)
{
    {
        SQLite::Database Other(File.string(), SQLite::OPEN_READWRITE);
        Other.exec("BEGIN IMMEDIATE");
        BringUpToDate(File, PanierDefinition());
    }
    EXPECT_EQ(RawCell("Panier.mdb", "PRAGMA user_version"), "0");
    const auto Text = Folder.Write("Config.mdb", "ceci n'est pas une base");
    BringUpToDate(Text, ConfigDefinition());
    BringUpToDate(Folder / "absent.mdb", ConfigDefinition());
    EXPECT_FALSE(std::filesystem::exists(Folder / "absent.mdb"));
}

TEST_F(UpgradeTest, ATableThatIsMissingIsMadeOnceAndNothingElse)
{
    const TableDefinition& Wanted = MatériauxDuPanier();
    EnsureTable(File, Wanted);
    Raw("Panier.mdb", "INSERT INTO PanierMatériaux (Ligne) VALUES (7)");
    EnsureTable(File, Wanted);
    EXPECT_EQ(RawCell("Panier.mdb", "SELECT Num || '-' || Ligne FROM PanierMatériaux"), "1-7");
    EXPECT_EQ(RawCell("Panier.mdb", "SELECT count(*) FROM PanierGlobal"), "2");
    EXPECT_EQ(RawCell("Panier.mdb", "PRAGMA user_version"), "0");
    Raw("Panier.mdb", "DROP TABLE PanierMatériaux; PRAGMA user_version = 99");
    EXPECT_FAILS(DatabaseNewer, EnsureTable(File, Wanted));
}

} // namespace orvane
