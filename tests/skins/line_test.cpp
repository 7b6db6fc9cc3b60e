#include "app/feuille.h"
#include "catalogue/catalogue.h"
#include "catalogue/maker.h"
#include "skins/capture.h"
#include "skins/layout.h"
#include "support/scripted_dialogs.h"
#include "support/temp_folder.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

// Lines, which no screen has yet: their ends travel in the columns of a box, crosswise.
namespace orvane {

namespace {

class frm_Trait : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_Trait";

    explicit frm_Trait(Application& App) : Feuille(App, ScreenName, "Trait") {}

    std::vector<int> Ends() const
    {
        return {lin_Trait.X1, lin_Trait.X2, lin_Trait.Y1, lin_Trait.Y2};
    }

    Line NAMED(lin_Trait);
};

TEST(Lines, ALayoutSetsTheEndsAndACaptureGivesThemBack)
{
    const TempFolder Folder;
    DatabaseMaker(Folder / "Skin.mdb", SkinDefinition()).Finish();
    SQLite::Database((Folder / "Skin.mdb").string(), SQLite::OPEN_READWRITE)
        .exec("INSERT INTO RésolutionCommune VALUES ('frm_Trait', 'O');"
              "CREATE TABLE frm_Trait_Commun AS SELECT * FROM Temp;"
              "INSERT INTO frm_Trait_Commun (NomControl) VALUES ('frm_Trait');"
              "INSERT INTO frm_Trait_Commun (NomControl, ChangeLeftTop, ChangeWidth, ChangeColor, "
              "[Left], Top, Width, Height, Color) "
              "VALUES ('lin_Trait', 'O', 'N', 'O', 10, 20, 30, 40, 255)");

    ScriptedDialogs Boxes;
    Application App(Folder.Path(), Boxes);
    App.Globals.CheminBaseSkin = App.Chemin("/Skin.mdb");
    App.Feuilles.Register("frm_Trait", [&] { return std::make_unique<frm_Trait>(App); });
    auto& Feuille = App.Feuilles.Get<frm_Trait>();
    AppliquerRésolution(App, 0, "1024 x 768");
    EXPECT_EQ(Feuille.Ends(), (std::vector{10, 20, 30, 40}));
    EXPECT_EQ(Feuille.lin_Trait.Left(), 0);
    EXPECT_EQ(Feuille.lin_Trait.BorderColor(), Black) << "no layout colours a line";

    Boxes.ExpectMsgBox("N°0 - frm_Trait");
    Boxes.AnswerInputBox("Quelle feuille ?", "0");
    Boxes.ExpectMsgBox("Récupération de frm_Trait effectuée.");
    Boxes.OnBox = [&, Up = 0]() mutable { // nobody is held up while the last box is up
        if (++Up == 3)
            SQLite::Database((Folder / "Skin.mdb").string(), SQLite::OPEN_READWRITE)
                .exec("BEGIN EXCLUSIVE");
    };
    RécupérerRésolution(App);
    const Database Base = App.Bases.Open(Folder / "Skin.mdb");
    const Recordset Captured =
        Base.OpenRecordset("SELECT * FROM Temp WHERE NomControl = 'lin_Trait'");
    std::string Row;
    for (const char* Column : {"Left", "Top", "Width", "Height", "ChangeLeftTop", "ChangeWidth",
                               "ChangeHeight", "ChangeColor", "ChangeFontSize"})
        Row += Captured.TextOrEmpty(Column) + ";";
    EXPECT_EQ(Row, "10;20;30;40;O;N;N;O;;");
}

} // namespace

} // namespace orvane
