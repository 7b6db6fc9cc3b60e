#include "crafts/magic/frm_artisanats_magiques.h"

#include "app/navigation.h"
#include "app/queries.h"
#include "app/trades.h"
#include "basket/orders.h"
#include "crafts/common/craft_menu.h"
#include "crafts/common/object_pictures.h"
#include "crafts/common/recalculating_input.h"

namespace orvane {

frm_ArtisanatsMagiques::frm_ArtisanatsMagiques(Application& App)
    : Feuille(App, ScreenName, "Artisanats magiques")
{
    Définir();
    Relier();
    RelierLignes();
}

void frm_ArtisanatsMagiques::Relier()
{
    Bar_Menus.OnItemClick = [this](const SideMenu::Item& Entrée) { Bar_Menus_ItemClick(Entrée); };
    cbo_Produit.OnClick = [this] { cbo_Produit_Click(); };
    cbo_ProduitDétaillé.OnClick = [this] { cbo_ProduitDétaillé_Click(); };
    cbo_Type.OnClick = [this] { cbo_Type_Click(); };
    cbo_Objet.OnClick = [this] { cbo_Objet_Click(); };
    cbo_TypeGemmes.OnClick = [this] { cbo_TypeGemmes_Click(); };
    cbo_SousTypeGemmes.OnClick = [this] { cbo_SousTypeGemmes_Click(); };
    cbo_DegréGemmes.OnClick = [this] { cbo_DegréGemmes_Click(); };
    cbo_TypeBonus.OnClick = [this] { cbo_TypeBonus_Click(); };
    cbo_SousTypeBonus.OnClick = [this] { cbo_SousTypeBonus_Click(); };
    cbo_DegréBonus.OnClick = [this] { cbo_DegréBonus_Click(); };
    txt_IcôneAlchimie.OnChange = [this] {
        MontrerIcôneCommune(this->App, txt_IcôneAlchimie, pct_IconeAlchimie);
    };
    txt_IcôneArcanes.OnChange = [this] {
        MontrerIcôneCommune(this->App, txt_IcôneArcanes, pct_IconeArcanes);
    };
    txt_AlchimieIconeObjetSup.OnChange = [this] {
        MontrerIcôneCommune(this->App, txt_AlchimieIconeObjetSup, img_AlchimieObjetSup);
    };
    txt_DuréeObjet.OnChange = [this] { MontrerCaractéristique(txt_DuréeObjet, lbl_DuréeObjet); };
    txt_ValeurObjet.OnChange = [this] { MontrerCaractéristique(txt_ValeurObjet, lbl_valeurObjet); };
    txt_RésistObjet.OnChange = [this] { MontrerCaractéristique(txt_RésistObjet, lbl_RésistObjet); };
    txt_ChargesObjet.OnChange = [this] {
        MontrerCaractéristique(txt_ChargesObjet, lbl_ChargesObjet);
    };
    RecalculerAuChangement(txt_NbObjetAlchimie, {""}, "1", [this] { CalculerPrixAlchimie(); });
    RecalculerAuChangement(txt_ArcanesNbEssais, {""}, "0", [this] { CalculerPrixArcanes(); });
    RecalculerAuChangement(txt_ArcanesNbObjet, {""}, "1", [this] { CalculerPrixArcanes(); });
    DireLaCommande(App, cmd_AjouterPanier);
    cmd_AjouterPanier.OnClick = [this] { cmd_AjouterPanier_Click(); };
    cmd_Retour.OnClick = [this] { WayBack(); };
}

void frm_ArtisanatsMagiques::RelierLignes()
{
    // a line that is closed is written by a pick, which adds up at its end
    const auto RecalculerSiOuverte = [this](TextBox& Prix) {
        RecalculerAuChangement(Prix, {""}, "0", [this, &Prix] {
            if (!Prix.Locked)
                CalculerPrix();
        });
    };
    for (LigneMatériau& Each : Ingrédients) {
        Each.Nom.OnChange = [&Each] { Each.Montrer(!Each.EstSansMatériau()); };
        Each.PrixUnitaire.OnChange = [this, &Each] { txt_PrixIngdtUnitaire_Change(Each); };
        RecalculerSiOuverte(Each.Prix);
    }
    for (LigneMatériau& Each : MatériauxSup)
        Each.PrixUnitaire.OnChange = [this, &Each] { txt_PrixMatSuptUnitaire_Change(Each); };
    for (int i : {3, 4})
        MatériauxSup[i].Nom.OnChange = [this, i] { txt_MatSup_Change(MatériauxSup[i]); };
    // a pick in alchemy adds up at its end alone; a price typed there counts at once all the same
    LigneMatériau& Ouvrable = MatériauxSup[2];
    RecalculerAuChangement(Ouvrable.Prix, {""}, "0", [this, &Ouvrable] {
        if (!Ouvrable.Prix.Locked && lbl_Artisanat.Caption == "Arcanes")
            CalculerPrixArcanes();
    });
    Ouvrable.Prix.OnTyped = [this] {
        if (lbl_Artisanat.Caption == "Alchimie")
            CalculerPrixAlchimie();
    };
    txt_AlchimieObjetSup.OnChange = [this] { txt_AlchimieObjetSup_Change(); };
}

void frm_ArtisanatsMagiques::Load()
{
    ConstruireMenu(Bar_Menus, App.Feuilles.Get<frm_Configuration>(),
                   {{"Artisanats",
                     "Liste des artisanats",
                     "Sélection d'un artisanat magique.",
                     {EntréeMétier("Arcanes"), EntréeMétier("Alchimie")}}});
}

// Starts over on the alchemy side. The figures of the last object stay, with no choice above them.
void frm_ArtisanatsMagiques::Activate()
{
    PrendreAlchimie();
    const auto& Configuration = App.Feuilles.Get<frm_Configuration>();
    const RéglagesArtisanat Alchimie = Configuration.Réglages("Alchimie");
    const RéglagesArtisanat Arcanes = Configuration.Réglages("Arcanes");
    LireRéglage(Alchimie.Niveau, NiveauAlchimie);
    LireRéglage(Alchimie.Marge, MargeAlchimie);
    LireRéglage(Arcanes.Niveau, NiveauArcanes);
    LireRéglage(Arcanes.Marge, MargeArcanes);
    LireRéglage(Arcanes.Essai, MargeEssais);
    RemplirProduits();
    RemplirGemmes();
}

void frm_ArtisanatsMagiques::WayBack()
{
    Revenir(App, *this, Retour::CacherPuisAccueil);
}

void frm_ArtisanatsMagiques::RemplirProduits()
{
    EffacerSélection(1);
    cbo_Produit.Clear();
    const Ouverture Base(App, Globals.CheminAlchimie);
    RemplirListe("SELECT Nom FROM Produits", cbo_Produit, "Nom");
}

void frm_ArtisanatsMagiques::RemplirGemmes()
{
    EffacerSélectionGemmes(1);
    cbo_TypeGemmes.Clear();
    cbo_TypeBonus.Clear();
    const std::string Degré = cbo_DegréGemmes.Text; // outlives its list
    cbo_DegréGemmes.Clear();
    cbo_DegréGemmes.Text = Degré;
    const Ouverture Base(App, Globals.CheminRoyaume);
    RemplirListe("SELECT Nom FROM Arcanes_Produits", cbo_TypeGemmes, "Nom");
    RemplirListe("SELECT Nom FROM Arcanes_Bonus", cbo_TypeBonus, "Nom");
    RemplirListe("SELECT DegréType1 FROM Degrés_Arcanes", cbo_DegréGemmes, "DegréType1");
}

void frm_ArtisanatsMagiques::Bar_Menus_ItemClick(const SideMenu::Item& Entrée)
{
    if (Entrée.Text == "Arcanes")
        PrendreArcanes();
    else if (Entrée.Text == "Alchimie")
        PrendreAlchimie();
    else if (Entrée.Text == VoirPanier)
        OuvrirPanier(App);
}

} // namespace orvane
