#include "databases/databases.h"
#include "home/feuilles.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

// The catalogue that ships: every entry of every list can be picked, in each realm, without a box
// and without a price left stale.
namespace orvane {

namespace {

// A way down the lists of a screen, and the price that the last pick leaves.
struct Way
{
    const char* Door; // the button of the home screen
    const char* Screen;
    std::vector<const char*> Entries; // of the menu; none for the screen as it opens
    std::vector<const char*> Lists;   // from the first pick down, without those that are hidden
    const char* Price;
};

const Way Ways[] = {
    {"cmd_ArtisanatsManuels",
     "frm_ArtisanatsManuels",
     {"Armurerie", "Couture", "Empennage", "Forge"},
     {"cbo_Produit", "cbo_ProduitDétaillé", "cbo_Objet", "cbo_Degré", "cbo_TypeDégats"},
     "txt_PrixVente"},
    {"cmd_ArtisanatsMagiques",
     "frm_ArtisanatsMagiques",
     {"Alchimie"},
     {"cbo_Produit", "cbo_ProduitDétaillé", "cbo_Objet"},
     "txt_PrixVenteAlchimie"},
    {"cmd_ArtisanatsMagiques",
     "frm_ArtisanatsMagiques",
     {"Arcanes"},
     {"cbo_TypeGemmes", "cbo_SousTypeGemmes", "cbo_DegréGemmes"},
     "txt_ArcanesPrixVenteTotal"},
    {"cmd_ArtisanatsMagiques",
     "frm_ArtisanatsMagiques",
     {"Arcanes"},
     {"cbo_TypeBonus", "cbo_SousTypeBonus", "cbo_DegréBonus"},
     "txt_ArcanesPrixVenteTotal"},
    {"cmd_ArtisanatsSecondaires",
     "frm_ArtisanatsSecondaires",
     {"Bardes", "Carapaçons", "Sacoches"},
     {"cbo_ObjetSecondaire"},
     "txt_SelleriePrixVente"},
    {"cmd_ArtisanatsSecondaires",
     "frm_ArtisanatsSecondaires",
     {"Maroquinerie", "Menuiserie", "Métallurgie", "Tissage"},
     {"cbo_ObjetSecondaire", "cbo_Degré"},
     "txt_Gain"},
};

// The screens that stand behind a product of the manual crafts.
const Way Behind[] = {
    {nullptr, "frm_Archerie", {}, {"cbo_Type", "cbo_Objet"}, "txt_PrixVente"},
    {nullptr, "frm_ArmesLégendaires", {}, {"cbo_Arme", "cbo_Type"}, "txt_PrixVente"},
};

class Boîtes : public Dialogs
{
  public:
    void MsgBox(const std::string& Text) override { Messages.push_back(Text); }
    std::string InputBox(const std::string&, const std::string&) override { return {}; }
    std::optional<Colour> ShowColor() override { return {}; }

    std::vector<std::string> Messages;
};

class Catalogue : public testing::TestWithParam<const char*>
{
  protected:
    Catalogue() : App(Dossier.Path(), Reçues)
    {
        tools::MakeDatabases(ORVANE_DATA, Dossier.Path(), false);
        for (const char* Pictures : {"Interface", "Objets"})
            std::filesystem::create_directory_symlink(
                std::filesystem::path(ORVANE_FOLDER) / Pictures, Dossier / Pictures);
        EnregistrerFeuilles(App);
        Démarrer(App);
        Cliquer("frm_Accueil", (std::string("img_") + GetParam()).c_str());
        Reçues.Messages.clear(); // the skins' pictures aren't there
    }

    template <class Type>
    Type& Le(const char* Screen, const char* Control)
    {
        return dynamic_cast<Type&>(App.Feuilles.Touch(Screen).Find(Control));
    }

    void Cliquer(const char* Screen, const char* Control)
    {
        App.Door.Click(Le<PictureControl>(Screen, Control));
    }

    void Choisir(const Way& Along, std::size_t Depth, const std::string& Entry)
    {
        App.Door.Pick(Le<ComboBox>(Along.Screen, Along.Lists[Depth]), Entry);
    }

    // Picks each entry of a list in turn and goes on below it. Picks are those above it.
    void Descendre(const Way& Along, const std::string& Menu, std::vector<std::string> Picks = {})
    {
        const std::size_t Depth = Picks.size();
        if (Depth > 0)
            Vérifier(Along, Menu + Picks.back());
        if (Depth == Along.Lists.size() || !HasList(Along, Depth))
            return;
        auto& List = Le<ComboBox>(Along.Screen, Along.Lists[Depth]);
        EXPECT_FALSE(List.Items().empty()) << Menu << List.Name();
        for (const std::string& Entry : std::vector(List.Items())) {
            Choisir(Along, Depth, Entry);
            if (&List.Owner() != App.Feuilles.Active()) {
                VisiterDerrière(); // the way back begins everything afresh
                App.Door.ClickItem(Le<SideMenu>(Along.Screen, "Bar_Menus"), Menu);
                for (std::size_t i = 0; i < Depth; ++i)
                    Choisir(Along, i, Picks[i]);
                continue;
            }
            Picks.push_back(Entry);
            Descendre(Along, Menu, Picks);
            Picks.pop_back();
        }
    }

    // Another screen has opened: it's walked and closed.
    void VisiterDerrière()
    {
        const std::string Name = App.Feuilles.Active()->Name();
        const auto Found =
            std::ranges::find_if(Behind, [&](const Way& Each) { return Each.Screen == Name; });
        ASSERT_NE(Found, std::end(Behind)) << Name;
        Descendre(*Found, Name);
        Cliquer(Found->Screen, "cmd_Retour");
    }

    // Some objects have no degrees, and the damage types belong to the two highest ones.
    bool HasList(const Way& Along, std::size_t Depth)
    {
        const auto& List = Le<ComboBox>(Along.Screen, Along.Lists[Depth]);
        if (List.Name() != "cbo_TypeDégats" || !List.Visible)
            return List.Visible;
        const std::string& Degree = Le<ComboBox>(Along.Screen, "cbo_Degré").Text;
        return Degree == "en dyr" || Degree == "en arcania";
    }

    // What the crafter now sees has a price to go by, and the pictures that it names.
    void Vérifier(const Way& Along, const std::string& Object)
    {
        ++Vus;
        EXPECT_FALSE(Le<TextBox>(Along.Screen, Along.Price).Stale()) << Object;
        for (const std::string& Message : Reçues.Messages)
            ADD_FAILURE() << Object << ": " << Message;
        Reçues.Messages.clear();
    }

    TempFolder Dossier;
    Boîtes Reçues;
    Application App;
    int Vus = 0;
};

TEST_P(Catalogue, EveryPickOfEveryCraftHasItsPrice)
{
    for (const Way& Each : Ways) {
        Cliquer("frm_Accueil", Each.Door);
        for (const char* Entry : Each.Entries) {
            App.Door.ClickItem(Le<SideMenu>(Each.Screen, "Bar_Menus"), Entry);
            Descendre(Each, Entry);
        }
        Cliquer(Each.Screen, "cmd_Retour");
    }
    EXPECT_GT(Vus, 3500);
}

INSTANTIATE_TEST_SUITE_P(EachRealm, Catalogue, testing::Values("Valdren", "Corvane", "Brenmoor"));

} // namespace

} // namespace orvane
