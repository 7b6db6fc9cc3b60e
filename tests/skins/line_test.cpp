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
    const TableDefinition Layout = LayoutTable("frm_Trait_Commun");
    DatabaseMaker Maker(Folder / "Skin.mdb", SkinDefinition());
    Maker.Insert(SkinDefinition().Tables[0], {"Nom", "Commun"},
                 {std::string("frm_Trait"), std::string("O")});
    Maker.AddTable(Layout);
    const std::vector<std::string> Columns{
        "Num",  "NomControl", "ChangeLeftTop", "ChangeWidth", "ChangeColor",
        "Left", "Top",        "Width",         "Height",      "Color"};
    const std::string Yes = "O", No = "N";
    Maker.Insert(Layout, Columns,
                 {std::int64_t{1}, std::string("lin_Trait"), Yes, No, Yes, std::int64_t{10},
                  std::int64_t{20}, std::int64_t{30}, std::int64_t{40}, std::int64_t{255}});
    Maker.Insert(Layout, {"Num", "NomControl"}, {std::int64_t{2}, std::string("frm_Trait")});
    Maker.Finish();

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
