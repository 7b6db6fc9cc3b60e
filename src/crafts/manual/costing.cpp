#include "crafts/common/material_codes.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "toolkit/calculation.h"

#include <array>

// From material rows, extra object, counts and margins to cost and sale price.
namespace orvane {

// Each line price that changes runs CalculerPrixVente inside its write.
void frm_ArtisanatsManuels::CalculerPrixMatériaux()
{
    std::array<std::string, 6> Prix;
    const bool Juste = Calculate({}, [&] {
        for (int i = 1; i <= 6; ++i) {
            const bool Vide = i >= 3 && txt_MatériauxBruts[i].Text == CodeSansMatériau;
            Prix[static_cast<std::size_t>(i - 1)] =
                Vide ? "0" : T(M(txt_PrixMatUnitaire[i]) * M(txt_MatériauxQté[i]));
        }
    });
    for (int i = 1; Juste && i <= 6; ++i)
        txt_PrixMat[i].Text = Prix[static_cast<std::size_t>(i - 1)];
}

std::vector<TextBox*> frm_ArtisanatsManuels::Résultats()
{
    return {&txt_PrixCoûtant, &txt_PrixCoûtantTotal, &txt_PrixVente};
}

// An extra trial costs Perte: the cost of one object as the previous run left it, less what a
// merchant pays for the object. Behind a wrong input that cost may be another degree's: the first
// run that finds everything right is followed by one that finds its cost.
void frm_ArtisanatsManuels::CalculerPrixVente()
{
    const auto Formule = [&] {
        const Montant Perte = M(txt_PrixCoûtant) - M(txt_PrixRevente);
        Montant Coût = M(txt_ObjetSUpPrixCoûtant);
        for (TextBox& Prix : txt_PrixMat)
            Coût = Coût + M(Prix);
        const Montant Objets = I(txt_NbObjet) * Coût;
        const Montant Essais = I(txt_NbEssais) * Perte;
        const Montant Total = Objets + Essais;
        const double Vente =
            D(Objets) * (Marge / 100.0 + 1) + (MargeEssais / 100.0 + 1) * D(Essais);

        txt_PrixCoûtant.Text = T(Coût);
        txt_PrixCoûtantTotal.Text = T(Total);
        txt_PrixVente.Text = T(Vente);
    };
    const bool Périmés = txt_PrixCoûtant.Stale;
    txt_PrixCoûtant.Stale = false; // whatever that run left is what the loss rests on
    if (Calculate(Résultats(), Formule) && Périmés)
        Calculate(Résultats(), Formule);
}

// A row whose line price comes out as 0 is left to the crafter to fill in.
void frm_ArtisanatsManuels::ActualiserVerrouPrix(TextBox& Prix, TextBox& Nom)
{
    Calculate({}, [&] {
        const bool Libre = M(Prix) == Montant() && Nom.Text != SansNom;
        PoserVerrou(Prix, Libre, txt_NbObjet, txt_PrixCoûtantTotal);
    });
}

} // namespace orvane
