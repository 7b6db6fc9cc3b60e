#include "crafts/common/sale.h"
#include "crafts/legendary/frm_armes_legendaires.h"
#include "toolkit/calculation.h"

// From the bills of the components to the final bill, and with counts and margins to the sale
// price. Quantities are whole numbers.
namespace orvane {

namespace {

// A price, when both factors are good; shown as stale when not.
void Multiplier(TextBox& Unitaire, TextBox& Qté, TextBox& Prix)
{
    std::string Produit;
    if (Calculate({&Prix}, [&] { Produit = T(I(Qté) * M(Unitaire)); }))
        Prix.Text = Produit;
}

} // namespace

void frm_ArmesLégendaires::RemettreQuantités()
{
    txt_NbEssais.Text = "0";
    txt_NbObjet.Text = "1";
    txt_PrixCoûtantTotal.Text = "0";
    txt_PrixVente.Text = "0";
}

void frm_ArmesLégendaires::CalculerComposant(Composant& Lequel)
{
    Lequel.Matériaux.Chiffrer(EntierFoisMontant);
    Calculate({&Lequel.PrixCoûtant},
              [&] { Lequel.PrixCoûtant.Text = T(Lequel.Matériaux.Somme()); });
}

// A price that was typed over the gem's or the dye's is lost with each choice; that of the special
// object stands, for it is multiplied by its own quantity, which is 1.
void frm_ArmesLégendaires::CalculerComposants()
{
    Multiplier(Arme.PrixCoûtant, txt_QtéArme, txt_PrixArme);
    Multiplier(Gemme.PrixCoûtant, txt_QtéGemme, txt_PrixGemme);
    Multiplier(Teinture.PrixCoûtant, txt_QtéTeinture, txt_PrixTeinture);
    CalculerPrixMatériau();
    Multiplier(txt_PrixSpécial, txt_QtéSpécial, txt_PrixSpécial);
    CalculerPrixCoûtant();
    CalculerTotaux();
}

void frm_ArmesLégendaires::CalculerPrixMatériau()
{
    Multiplier(txt_PrixUnitaireMatériau, txt_QtéMatériau, txt_PrixMatériau);
}

void frm_ArmesLégendaires::CalculerPrixCoûtant()
{
    Calculate({&txt_PrixCoûtant}, [&] {
        Montant Somme;
        for (TextBox* Prix : {&txt_PrixArme, &txt_PrixGemme, &txt_PrixTeinture, &txt_PrixMatériau,
                              &txt_PrixSpécial})
            Somme = Somme + M(*Prix);
        txt_PrixCoûtant.Text = T(Somme);
    });
}

// One margin is on the objects, the other on what the extra trials lose. A merchant may pay more
// than a weapon costs; each trial then lowers the price.
void frm_ArmesLégendaires::CalculerTotaux()
{
    Calculate({&txt_PrixCoûtantTotal, &txt_PrixVente}, [&] {
        const Montant Perte = M(txt_PrixCoûtant) - M(txt_PrixRevente);
        const Montant CoûtObjets = I(txt_NbObjet) * M(txt_PrixCoûtant);
        const Montant CoûtEssais = I(txt_NbEssais) * Perte;
        const Montant Total = CoûtObjets + CoûtEssais;
        const double Vente = PrixVente(CoûtObjets, Marge, CoûtEssais, MargeEssais);

        txt_PrixCoûtantTotal.Text = T(Total);
        txt_PrixVente.Text = T(Vente);
    });
}

} // namespace orvane
