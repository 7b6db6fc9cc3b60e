#include "app/queries.h"
#include "crafts/common/alchemy_object.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "settings/level_indicator.h"
#include "toolkit/calculation.h"
#include "toolkit/visibility.h"

#include <array>
#include <vector>

// The alchemy walk, from the products down to one object, and what its row brings onto the screen.
namespace orvane {

namespace {

constexpr int DétailLarge = 3855;  // twips
constexpr int DétailÉtroit = 1815; // beside the filter

constexpr const char* EffetsÀDéclenchement = "Effets à déclenchement";

// Words of object names to filter by; the first four go with every detail.
constexpr std::array FiltresCommuns{"énergie", "esprit", "feu", "glace"};

struct FiltresDétail
{
    const char* Détail;
    std::vector<const char*> Mots;
};

const FiltresDétail FiltresDétails[] = {
    {"Charges",
     {"absorbante", "aiguisante", "changeante", "célérité", "transmission", "illumination",
      "épineuse", "estropiante", "flétrissante", "fusionnante", "neutralisante", "renforçante",
      "revigorante"}},
    {"Effets d'arme",
     {"célérité", "diminution", "épine", "érosion", "fusionnante", "provocante", "renforçante"}},
    {"Effets d'armure",
     {"célérité", "diminution", "volutes", "érosion", "drainante", "épineuse", "fusionnante",
      "renforçante"}},
};

void RemplirFiltres(ComboBox& Liste, const std::string& Détail)
{
    Liste.Clear();
    for (const char* Mot : FiltresCommuns)
        Liste.AddItem(Mot);
    for (const FiltresDétail& Each : FiltresDétails)
        if (Détail == Each.Détail)
            for (const char* Mot : Each.Mots)
                Liste.AddItem(Mot);
}

} // namespace

void frm_ArtisanatsMagiques::cbo_Produit_Click()
{
    EffacerSélection(2);
    EffacerMatériaux();
    {
        const Ouverture Base(App, Globals.CheminAlchimie);
        RemplirListe("SELECT * FROM R_Alchimie WHERE Produits.Nom=" + Quoted(cbo_Produit.Text),
                     cbo_ProduitDétaillé, "ProduitsDétaillés.Nom");
    }
    const bool AvecFiltre = cbo_Produit.Text == EffetsÀDéclenchement;
    ShowAll({&cbo_Type, &lbl_Type}, AvecFiltre);
    cbo_ProduitDétaillé.Width = AvecFiltre ? DétailÉtroit : DétailLarge;
}

void frm_ArtisanatsMagiques::cbo_ProduitDétaillé_Click()
{
    EffacerSélection(3);
    EffacerMatériaux();
    {
        const Ouverture Base(App, Globals.CheminAlchimie);
        RemplirListe("SELECT ListeObjets.Nom FROM R_AlchimieObjet WHERE (Produits.Nom=" +
                         Quoted(cbo_Produit.Text) +
                         " AND ProduitsDétaillés.Nom=" + Quoted(cbo_ProduitDétaillé.Text) + ")",
                     cbo_Objet, "Nom");
    }
    RemplirFiltres(cbo_Type, cbo_ProduitDétaillé.Text);
}

// Each word filters the whole detail afresh; a word that no object holds leaves the list as it was.
void frm_ArtisanatsMagiques::cbo_Type_Click()
{
    EffacerMatériaux();
    const Ouverture Base(App, Globals.CheminAlchimie);
    Recordset Objets =
        OuvrirEnregistrements("SELECT ListeObjets.Nom FROM R_AlchimieObjet WHERE (Produits.Nom=" +
                              Quoted(cbo_Produit.Text) + " AND ProduitsDétaillés.Nom=" +
                              Quoted(cbo_ProduitDétaillé.Text) + " AND ListeObjets.Nom LIKE " +
                              Quoted("*" + cbo_Type.Text + "*") + ") ORDER BY NiveauCraft");
    if (Objets.RecordCount() == 0)
        return;
    EffacerSélection(4);
    AjouterÀLaListe(Objets, cbo_Objet, "Nom");
}

void frm_ArtisanatsMagiques::cbo_Objet_Click()
{
    EffacerMatériaux();
    LireChoix(
        [&] {
            LireObjet();
            ChangerCouleurCraft(App, lbl_NiveauAlchimie.Caption, NiveauAlchimie,
                                img_NiveauAlchimie);
            if (txt_AlchimieObjetSup.Text != "")
                ChangerCouleurCraft(App, lbl_AlchimieObjetSupNiveauCraft.Caption, NiveauAlchimie,
                                    img_AlchimieObjetSupNiveau);
        },
        &frm_ArtisanatsMagiques::CalculerPrixAlchimie);
}

void frm_ArtisanatsMagiques::LireObjet()
{
    const Ouverture Base(App, Globals.CheminAlchimie);
    const Recordset Objet = PremierEnregistrement(
        "SELECT * FROM R_AlchimieObjet WHERE (Produits.Nom=" + Quoted(cbo_Produit.Text) +
        " AND ProduitsDétaillés.Nom=" + Quoted(cbo_ProduitDétaillé.Text) +
        " AND ListeObjets.Nom=" + Quoted(cbo_Objet.Text) + ")");
    lbl_NiveauAlchimie.Caption = Objet.Text("NiveauCraft");
    txt_IcôneAlchimie.Text = Objet.TextOrEmpty("Icône");
    Ingrédients.Charger(Objet, "Matériaux", true);
    LireCaractéristiques(Objet);
    txt_AlchimieObjetSup.Text = Objet.TextOrEmpty("NomObjet");
    txt_NbAlchimieObjetSup.Text = Objet.Text("NbObjet");
    txt_PrixReventeAlchimie.Text = Objet.Text("Revente");

    if (cbo_Produit.Text == EffetsÀDéclenchement)
        RemplacerDernierCaractère(Globals, Ingrédients[1].Nom);
    if (txt_AlchimieObjetSup.Text != "")
        ChargerObjetSup(Globals, txt_AlchimieObjetSup.Text,
                        {lbl_AlchimieObjetSupNiveauCraft, txt_AlchimieIconeObjetSup, MatériauxSup});
}

// Boxes that the last flip has shown or hidden follow their texts again, also when those are the
// same.
void frm_ArtisanatsMagiques::LireCaractéristiques(const Recordset& Objet)
{
    txt_NiveauObjet.Text = Objet.Text("Niveau");
    txt_EffetObjet.Text = Objet.Text("Effets.Nom");
    txt_DuréeObjet.Text = Objet.TextOrEmpty("Durée");
    txt_ValeurObjet.Text = Objet.TextOrEmpty("Valeur");
    txt_RésistObjet.Text = Objet.TextOrEmpty("Résistance");
    txt_ChargesObjet.Text = Objet.TextOrEmpty("Charges");
    MontrerCaractéristique(txt_DuréeObjet, lbl_DuréeObjet);
    MontrerCaractéristique(txt_ValeurObjet, lbl_valeurObjet);
    MontrerCaractéristique(txt_RésistObjet, lbl_RésistObjet);
    MontrerCaractéristique(txt_ChargesObjet, lbl_ChargesObjet);
}

void frm_ArtisanatsMagiques::MontrerCaractéristique(TextBox& Valeur, Label& Titre)
{
    ShowAll({&Valeur, &Titre}, Valeur.Text != "N/A");
}

} // namespace orvane
