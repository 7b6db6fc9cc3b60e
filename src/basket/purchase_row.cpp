#include "basket/purchase_row.h"

#include "base/notation.h"
#include "basket/totals.h"

#include <algorithm>

namespace orvane {

namespace {

std::optional<Montant> Somme(const PartsAchat& Parts, Montant PartAchat::*Chiffre)
{
    Cumul Total;
    for (const PartAchat& Each : Parts)
        Total.Ajouter(Each.*Chiffre);
    return Total.Valeur();
}

std::string Texte(const std::optional<Montant>& Chiffre)
{
    return Chiffre ? T(*Chiffre) : std::string();
}

PartsAchat NonCochées(const PartsAchat& Parts)
{
    PartsAchat Autres;
    std::ranges::copy_if(Parts, std::back_inserter(Autres),
                         [](const PartAchat& Each) { return !Each.Cochée; });
    return Autres;
}

std::optional<Montant> Reste(const PartsAchat& Parts)
{
    const PartsAchat Autres = NonCochées(Parts);
    const auto Besoin = Somme(Autres, &PartAchat::Quantité);
    const auto Eu = Somme(Autres, &PartAchat::Possédé);
    if (!Besoin || !Eu)
        return {};
    return std::max(Montant(), *Besoin - *Eu);
}

Coche CocheDe(const PartsAchat& Parts)
{
    const auto Cochées =
        static_cast<std::size_t>(std::ranges::count(Parts, true, &PartAchat::Cochée));
    return Cochées == Parts.size() ? Coche::Oui : Cochées == 0 ? Coche::Non : Coche::EnPartie;
}

// Agreed on by all parts, or empty.
std::string PrixUnitaireDe(const PartsAchat& Parts)
{
    const std::string Premier = Texte(Parts.front().PrixUnitaire());
    return std::ranges::all_of(
               Parts, [&](const PartAchat& Each) { return Texte(Each.PrixUnitaire()) == Premier; })
               ? Premier
               : std::string();
}

std::string Détail(const PartAchat& Part)
{
    const std::string Combien = Part.Objet + "\u00A0: " + T(Part.Quantité);
    if (Part.EstSansPrix())
        return Combien + ", prix inconnu";
    const auto Unitaire = Part.PrixUnitaire();
    return Combien + (Unitaire ? " à " + T(*Unitaire) : " pour " + T(Part.Prix));
}

} // namespace

std::optional<Montant> PartAchat::PrixUnitaire() const
{
    return Quantité > Montant() ? Proportion(Prix, Montant::FromWhole(1), Quantité) : std::nullopt;
}

LigneAchat LigneDe(const std::string& Matériau, const PartsAchat& Parts)
{
    LigneAchat Ligne;
    Ligne.Matériau = Matériau;
    Ligne.Quantité = Texte(Somme(Parts, &PartAchat::Quantité));
    Ligne.PrixUnitaire = PrixUnitaireDe(Parts);
    Ligne.Prix = Texte(Somme(Parts, &PartAchat::Prix));
    const auto Eu = Somme(Parts, &PartAchat::Possédé);
    Ligne.Possédé = Eu == Montant() ? std::string() : Texte(Eu);
    Ligne.Reste = Texte(Reste(Parts));
    Ligne.Cochée = CocheDe(Parts);
    Ligne.SansPrix = std::ranges::any_of(Parts, &PartAchat::EstSansPrix);
    for (const PartAchat& Each : Parts)
        Ligne.Détail += (Ligne.Détail.empty() ? "" : "\n") + Détail(Each);
    return Ligne;
}

// A part of the price of all that isn't ticked.
std::optional<Montant> PrixDuReste(const PartsAchat& Parts)
{
    const PartsAchat Autres = NonCochées(Parts);
    const auto Besoin = Somme(Autres, &PartAchat::Quantité);
    const auto Manque = Reste(Parts);
    const auto Entier = Somme(Autres, &PartAchat::Prix);
    if (!Besoin || !Manque || !Entier || *Besoin <= Montant())
        return Entier;
    return Proportion(*Entier, *Manque, *Besoin);
}

void Répartir(Montant Possédé, PartsAchat& Parts)
{
    std::stable_partition(Parts.begin(), Parts.end(),
                          [](const PartAchat& Each) { return Each.Cochée; });
    for (PartAchat& Each : Parts) {
        const bool Dernière = &Each == &Parts.back();
        Each.Possédé = Dernière ? Possédé : std::min(Possédé, Each.Quantité);
        Possédé = Possédé - Each.Possédé;
    }
}

} // namespace orvane
