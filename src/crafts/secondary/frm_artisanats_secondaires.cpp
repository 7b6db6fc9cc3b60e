#include "crafts/secondary/frm_artisanats_secondaires.h"

#include "app/navigation.h"
#include "app/trades.h"
#include "base/table.h"
#include "basket/orders.h"
#include "crafts/common/craft_menu.h"
#include "crafts/common/material_codes.h"
#include "crafts/common/object_pictures.h"
#include "crafts/common/recalculating_input.h"
#include "toolkit/visibility.h"
#include "toolkit/writing.h"

#include <array>

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

frm_ArtisanatsSecondaires::frm_ArtisanatsSecondaires(Application& App)
    : Feuille(App, ScreenName, "Artisanats Secondaires")
{
    Définir();
    Relier();
}

void frm_ArtisanatsSecondaires::Relier()
{
    Bar_Menus.OnItemClick = [this](const SideMenu::Item& Entrée) { Bar_Menus_ItemClick(Entrée); };
    cbo_ObjetSecondaire.OnClick = [this] {
        if (EnSellerie())
            ChoisirSellerie();
        else if (EnRecyclage())
            ChoisirRecyclage();
    };
    cbo_Degré.OnClick = [this] {
        if (EnSellerie())
            FiltrerSellerie();
        else if (EnRecyclage())
            ChoisirDegré();
    };
    for (int i : {3, 4})
        Matériaux[i].Nom.OnChange = [this, i] { txt_Matériaux_Change(Matériaux[i]); };
    for (int i : {2, 3})
        Matériaux[i].Code->OnChange = [this, i] {
            Matériaux[i].Montrer(Matériaux[i].Code->Text != CodeSansMatériau);
        };
    txt_Icône.OnChange = [this] { MontrerIcôneRoyaume(this->App, txt_Icône, img_Icône); };
    txt_Image.OnChange = [this] { MontrerImageObjet(this->App, txt_Image, img_Objet); };
    RecalculerAuChangement(txt_SellerieNbObjets, {""}, "1", [this] { CalculerSellerie(); });
    RecalculerAuChangement(txt_CoûtSuppl, {""}, "0", [this] { CalculerGain(); });
    RecalculerAuChangement(txt_NbObjet, {""}, "1", [this] { CalculerGain(); });
    cmd_AjouterPanier.OnClick = [this] { cmd_AjouterPanier_Click(); };
    cmd_Retour.OnClick = [this] { WayBack(); };
}

void frm_ArtisanatsSecondaires::Load()
{
    ConstruireMenu(
        Bar_Menus, App.Feuilles.Get<frm_Configuration>(),
        {{"Recyclage", "Recyclage",
          "Sélection d'un artisanat secondaire pour recycler des matériaux.", EntréesRecyclage()},
         {"Sellerie", "Sellerie", "Fabrication des objets pour équiper les chevaux.",
          EntréesSellerie()}});
}

void frm_ArtisanatsSecondaires::WayBack()
{
    Revenir(App, *this, Retour::CacherPuisAccueil);
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

// The change of a mode takes the picture away and leaves its file's name: the same name must bring
// it back.
void frm_ArtisanatsSecondaires::MontrerIcône(const Recordset& Objet)
{
    txt_Icône.Text = Objet.TextOrEmpty("Icône");
    MontrerIcôneRoyaume(App, txt_Icône, img_Icône);
}

void frm_ArtisanatsSecondaires::txt_Matériaux_Change(LigneMatériau& Ligne)
{
    Ligne.Montrer(!(Ligne.EstSansMatériau() && EnSellerie()));
}

void frm_ArtisanatsSecondaires::cmd_AjouterPanier_Click()
{
    AjouterAuPanier(App, cbo_ObjetSecondaire.Text != "",
                    {cbo_ObjetSecondaire.Text, txt_SellerieNbObjets, txt_SelleriePrixCoûtant,
                     txt_SelleriePrixVente});
}

} // namespace orvane
