#include "crafts/manual/frm_artisanats_manuels.h"

#include "app/navigation.h"
#include "app/trades.h"
#include "basket/orders.h"
#include "crafts/common/craft_menu.h"
#include "crafts/common/object_pictures.h"
#include "crafts/common/recalculating_input.h"
#include "settings/frm_configuration.h"

#include <array>

namespace orvane {

namespace {

constexpr std::array Manuels{"Armurerie", "Couture", "Empennage", "Forge"};

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
    DireLaCommande(App, cmd_AjouterPanier);
    cmd_AjouterPanier.OnClick = [this] { cmd_AjouterPanier_Click(); };
    cmd_Retour.OnClick = [this] { WayBack(); };
}

void frm_ArtisanatsManuels::Load()
{
    GroupeMenu Liste{"Artisanats", "Liste des artisanats", "Sélection d'un artisanat manuel.", {}};
    for (const char* Each : Manuels)
        Liste.Entrées.push_back(EntréeMétier(Each));
    ConstruireMenu(Bar_Menus, App.Feuilles.Get<frm_Configuration>(), {Liste});
}

void frm_ArtisanatsManuels::Activate()
{
    EffacerSélection(1);
    PrendreArtisanat("Couture");
    LireRéglage(App.Feuilles.Get<frm_Configuration>().Réglages("Alchimie").Niveau, NiveauAlchimie);
    RemplirProduits();
}

void frm_ArtisanatsManuels::WayBack()
{
    Revenir(App, *this, Retour::CacherPuisAccueil);
}

void frm_ArtisanatsManuels::Bar_Menus_ItemClick(const SideMenu::Item& Entrée)
{
    if (Entrée.Text == VoirPanier)
        OuvrirPanier(App);
    else
        PrendreArtisanat(Entrée.Text);
    LireRéglage(App.Feuilles.Get<frm_Configuration>().Réglages("Alchimie").Niveau, NiveauAlchimie);
    EffacerSélection(1);
    RemplirProduits();
}

void frm_ArtisanatsManuels::PrendreArtisanat(const std::string& Nom)
{
    const auto& Configuration = App.Feuilles.Get<frm_Configuration>();
    const RéglagesArtisanat Réglages = Configuration.Réglages(Nom);
    lbl_Artisanat.Caption = Nom;
    Bar_Menus.InHand = Nom;
    pct_Artisanat.Picture = Configuration.ImageMétier(Nom);
    LireRéglage(Réglages.Niveau, NiveauCraft);
    LireRéglage(Réglages.Marge, Marge);
    LireRéglage(Réglages.Essai, MargeEssais);
}

} // namespace orvane
