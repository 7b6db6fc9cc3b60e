#include "makers/backups.h"
#include "store/small_store.h"

#include <fstream>

namespace orvane {

namespace fs = std::filesystem;

class BackupTest : public StoreTest
{
  protected:
    BackupTest()
    {
        Raw("Panier.mdb", "CREATE TABLE Lignes (Nom TEXT); INSERT INTO Lignes VALUES (0)");
    }

    // A change that a coarse clock can't miss, and a copy of it.
    void ChangeAndCopy(const std::string& Name, const std::string& When)
    {
        Raw("Panier.mdb", "UPDATE Lignes SET Nom = '" + Name + "'");
        fs::last_write_time(File, fs::file_time_type::clock::now() + std::chrono::hours(++Hours));
        Sauvegarder(File, When);
    }

    std::string Copies() const
    {
        std::string Text;
        for (const Copie& Each : CopiesDe(File))
            Text += Each.Quand.substr(8, 5) + "=" + Content(Each.File) + " ";
        return Text;
    }

    static std::string Content(const fs::path& Base)
    {
        return SQLite::Database(Base.string()).execAndGet("SELECT Nom FROM Lignes").getString();
    }

    const fs::path File = Folder / "Panier.mdb";
    int Hours = 0;
};

TEST_F(BackupTest, OneForEachChangeAndTheLastTenOfDifferentDays)
{
    Sauvegarder(File, "2026-11-01 08-00-00");
    Sauvegarder(File, "2026-11-02 08-00-00"); // unchanged
    EXPECT_EQ(Copies(), "01 08=0 ");
    Raw("Config.mdb", "CREATE TABLE Lignes (Nom TEXT)");
    Sauvegarder(Folder / "Config.mdb", "2026-11-30 08-00-00"); // counts for itself
    for (int Day = 2; Day <= 9; ++Day)
        ChangeAndCopy(std::to_string(Day), "2026-11-0" + std::to_string(Day) + " 08-00-00");
    ChangeAndCopy("a", "2026-11-09 09-00-00");
    EXPECT_EQ(Copies(),
              "09 09=a 09 08=9 08 08=8 07 08=7 06 08=6 05 08=5 04 08=4 03 08=3 02 08=2 01 08=0 ");
    ChangeAndCopy("b", "2026-11-10 08-00-00");
    EXPECT_EQ(Copies(),
              "10 08=b 09 09=a 08 08=8 07 08=7 06 08=6 05 08=5 04 08=4 03 08=3 02 08=2 01 08=0 ");
    ChangeAndCopy("c", "2026-11-11 08-00-00");
    EXPECT_EQ(Copies(),
              "11 08=c 10 08=b 09 09=a 08 08=8 07 08=7 06 08=6 05 08=5 04 08=4 03 08=3 02 08=2 ");
}

TEST_F(BackupTest, AWayBackKeepsWhatItReplaces)
{
    Sauvegarder(File, "2026-11-01 08-00-00");
    ChangeAndCopy("1", "2026-11-02 08-00-00");
    Raw("Panier.mdb", "UPDATE Lignes SET Nom = 'now'");
    fs::last_write_time(File, fs::file_time_type::clock::now() + std::chrono::hours(9));
    EXPECT_EQ(Walk(File, "SELECT * FROM Lignes", "Nom"), "now");
    Revenir(CopiesDe(File).back().File, File, "2026-11-03 08-00-00");
    EXPECT_EQ(Walk(File, "SELECT * FROM Lignes", "Nom"), "0"); // also through a kept connection
    EXPECT_EQ(Copies(), "03 08=now 02 08=1 01 08=0 ");
}

TEST_F(BackupTest, ADamagedFileGetsNoCopyAndStaysBesideItsSuccessor)
{
    Sauvegarder(File, "2026-11-01 08-00-00");
    std::ofstream(File) << "no database";
    EXPECT_TRUE(EstAbîmé(File));
    EXPECT_FAILS(NotADatabase, Sauvegarder(File, "2026-11-02 08-00-00"));
    Revenir(CopiesDe(File).front().File, File, "2026-11-02 08-00-00");
    EXPECT_FALSE(EstAbîmé(File));
    EXPECT_EQ(Content(File), "0");
    EXPECT_EQ(fs::file_size(Folder / "Panier.abîmé.mdb"), 11U);
    EXPECT_EQ(Copies(), "01 08=0 ");
    fs::remove(File);
    EXPECT_TRUE(EstAbîmé(File));
    Revenir(CopiesDe(File).front().File, File, "2026-11-02 08-00-00");
    EXPECT_EQ(Content(File), "0");
    // Pages in disorder behind a good header.
    Raw("Panier.mdb", "CREATE TABLE Autres (Nom TEXT)");
    {
        std::fstream Pages(File, std::ios::in | std::ios::out | std::ios::binary);
        Pages.seekp(4096);
        Pages << std::string(200, '\x7f');
    }
    EXPECT_TRUE(EstAbîmé(File));
    Sauvegarder(File, "2026-11-03 08-00-00");
    EXPECT_EQ(Copies(), "01 08=0 ");
}

} // namespace orvane
