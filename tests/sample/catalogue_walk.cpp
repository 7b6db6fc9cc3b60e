#include "sample/catalogue_walk.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace orvane {

// A way down the lists of a screen, and the price that the last pick leaves.
struct CatalogueWalk::Way
{
    const char* Door; // the button of the home screen
    const char* Screen;
    std::vector<const char*> Entries; // of the menu; none for the screen as it opens
    std::vector<const char*> Lists;   // from the first pick down, without those that are hidden
    const char* Price;
};

const std::vector<CatalogueWalk::Way>& CatalogueWalk::Ways()
{
    static const std::vector<Way> Table{
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
    return Table;
}

// The screens that stand behind a product of the manual crafts.
const std::vector<CatalogueWalk::Way>& CatalogueWalk::Behind()
{
    static const std::vector<Way> Table{
        {nullptr, "frm_Archerie", {}, {"cbo_Type", "cbo_Objet"}, "txt_PrixVente"},
        {nullptr, "frm_ArmesLégendaires", {}, {"cbo_Arme", "cbo_Type"}, "txt_PrixVente"},
    };
    return Table;
}

void CatalogueWalk::GoThrough(const std::string& Royaume)
{
    Cliquer("frm_Accueil", ("img_" + Royaume).c_str());
    for (const Way& Each : Ways()) {
        Cliquer("frm_Accueil", Each.Door);
        for (const char* Entry : Each.Entries) {
            App.Door.ClickItem(Le<SideMenu>(Each.Screen, "Bar_Menus"), Entry);
            Descendre(Each, Entry);
        }
        Cliquer(Each.Screen, "cmd_Retour");
    }
}

void CatalogueWalk::Cliquer(const char* Screen, const char* Control)
{
    App.Door.Click(Le<PictureControl>(Screen, Control));
}

void CatalogueWalk::Choisir(const Way& Along, std::size_t Depth, const std::string& Entry)
{
    App.Door.Pick(Le<ComboBox>(Along.Screen, Along.Lists[Depth]), Entry);
}

void CatalogueWalk::Descendre(const Way& Along, const std::string& Menu,
                              std::vector<std::string> Picks)
{
    const std::size_t Depth = Picks.size();
    if (Depth > 0)
        AfterPick(App.Feuilles.Touch(Along.Screen), Le<TextBox>(Along.Screen, Along.Price),
                  Menu + Picks.back());
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

void CatalogueWalk::VisiterDerrière()
{
    const std::string Name = App.Feuilles.Active()->Name();
    const auto Found =
        std::ranges::find_if(Behind(), [&](const Way& Each) { return Each.Screen == Name; });
    ASSERT_NE(Found, Behind().end()) << Name;
    Descendre(*Found, Name);
    Cliquer(Found->Screen, "cmd_Retour");
}

bool CatalogueWalk::HasList(const Way& Along, std::size_t Depth)
{
    const auto& List = Le<ComboBox>(Along.Screen, Along.Lists[Depth]);
    if (List.Name() != "cbo_TypeDégats" || !List.Visible)
        return List.Visible;
    const std::string& Degree = Le<ComboBox>(Along.Screen, "cbo_Degré").Text;
    return Degree == "en dyr" || Degree == "en arcania";
}

} // namespace orvane
