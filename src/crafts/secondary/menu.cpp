#include "app/trades.h"
#include "base/table.h"
#include "basket/orders.h"
#include "crafts/common/craft_menu.h"
#include "crafts/secondary/frm_artisanats_secondaires.h"
#include "settings/frm_configuration.h"
#include "toolkit/visibility.h"
#include "toolkit/writing.h"

#include <array>

// The menu, and the two modes that its entries lead to: objects for horses, and recycling.
namespace orvane {

namespace {

constexpr std::array Recyclages{"Maroquinerie", "Menuiserie", "Métallurgie", "Tissage"};

// What a trade makes for horses.
struct ObjetDeSellerie
{
    const char* Entrée; // of the menu
    const char* Métier;
};

constexpr std::array Selleries{
    ObjetDeSellerie{"Bardes", "Métallurgie"},
    ObjetDeSellerie{"Carapaçons", "Tissage"},
    ObjetDeSellerie{"Sacoches", "Maroquinerie"},
};

std::vector<SideMenu::Item> EntréesRecyclage()
{
    std::vector<SideMenu::Item> Entrées;
    for (const char* Each : Recyclages)
        Entrées.push_back(EntréeMétier(Each));
    return Entrées;
}

std::vector<SideMenu::Item> EntréesSellerie()
{
    std::vector<SideMenu::Item> Entrées;
    for (const ObjetDeSellerie& Each : Selleries)
        Entrées.push_back({Each.Entrée, Each.Entrée, EntréeMétier(Each.Métier).Icon,
                           std::string(Each.Métier) + "."});
    return Entrées;
}

} // namespace

void frm_ArtisanatsSecondaires::Load()
{
    ConstruireMenu(
        Bar_Menus, App.Feuilles.Get<frm_Configuration>(),
        {{"Recyclage", "Recyclage",
          "Sélection d'un artisanat secondaire pour recycler des matériaux.", EntréesRecyclage()},
         {"Sellerie", "Sellerie", "Fabrication des objets pour équiper les chevaux.",
          EntréesSellerie()}});
}

bool frm_ArtisanatsSecondaires::EnSellerie() const
{
    return lbl_Zone2.Caption == "Tri :";
}

bool frm_ArtisanatsSecondaires::EnRecyclage() const
{
    return lbl_Zone2.Caption == "Degré :";
}

// Every entry ends by emptying the bill, also the one that opens the basket.
void frm_ArtisanatsSecondaires::Bar_Menus_ItemClick(const SideMenu::Item& Entrée)
{
    if (Entrée.Text == VoirPanier) {
        OuvrirPanier(App);
    } else if (const auto* Sellerie = FindRow(Selleries, &ObjetDeSellerie::Entrée, Entrée.Text)) {
        PrendreArtisanat(Sellerie->Métier);
        Bar_Menus.InHand = Entrée.Key;
        PréparerSellerie();
        AfficherRecyclage(false);
        AfficherVente(true);
    } else {
        PrendreArtisanat(Entrée.Text);
        PréparerRecyclage();
        AfficherRecyclage(true);
        AfficherVente(false);
    }
    ViderChamps();
}

void frm_ArtisanatsSecondaires::PrendreArtisanat(const std::string& Nom)
{
    const auto& Configuration = App.Feuilles.Get<frm_Configuration>();
    lbl_Artisanat.Caption = Nom;
    Bar_Menus.InHand = Nom;
    pct_Artisanat.Picture = Configuration.ImageMétier(Nom);
    LireRéglage(Configuration.Réglages(Nom).Marge, Marge);
}

void frm_ArtisanatsSecondaires::LireNiveauCraft()
{
    LireRéglage(App.Feuilles.Get<frm_Configuration>().Réglages(lbl_Artisanat.Caption).Niveau,
                NiveauCraft);
}

// What both modes begin with.
void frm_ArtisanatsSecondaires::ViderListes()
{
    cbo_ObjetSecondaire.Clear();
    cbo_Degré.Clear();
    img_Icône.Picture = {};
    lbl_Niveau.Caption = "";
    img_Niveau.Picture = {};
}

// Choices, pictures and level stay. A row that was hidden for want of a material comes back.
void frm_ArtisanatsSecondaires::ViderChamps()
{
    Matériaux.Vider();
    ObjetLu = false; // a degree needs the codes of an object
    txt_PrixRevente.Text = "0";
    txt_SellerieNbObjets.Text = "1";
    WriteAll({&txt_PrixCoûtant, &txt_SelleriePrixCoûtant, &txt_SelleriePrixVente, &txt_CoûtSuppl},
             "0");
    txt_NbObjet.Text = "1";
    txt_Gain.Text = "0";
}

void frm_ArtisanatsSecondaires::AfficherVente(bool Visible)
{
    ShowAll({&shp_InfosVente, &lbl_InfosVente, &lbl_SellerieNbObjets, &txt_SellerieNbObjets,
             &lbl_SelleriePrixCoûtant, &txt_SelleriePrixCoûtant, &lbl_SelleriePrixVente,
             &txt_SelleriePrixVente, &shp_ImageObjet, &img_Objet},
            Visible);
}

void frm_ArtisanatsSecondaires::AfficherRecyclage(bool Visible)
{
    ShowAll({&shp_Recyclage, &lbl_Recyclage, &lbl_RecyclageMatPremière, &lbl_RecyclageNbObjets,
             &lbl_RecyclageGain, &txt_CoûtSuppl, &txt_NbObjet, &txt_Gain},
            Visible);
}

} // namespace orvane
