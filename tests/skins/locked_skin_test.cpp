#include "app/feuille.h"
#include "catalogue/catalogue.h"
#include "catalogue/maker.h"
#include "skins/layout.h"
#include "skins/skin_assets.h"
#include "support/expect_fails.h"
#include "support/scripted_dialogs.h"
#include "support/temp_folder.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace orvane {

// A skin that is locked between the look at it and its use. No screen is told as unknown, and none
// but the first waits for the lock: it would go on for seconds.
TEST(LockedSkin, EndsAtTheFirstScreenAndNoneIsCalledUnknown)
{
    const TempFolder Folder;
    std::filesystem::create_directories(Folder / "Skins/Grès");
    const auto File = Folder / "Skins/Grès/Grès.mdb";
    DatabaseMaker(File, SkinDefinition()).Finish();
    ScriptedDialogs Boxes; // any box fails
    Application App(Folder.Path(), Boxes);
    int Loaded = 0;
    for (const char* Name : {"frm_Accueil", "frm_Configuration"})
        App.Feuilles.Register(Name, [&, Name] {
            ++Loaded;
            return std::make_unique<Feuille>(App, Name, Name);
        });
    App.Bases.Open(File); // kept open: the lock shows at the first query
    SQLite::Database Other(File.string(), SQLite::OPEN_READWRITE);
    Other.exec("BEGIN EXCLUSIVE");
    EXPECT_FAILS(DatabaseLocked, ChargerSkin(App, "Grès", "1024 x 768"));
    EXPECT_EQ(Loaded, 1);
    App.Feuilles.Touch("frm_Configuration");
    EXPECT_FAILS(DatabaseLocked, AppliquerRésolutionPartout(App, "1024 x 768"));
    App.TellNotices();
}

} // namespace orvane
