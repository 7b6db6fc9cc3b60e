#include "catalogue/maker.h"
#include "databases/databases.h"
#include "home/feuilles.h"
#include "makers/jet.h"
#include "makers/jet_files.h"
#include "sample/catalogue_walk.h"
#include "scenario/appearance.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace orvane {

namespace fs = std::filesystem;

namespace {

struct Data
{
    std::string Jet;  // among the Jet files
    std::string File; // in the program's folder
    const DatabaseDefinition& Definition;
};

std::vector<Data> Example()
{
    std::vector<Data> Result{
        {"exemple/Config", ConfigFile, ConfigDefinition()},
        {"exemple/Panier", PanierFile, PanierDefinition()},
        {"exemple/Artisanat_Alchimie", AlchimieFile, AlchimieDefinition()},
        {"exemple/Parchemin", "Skins/Parchemin/Parchemin.mdb", SkinDefinition()}};
    for (const std::string& Royaume : Royaumes())
        Result.push_back(
            {"exemple/Artisanat_" + Royaume, RoyaumeFile(Royaume), RoyaumeDefinition()});
    return Result;
}

// A listed cell as somebody would write it into one of our files.
Value Written(std::string Cell)
{
    if (Cell == "-")
        return {};
    if (Cell.starts_with('\''))
        return Cell.substr(1, Cell.size() - 2);
    std::ranges::replace(Cell, '.', ',');
    return Cell;
}

// The listed rows in a file of ours that never was a Jet file.
void MakePlain(const Data& Given, const fs::path& Folder)
{
    DatabaseMaker Maker(Folder / Given.File, Given.Definition);
    for (const auto& [Name, Content] : TablesToldOf(Given.Jet)) {
        const auto Known = std::ranges::find(Given.Definition.Tables, Name, &TableDefinition::Name);
        const bool IsLayout = Known == Given.Definition.Tables.end();
        const TableDefinition Table = IsLayout ? LayoutTable(Name) : *Known;
        if (IsLayout)
            Maker.AddTable(Table);
        for (const auto& Cells : Content.Rows) {
            std::vector<Value> Row;
            for (const std::string& Cell : Cells)
                Row.push_back(Written(Cell));
            Maker.Insert(Table, Content.Columns, Row);
        }
    }
    Maker.Finish();
}

class SilentDialogs : public Dialogs
{
  public:
    void MsgBox(const std::string& Text) override { Said += Text + "\n"; }
    std::string InputBox(const std::string&, const std::string&) override { return {}; }
    std::optional<Colour> ShowColor() override { return {}; }

    std::string Said;
};

// What a run shows from its start on, through every pick of a realm.
std::vector<std::string> Evening(const fs::path& Folder, const std::string& Royaume)
{
    SilentDialogs Boxes;
    Application App(Folder, Boxes);
    EnregistrerFeuilles(App);
    Démarrer(App);
    const scenario::Appearance Eyes(Folder);
    std::vector<std::string> Seen;
    const auto Look = [&](const Screen& Which, const std::string& Moment) {
        std::string& Text = Seen.emplace_back(Moment + ", " + Which.Name());
        for (const Control* Each : Which.Controls())
            Text += "\n" + Each->Name() + ": " + Eyes.Of(*Each);
    };
    for (int i = 0; i < App.Feuilles.Count(); ++i) {
        const Screen& Which = App.Feuilles[i];
        Look(Which, "start");
        for (const Control* Each : Which.Controls())
            for (const char* Side :
                 {"gauche", "haut", "largeur", "hauteur", "police", "encre", "fond"})
                Seen.back() += "\n" + Each->Name() + "." + Side + ": " + Eyes.Of(*Each, Side);
    }
    CatalogueWalk(App, [&](const Screen& Which, const TextBox&, const std::string& Object) {
        Look(Which, Object);
    }).GoThrough(Royaume);
    Screen& Orders = App.Feuilles.Touch("frm_Panier");
    Orders.Show();
    auto& Names = dynamic_cast<ComboBox&>(Orders.Find("cbo_Commandes"));
    for (const std::string& Order : std::vector(Names.Items())) {
        App.Door.Pick(Names, Order);
        Look(Orders, Order);
        for (const Control* Each : Orders.Controls())
            if (dynamic_cast<const ListControl*>(Each) != nullptr)
                Seen.back() += "\n" + Each->Name() + ": " + Eyes.Of(*Each, "liste");
    }
    Seen.push_back(Boxes.Said);
    return Seen;
}

class JetScreens : public testing::TestWithParam<const char*>
{
};

TEST_P(JetScreens, ShowWhatTheyShowOfTheSameRowsInFilesOfOurs)
{
    const TempFolder Imported;
    const TempFolder Plain;
    for (const TempFolder* Each : {&Imported, &Plain})
        tools::MakeDatabases(ORVANE_DATA, Each->Path(), false);
    for (const Data& Each : Example()) {
        fs::copy_file(JetFile(Each.Jet), Imported / Each.File,
                      fs::copy_options::overwrite_existing);
        MakePlain(Each, Plain.Path());
    }
    const auto Found = FichiersJet(Imported.Path());
    EXPECT_EQ(Found.size(), Example().size());
    for (const fs::path& Each : Found)
        ImporterJet(Each);
    const auto Wanted = Evening(Plain.Path(), GetParam());
    const auto Given = Evening(Imported.Path(), GetParam());
    EXPECT_GT(Wanted.size(), 3500U);
    ASSERT_EQ(Given.size(), Wanted.size());
    for (std::size_t i = 0; i < Wanted.size(); ++i)
        ASSERT_EQ(Given[i], Wanted[i]);
}

INSTANTIATE_TEST_SUITE_P(EachRealm, JetScreens, testing::Values("Valdren", "Corvane", "Brenmoor"));

} // namespace

} // namespace orvane
