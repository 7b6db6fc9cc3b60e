#include "crafts/manual/frm_artisanats_manuels.h"

#include "app/navigation.h"
#include "crafts/common/craft_menu.h"
#include "crafts/common/object_pictures.h"
#include "crafts/common/recalculating_input.h"
#include "settings/frm_configuration.h"

#include <array>

namespace orvane {

namespace {

// What a trade rests on: its picture, and its settings on frm_Configuration.
struct Artisanat
{
    const char* Nom;
    int Image; // in imglst_CraftGrand
    TextBox frm_Configuration::*Niveau;
    TextBox frm_Configuration::*Marge;
    TextBox frm_Configuration::*Essai;
    const char* Tip;
};

constexpr std::array Artisanats{
    Artisanat{"Armurerie", 8, &frm_Configuration::txt_NiveauArmurerie,
              &frm_Configuration::txt_MargeArmurerie, &frm_Configuration::txt_EssaiArmurerie,
              "Fabrication des armures en métal."},
    Artisanat{"Couture", 7, &frm_Configuration::txt_NiveauCouture,
              &frm_Configuration::txt_MargeCouture, &frm_Configuration::txt_EssaiCouture,
              "Fabrication des armures en tissu et en cuir."},
    Artisanat{"Empennage", 6, &frm_Configuration::txt_NiveauEmpennage,
              &frm_Configuration::txt_MargeEmpennage, &frm_Configuration::txt_EssaiEmpennage,
              "Fabrication des armes en bois."},
    Artisanat{"Forge", 5, &frm_Configuration::txt_NiveauForge, &frm_Configuration::txt_MargeForge,
              &frm_Configuration::txt_EssaiForge, "Fabrication des armes en métal."},
};

const Artisanat* Chercher(const std::string& Nom)
{
    for (const Artisanat& Each : Artisanats)
        if (Nom == Each.Nom)
            return &Each;
    return nullptr;
}

} // namespace

frm_ArtisanatsManuels::frm_ArtisanatsManuels(Application& App)
    : Feuille(App, ScreenName, "Artisanats Manuels")
{
    Définir();
    Relier();
}

void frm_ArtisanatsManuels::Relier()
{
    Bar_Menus.OnItemClick = [this](const SideMenu::Item& Entrée) { Bar_Menus_ItemClick(Entrée); };
    cbo_Produit.OnClick = [this] { cbo_Produit_Click(); };
    cbo_ProduitDétaillé.OnClick = [this] { cbo_ProduitDétaillé_Click(); };
    cbo_Objet.OnClick = [this] { cbo_Objet_Click(); };
    cbo_Degré.OnClick = [this] { cbo_Degré_Click(); };
    txt_Sup.OnChange = [this] { txt_Sup_Change(); };
    txt_Image.OnChange = [this] { MontrerImageObjet(this->App, txt_Image, img_Objet); };
    txt_Icône.OnChange = [this] { MontrerIcôneRoyaume(this->App, txt_Icône, img_Icône); };
    txt_IconeObjetSup.OnChange = [this] {
        MontrerIcôneCommune(this->App, txt_IconeObjetSup, img_ObjetSup);
    };
    for (int i = 3; i <= 6; ++i) // rows 1 and 2 are always shown
        Matériaux[i].Code->OnChange = [this, i] { txt_MatériauxBruts_Change(Matériaux[i]); };
    txt_Dps.OnChange = [this] { MontrerStatistique(txt_Dps, lbl_Dps); };
    txt_Vit.OnChange = [this] { MontrerStatistique(txt_Vit, lbl_Vit); };
    txt_AF.OnChange = [this] { MontrerStatistique(txt_AF, lbl_AF); };
    txt_BonusSpécial.OnChange = [this] { MontrerStatistique(txt_BonusSpécial, lbl_BonusSpécial); };
    const auto Calculer = [this] { CalculerPrixVente(); };
    RecalculerAuChangement(txt_NbObjet, {"0", ""}, "1", Calculer);
    RecalculerAuChangement(txt_NbEssais, {""}, "0", Calculer);
    RecalculerAuChangement(txt_ObjetSUpPrixCoûtant, {""}, "0", Calculer);
    for (LigneMatériau& Each : Matériaux)
        RecalculerAuChangement(Each.Prix, {""}, "0", Calculer);
    cbo_TypeDégats.OnClick = [this] { cbo_TypeDégats_Click(); };
    txt_ObjetSup.OnChange = [this] { txt_ObjetSup_Change(); };
    for (int i : {3, 4})
        MatériauxSup[i].Nom.OnChange = [this, i] { txt_MatSup_Change(MatériauxSup[i]); };
    for (LigneMatériau& Each : MatériauxSup)
        Each.PrixUnitaire.OnChange = [&Each] { Each.CalculerPrix(); };
    cmd_AjouterPanier.OnClick = [this] { cmd_AjouterPanier_Click(); };
    cmd_Retour.OnClick = [this] { WayBack(); };
}

void frm_ArtisanatsManuels::Load()
{
    GroupeMenu Métiers{
        "Artisanats", "Liste des artisanats", "Sélection d'un artisanat manuel.", {}};
    for (const Artisanat& Each : Artisanats) // the small icons count from 0
        Métiers.Entrées.push_back({Each.Nom, Each.Nom, Each.Image - 1, Each.Tip});
    ConstruireMenu(Bar_Menus, App.Feuilles.Get<frm_Configuration>(), {Métiers});
}

void frm_ArtisanatsManuels::Activate()
{
    EffacerSélection(1);
    PrendreArtisanat("Couture");
    LireRéglage(App.Feuilles.Get<frm_Configuration>().txt_NiveauAlchimie, NiveauAlchimie);
    RemplirProduits();
}

void frm_ArtisanatsManuels::WayBack()
{
    Revenir(App, *this, Retour::CacherPuisAccueil);
}

void frm_ArtisanatsManuels::Bar_Menus_ItemClick(const SideMenu::Item& Entrée)
{
    if (Chercher(Entrée.Text) != nullptr)
        PrendreArtisanat(Entrée.Text);
    else if (Entrée.Text == VoirPanier)
        App.Feuilles.Touch("frm_Panier").Show();
    LireRéglage(App.Feuilles.Get<frm_Configuration>().txt_NiveauAlchimie, NiveauAlchimie);
    EffacerSélection(1);
    RemplirProduits();
}

void frm_ArtisanatsManuels::PrendreArtisanat(const std::string& Nom)
{
    auto& Configuration = App.Feuilles.Get<frm_Configuration>();
    const Artisanat& Métier = *Chercher(Nom);
    lbl_Artisanat.Caption = Nom;
    pct_Artisanat.Picture = Configuration.imglst_CraftGrand.Picture(Métier.Image);
    LireRéglage(Configuration.*Métier.Niveau, NiveauCraft);
    LireRéglage(Configuration.*Métier.Marge, Marge);
    LireRéglage(Configuration.*Métier.Essai, MargeEssais);
}

} // namespace orvane
