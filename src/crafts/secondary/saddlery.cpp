#include "app/queries.h"
#include "base/typography.h"
#include "crafts/common/lecture.h"
#include "crafts/common/object_pictures.h"
#include "crafts/common/sale.h"
#include "crafts/secondary/frm_artisanats_secondaires.h"
#include "settings/level_indicator.h"
#include "toolkit/calculation.h"
#include "toolkit/visibility.h"

// Objects for horses: chosen by trade, narrowed by a word of their names, priced with the trade's
// one margin. There are no trials, and what a merchant pays is only shown.
namespace orvane {

void frm_ArtisanatsSecondaires::PréparerSellerie()
{
    ViderListes();
    lbl_Zone1.Caption = "Objet :";
    lbl_Zone2.Caption = "Tri :";
    cbo_Degré.Called = "Tri";
    ShowAll({&lbl_Zone2, &cbo_Degré}, true);
    Matériaux[4].Montrer(true);
    cmd_AjouterPanier.Visible = true;
    LireNiveauCraft();

    const Ouverture Base(App, Globals.CheminRoyaume);
    RemplirListe("SELECT DISTINCT * FROM R_SellerieObjets WHERE (Artisanat_Liste.Nom =" +
                     Quoted(lbl_Artisanat.Caption) + ")",
                 cbo_ObjetSecondaire, "Sellerie_ListeObjets.Nom");
    RemplirListe("SELECT * FROM R_SellerieProduits WHERE Artisanat_Liste.Nom = " +
                     Quoted(lbl_Artisanat.Caption),
                 cbo_Degré, "Sellerie_ProduitsDétaillés.Nom");
    if (cbo_Degré.ListCount() == 0) // a trade without filters
        ShowAll({&cbo_Degré, &lbl_Zone2}, false);
}

// The bill of the object chosen last stays on screen.
void frm_ArtisanatsSecondaires::FiltrerSellerie()
{
    const Ouverture Base(App, Globals.CheminRoyaume);
    Recordset Objets = OuvrirEnregistrements(
        "SELECT DISTINCT * FROM R_SellerieObjets WHERE (Artisanat_Liste.Nom =" +
        Quoted(lbl_Artisanat.Caption) + " AND Sellerie_ListeObjets.Nom LIKE " +
        Quoted("*" + cbo_Degré.Text + "*") + ")");
    if (Objets.RecordCount() == 0) {
        App.MsgBox(Typeset("Aucun objet ne porte « " + cbo_Degré.Text +
                           " » dans son nom : la "
                           "liste reste la même."));
        return;
    }
    cbo_ObjetSecondaire.Clear();
    AjouterÀLaListe(Objets, cbo_ObjetSecondaire, "Sellerie_ListeObjets.Nom");
}

void frm_ArtisanatsSecondaires::ChoisirSellerie()
{
    ViderChamps();
    LireOuPérimer(
        {{&Matériaux}, {&txt_PrixRevente}},
        [&] {
            LireSellerie();
            ChangerCouleurCraft(App, lbl_Niveau.Caption, NiveauCraft, img_Niveau);
            // a hidden row counts nothing, whatever its quantity and price
            Matériaux.Chiffrer(ProduitDeMontants,
                               [](const LigneMatériau& Each) { return Each.Nom.Visible(); });
        },
        [&] { CalculerSellerie(); });
}

void frm_ArtisanatsSecondaires::LireSellerie()
{
    const Ouverture Base(App, Globals.CheminRoyaume);
    const Recordset Objet =
        PremierEnregistrement("SELECT * FROM R_SellerieObjets WHERE Sellerie_ListeObjets.Nom =" +
                              Quoted(cbo_ObjetSecondaire.Text));
    MontrerIcône(Objet);
    txt_Image.Text = Objet.TextOrEmpty("Image");
    MontrerImageObjet(App, txt_Image, img_Objet); // the realm may be another one
    txt_PrixRevente.Text = Objet.Text("PrixRevente");
    lbl_Niveau.Caption = Objet.Text("NiveauCraft");
    Matériaux.Charger(Objet, "Matériaux_Classique", false);
}

void frm_ArtisanatsSecondaires::CalculerSellerie()
{
    Calculate({&txt_PrixCoûtant, &txt_SelleriePrixCoûtant, &txt_SelleriePrixVente}, [&] {
        const Montant Coût = Matériaux.Somme();
        const Montant Total = I(txt_SellerieNbObjets) * Coût;
        const double Vente = AvecMarge(Total, Marge);

        txt_PrixCoûtant.Text = T(Coût);
        txt_SelleriePrixCoûtant.Text = T(Total);
        txt_SelleriePrixVente.Text = T(Vente);
    });
}

} // namespace orvane
