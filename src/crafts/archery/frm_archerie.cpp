#include "crafts/archery/frm_archerie.h"

#include "app/queries.h"
#include "base/failure.h"
#include "basket/orders.h"
#include "crafts/common/lecture.h"
#include "crafts/common/object_pictures.h"
#include "crafts/common/purchases.h"
#include "crafts/common/recalculating_input.h"
#include "crafts/common/sale.h"
#include "settings/level_indicator.h"
#include "toolkit/calculation.h"

namespace orvane {

frm_Archerie::frm_Archerie(Application& App) : Feuille(App, ScreenName, "Archerie")
{
    Définir();
    cbo_Type.OnClick = [this] { cbo_Type_Click(); };
    cbo_Objet.OnClick = [this] { cbo_Objet_Click(); };
    txt_Icône.OnChange = [this] { MontrerIcôneRoyaume(this->App, txt_Icône, img_Icône); };
    RecalculerAuChangement(txt_NbObjet, {"0", ""}, "1", [this] { CalculerPrixCarquois(); });
    DireLaCommande(App, cmd_AjouterPanier);
    cmd_AjouterPanier.OnClick = [this] { cmd_AjouterPanier_Click(); };
    cmd_Retour.OnClick = [this] { Hide(); };
}

void frm_Archerie::Load()
{
    Image1.Picture = App.Feuilles.Get<frm_Configuration>().ImageMétier("Empennage");
}

// The last quiver and its prices stay.
void frm_Archerie::Activate()
{
    cbo_Type.Clear();
    {
        const Ouverture Base(App, Globals.CheminRoyaume);
        RemplirListe("SELECT Nom FROM ArcherieType", cbo_Type, "Nom");
    }
    const RéglagesArtisanat Réglages = App.Feuilles.Get<frm_Configuration>().Réglages("Empennage");
    LireRéglage(Réglages.Niveau, NiveauCraft);
    LireRéglage(Réglages.Marge, Marge);
}

void frm_Archerie::cbo_Type_Click()
{
    cbo_Objet.Clear();
    const Ouverture Base(App, Globals.CheminRoyaume);
    RemplirListe("SELECT Archerie.Nom FROM R_Archerie WHERE ArcherieType.Nom=" +
                     Quoted(cbo_Type.Text),
                 cbo_Objet, "Nom");
}

void frm_Archerie::cbo_Objet_Click()
{
    LireOuPérimer(
        {{&Matériaux}, {}},
        [&] {
            LireCarquois();
            Matériaux.Chiffrer(ProduitDeMontants);
        },
        [&] { CalculerPrixCarquois(); });
    ChangerCouleurCraft(App, lbl_Niveau.Caption, NiveauCraft, img_Niveau);
}

void frm_Archerie::LireCarquois()
{
    const Ouverture Base(App, Globals.CheminRoyaume);
    const Recordset Carquois = PremierEnregistrement(
        "SELECT * FROM R_Archerie WHERE (ArcherieType.Nom=" + Quoted(cbo_Type.Text) +
        " AND Archerie.Nom=" + Quoted(cbo_Objet.Text) + ")");
    lbl_Niveau.Caption = Carquois.Text("NiveauCraft");
    Matériaux.Charger(Carquois, "Matériaux_Classique", false);
    txt_Icône.Text = Carquois.Text("Icône");
    MontrerIcôneRoyaume(App, txt_Icône, img_Icône); // the realm may be another one
}

// Each line is rounded before the count multiplies. Before the first quiver there is nothing to
// calculate.
void frm_Archerie::CalculerPrixCarquois()
{
    if (txt_PrixCoûtant.Text == "" && Matériaux[1].Prix.Text == "" && !Matériaux.EstPérimée())
        return;
    Calculate({&txt_PrixCoûtant, &txt_PrixVente}, [&] {
        const Montant Coût = I(txt_NbObjet) * Matériaux.Somme();
        const double Vente = AvecMarge(Coût, Marge);
        txt_PrixCoûtant.Text = T(Coût);
        txt_PrixVente.Text = T(Vente);
    });
}

void frm_Archerie::cmd_AjouterPanier_Click()
{
    AjouterAuPanier(App, HasChoice(),
                    {"Carquois de " + cbo_Type.Text + " - " + cbo_Objet.Text, txt_NbObjet,
                     txt_PrixCoûtant, txt_PrixVente,
                     [this] { return AchatsPour(Lots({&txt_NbObjet}), {{&Matériaux}}); }},
                    "Aucun carquois sélectionné.");
}

} // namespace orvane
