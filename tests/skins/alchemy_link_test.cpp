#include "skins/skin_assets.h"
#include "support/expect_fails.h"
#include "support/ordinary_user.h"
#include "support/scripted_dialogs.h"
#include "support/temp_folder.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace orvane {

using std::filesystem::perms;

TEST(AlchemyLink, WhereNothingCanBeWrittenTheRightPathServesTheRun)
{
    const std::pair<perms, perms> Rows[] = {{perms(0555), perms(0777)}, {perms(0777), perms(0555)}};
    for (const auto& [OfFile, OfFolder] : Rows) {
        const TempFolder Folder;
        const auto Raw = [&](const char* Name, const char* Sql) {
            SQLite::Database((Folder / Name).string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
                .exec(Sql);
        };
        Raw("Artisanat_Alchimie.mdb",
            "CREATE TABLE ListeObjets (Num INTEGER PRIMARY KEY, Nom TEXT);"
            "INSERT INTO ListeObjets VALUES (1, 'Essence')");
        Raw("Artisanat_Valdren.mdb",
            "CREATE TABLE LinkedTables (Nom TEXT, Connect TEXT, Source TEXT);"
            "INSERT INTO LinkedTables VALUES ('Alchimie_ListeObjets', "
            "';DATABASE=/ailleurs/Artisanat_Alchimie.mdb', 'ListeObjets')");
        const auto File = Folder / "Artisanat_Valdren.mdb";
        ScriptedDialogs Boxes;
        Application App(Folder.Path(), Boxes);
        const auto LinkedName = [&] {
            return App.Bases.Open(File)
                .OpenRecordset("SELECT * FROM Alchimie_ListeObjets")
                .TextOrEmpty("Nom");
        };
        std::filesystem::permissions(File, OfFile);
        std::filesystem::permissions(Folder.Path(), OfFolder);
        AsOrdinaryUser([&] {
            EXPECT_EQ(SentenceOf([&] { RelierAlchimie(App, "Valdren"); }), "");
            EXPECT_EQ(LinkedName(), "Essence");
        });
        std::filesystem::permissions(Folder.Path(), perms::owner_all);
        std::filesystem::last_write_time(File, std::filesystem::file_time_type::clock::now());
        EXPECT_EQ(LinkedName(), "Essence") << "a connection made anew";
        std::filesystem::permissions(File, perms::owner_all);
        EXPECT_EQ(SQLite::Database(File.string())
                      .execAndGet("SELECT Connect FROM LinkedTables")
                      .getString(),
                  ";DATABASE=/ailleurs/Artisanat_Alchimie.mdb");
    }
}

} // namespace orvane
