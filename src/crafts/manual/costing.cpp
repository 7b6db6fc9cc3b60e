#include "crafts/common/sale.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "toolkit/calculation.h"

// From material rows, extra object, counts and margins to cost and sale price.
namespace orvane {

// An extra trial costs Perte: the cost of one object as the previous run left it, less what a
// merchant pays for the object.
bool frm_ArtisanatsManuels::CalculerVente()
{
    return Calculate({&txt_PrixCoûtant, &txt_PrixCoûtantTotal, &txt_PrixVente}, [&] {
        const Montant Perte = M(txt_PrixCoûtant) - M(txt_PrixRevente);
        const Montant Coût = M(txt_ObjetSUpPrixCoûtant) + Matériaux.Somme();
        const Montant Objets = I(txt_NbObjet) * Coût;
        const Montant Essais = I(txt_NbEssais) * Perte;
        const Montant Total = Objets + Essais;
        const double Vente = PrixVente(Objets, Marge, Essais, MargeEssais);

        txt_PrixCoûtant.Text = T(Coût);
        txt_PrixCoûtantTotal.Text = T(Total);
        txt_PrixVente.Text = T(Vente);
    });
}

// Behind a wrong input the cost of one object may be another degree's: the first run that finds
// everything right is followed by one that finds its cost.
void frm_ArtisanatsManuels::CalculerPrixVente()
{
    const bool Périmés = txt_PrixCoûtant.Stale;
    txt_PrixCoûtant.Stale = false; // whatever that run left is what the loss rests on
    if (CalculerVente() && Périmés)
        CalculerVente();
}

// A row whose line price comes out as 0 is left to the crafter to fill in.
void frm_ArtisanatsManuels::ActualiserVerrouPrix(LigneMatériau& Ligne)
{
    Calculate({}, [&] {
        Ligne.PoserVerrou(M(Ligne.Prix) == Montant() && !Ligne.EstSansMatériau(),
                          txt_NbObjet.BackColor, txt_PrixCoûtantTotal.BackColor);
    });
}

} // namespace orvane
