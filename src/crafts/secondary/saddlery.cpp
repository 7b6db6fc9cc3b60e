#include "app/queries.h"
#include "base/typography.h"
#include "crafts/common/joined_column.h"
#include "crafts/secondary/frm_artisanats_secondaires.h"
#include "settings/level_indicator.h"
#include "toolkit/calculation.h"
#include "toolkit/visibility.h"
#include "toolkit/writing.h"

#include <array>

// Objects for horses: chosen by trade, narrowed by a word of their names, priced with the trade's
// one margin. There are no trials, and what a merchant pays is only shown.
namespace orvane {

void frm_ArtisanatsSecondaires::PréparerSellerie()
{
    ViderListes();
    lbl_Zone1.Caption = "Objet :";
    lbl_Zone2.Caption = "Tri :";
    ShowAll({&lbl_Zone2, &cbo_Degré}, true);
    Montrer(Ligne(4), true);
    cmd_AjouterPanier.Visible = true;
    LireNiveauCraft();

    const Ouverture Base(App, Globals.BaseDonnées, Globals.CheminRoyaume);
    Globals.TexteSQL = "SELECT DISTINCT * FROM R_SellerieObjets WHERE (Artisanat_Liste.Nom =" +
                       Quoted(lbl_Artisanat.Caption()) + ")";
    RemplirListe(Globals, cbo_ObjetSecondaire, "Sellerie_ListeObjets.Nom");
    Globals.TexteSQL = "SELECT * FROM R_SellerieProduits WHERE Artisanat_Liste.Nom = " +
                       Quoted(lbl_Artisanat.Caption());
    RemplirListe(Globals, cbo_Degré, "Sellerie_ProduitsDétaillés.Nom");
    if (cbo_Degré.ListCount() == 0) // a trade without filters
        ShowAll({&cbo_Degré, &lbl_Zone2}, false);
}

// The bill of the object chosen last stays on screen.
void frm_ArtisanatsSecondaires::FiltrerSellerie()
{
    const Ouverture Base(App, Globals.BaseDonnées, Globals.CheminRoyaume);
    Globals.TexteSQL = "SELECT DISTINCT * FROM R_SellerieObjets WHERE (Artisanat_Liste.Nom =" +
                       Quoted(lbl_Artisanat.Caption()) + " AND Sellerie_ListeObjets.Nom LIKE " +
                       Quoted("*" + cbo_Degré.Text + "*") + ")";
    Recordset& Objets = OuvrirEnregistrements(Globals);
    if (Objets.RecordCount() == 0) {
        App.MsgBox(Typeset("Aucun objet ne porte « " + cbo_Degré.Text +
                           " » dans son nom : la "
                           "liste reste la même."));
        return;
    }
    cbo_ObjetSecondaire.Clear();
    RemplirListe(Objets, cbo_ObjetSecondaire, "Sellerie_ListeObjets.Nom");
}

void frm_ArtisanatsSecondaires::ChoisirSellerie()
{
    ViderChamps();
    ReadOrStale(Together({&txt_PrixCoûtant, &txt_SelleriePrixCoûtant, &txt_SelleriePrixVente},
                         txt_PrixMatUnitaire),
                [&] {
                    LireSellerie();
                    ChangerCouleurCraft(App, lbl_Niveau.Caption, NiveauCraft, img_Niveau);
                });
    CalculerSellerie();
}

void frm_ArtisanatsSecondaires::LireSellerie()
{
    const Ouverture Base(App, Globals.BaseDonnées, Globals.CheminRoyaume);
    Globals.TexteSQL = "SELECT * FROM R_SellerieObjets WHERE Sellerie_ListeObjets.Nom =" +
                       Quoted(cbo_ObjetSecondaire.Text());
    const Recordset& Objet = PremierEnregistrement(Globals);
    MontrerIcône(Objet);
    txt_Image.Text = Objet.TextOrEmpty("Image");
    txt_PrixRevente.Text = Objet.Text("PrixRevente");
    lbl_Niveau.Caption = Objet.Text("NiveauCraft");
    for (int i = 1; i <= 4; ++i)
        txt_Matériaux[i].Text = Objet.Text(ColonneJointe("Matériaux_Classique", i, "Nom"));
    for (int i = 1; i <= 4; ++i)
        txt_PrixMatUnitaire[i].Text = Objet.Text(ColonneJointe("Matériaux_Classique", i, "Prix"));
    for (int i = 1; i <= 4; ++i)
        txt_MatériauxQté[i].Text = Objet.Text("Qté" + std::to_string(i));
    Globals.Enregistrements.Empty();
}

// A hidden row counts nothing, whatever its quantity and price.
void frm_ArtisanatsSecondaires::CalculerSellerie()
{
    Calculate({&txt_PrixCoûtant, &txt_SelleriePrixCoûtant, &txt_SelleriePrixVente}, [&] {
        std::array<Montant, 4> Lignes;
        Montant Coût;
        for (int i = 1; i <= 4; ++i) {
            Montant& Prix = Lignes[static_cast<std::size_t>(i - 1)];
            if (i <= 2 || txt_Matériaux[i].Visible)
                Prix = M(txt_PrixMatUnitaire[i]) * M(txt_MatériauxQté[i]);
            Coût = Coût + Prix;
        }
        const Montant Total = I(txt_SellerieNbObjets) * Coût;
        const double Vente = D(Total) * (1 + Marge / 100.0);

        for (int i = 1; i <= 4; ++i)
            txt_PrixMat[i].Text = T(Lignes[static_cast<std::size_t>(i - 1)]);
        txt_PrixCoûtant.Text = T(Coût);
        txt_SelleriePrixCoûtant.Text = T(Total);
        txt_SelleriePrixVente.Text = T(Vente);
    });
}

} // namespace orvane
