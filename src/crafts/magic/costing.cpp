#include "base/number_text.h"
#include "crafts/common/lecture.h"
#include "crafts/common/sale.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "toolkit/calculation.h"

// From line prices, counts and margins to the prices of both crafts.
namespace orvane {

namespace {

// A figure taken back from its text into money, four decimals.
Montant EnMontant(std::optional<Montant> Lu)
{
    if (!Lu)
        throw Failure(FailureKind::Overflow, "Montant");
    return *Lu;
}

} // namespace

// The caption tells the craft in hand.
void frm_ArtisanatsMagiques::CalculerPrix()
{
    if (lbl_Artisanat.Caption == "Alchimie")
        CalculerPrixAlchimie();
    else
        CalculerPrixArcanes();
}

void frm_ArtisanatsMagiques::LireChoix(const std::function<void()>& Lire,
                                       void (frm_ArtisanatsMagiques::*Calculer)())
{
    LireOuPérimer(
        {{&Ingrédients, &MatériauxSup}, {&txt_NbAlchimieObjetSup, &txt_ArcanesPrixRevente}}, Lire,
        [&] {
            (this->*Calculer)();
            if (Ingrédients.EstPérimée() || MatériauxSup.EstPérimée()) {
                CalculerPrixAlchimie();
                CalculerPrixArcanes();
            }
        });
}

Montant frm_ArtisanatsMagiques::CoûtObjetSup()
{
    return I(txt_NbAlchimieObjetSup) * MatériauxSup.Somme(PrixVide::Zéro);
}

// The count is in the cost, and so in the sale price. The sale price isn't rounded to money.
void frm_ArtisanatsMagiques::CalculerPrixAlchimie()
{
    const std::vector<TextBox*> Résultats{&txt_AlchimieObjetSUpPrixCoûtant,
                                          &txt_PrixCoûtantAlchimie, &txt_PrixVenteAlchimie};
    Calculate(Résultats, [&] {
        const Montant ObjetSup = CoûtObjetSup();
        const Montant Matériaux = Ingrédients.Somme(PrixVide::Zéro);
        const Montant Coût = I(txt_NbObjetAlchimie) * (Matériaux + ObjetSup);
        const double Vente = AvecMarge(Coût, MargeAlchimie);

        txt_AlchimieObjetSUpPrixCoûtant.Text = T(ObjetSup);
        txt_PrixCoûtantAlchimie.Text = T(Coût);
        txt_PrixVenteAlchimie.Text = T(Vente);
    });
}

// Trials are charged once for the order, and their margin is on the loss alone. The texts between
// the steps count: the sale price goes whole into the quantity and as money into the rest.
void frm_ArtisanatsMagiques::CalculerPrixArcanes()
{
    const std::vector<TextBox*> Résultats{&txt_AlchimieObjetSUpPrixCoûtant,
                                          &txt_ArcanesPrixCoûtant,
                                          &txt_ArcanesPrixVente,
                                          &txt_ArcanesPrixCoûtantQualité,
                                          &txt_ArcanesPrixVenteQualité,
                                          &txt_ArcanesPrixCoûtantQuantité,
                                          &txt_ArcanesPrixVenteQuantité,
                                          &txt_ArcanesPrixCoûtantTotal,
                                          &txt_ArcanesPrixVenteTotal};
    Calculate(Résultats, [&] {
        const Montant ObjetSup = CoûtObjetSup();
        // the count of the alchemy side, "1" since the last pick unless it was typed over there
        const Montant Coût =
            I(txt_NbObjetAlchimie) * (ObjetSup + Ingrédients.Somme(PrixVide::Zéro));
        const std::string Vente = T(AvecMarge(Coût, MargeArcanes));
        const Montant VenteArrondie = EnMontant(Montant::FromText(Vente));
        const Montant Perte = Coût - M(txt_ArcanesPrixRevente);
        const std::int16_t Essais = I(txt_ArcanesNbEssais);
        const std::int16_t Nombre = I(txt_ArcanesNbObjet);

        const Montant CoûtQualité = Coût + Essais * Perte;
        const double VenteEssais = AvecMarge(Perte, MargeEssais) * D(Essais);
        const Montant VenteQualité = EnMontant(Montant::FromDouble(VenteEssais)) + VenteArrondie;
        const Montant CoûtQuantité = Nombre * Coût;
        const std::string VenteQuantité = T(DoubleFromText(Vente).value() * D(Nombre));
        const Montant CoûtTotal = CoûtQualité + CoûtQuantité - Coût;
        const Montant VenteTotale =
            VenteQualité + EnMontant(Montant::FromText(VenteQuantité)) - VenteArrondie;

        txt_AlchimieObjetSUpPrixCoûtant.Text = T(ObjetSup);
        txt_ArcanesPrixCoûtant.Text = T(Coût);
        txt_ArcanesPrixVente.Text = Vente;
        txt_ArcanesPrixCoûtantQualité.Text = T(CoûtQualité);
        txt_ArcanesPrixVenteQualité.Text = T(VenteQualité);
        txt_ArcanesPrixCoûtantQuantité.Text = T(CoûtQuantité);
        txt_ArcanesPrixVenteQuantité.Text = VenteQuantité;
        txt_ArcanesPrixCoûtantTotal.Text = T(CoûtTotal);
        txt_ArcanesPrixVenteTotal.Text = T(VenteTotale);
    });
}

} // namespace orvane
