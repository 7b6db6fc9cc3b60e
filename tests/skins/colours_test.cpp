#include "catalogue/catalogue.h"
#include "catalogue/maker.h"
#include "skins/colours.h"
#include "support/scripted_dialogs.h"
#include "support/temp_folder.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

namespace orvane {

TEST(SkinColours, AreTheRowsThatTellOneAndNoneWithoutTheTable)
{
    const TempFolder Folder;
    const auto File = Folder / "Skin.mdb";
    DatabaseMaker(File, SkinDefinition()).Finish();
    SQLite::Database(File.string(), SQLite::OPEN_READWRITE)
        .exec("INSERT INTO Palette VALUES ('Encre', 'F1E6d2'), ('Papier', '#32394'), "
              "('Creux', 'rouge!'), ('Choix', NULL), ('Bulle', '1a21299')");
    ScriptedDialogs Boxes;
    Application App(Folder.Path(), Boxes);
    std::map<std::string, Colour> Told;
    App.OnColours = [&] { Told = App.Couleurs; };
    App.Globals.BaseDonnées2 = App.Bases.Open(File);
    ChargerCouleurs(App);
    EXPECT_EQ(Told, (std::map<std::string, Colour>{{"Encre", RGB(0xF1, 0xE6, 0xD2)}}));
    App.Globals.BaseDonnées2.Empty();
    SQLite::Database(File.string(), SQLite::OPEN_READWRITE).exec("DROP TABLE Palette");
    App.Globals.BaseDonnées2 = App.Bases.Open(File);
    ChargerCouleurs(App);
    EXPECT_TRUE(Told.empty());
}

} // namespace orvane
