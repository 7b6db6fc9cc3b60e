#pragma once

#include "base/montant.h"

#include <optional>
#include <string>
#include <vector>

// A row of the shopping list, put together from what each object takes of one material.
namespace orvane {

struct PartAchat
{
    std::string Num;   // of its stored row
    std::string Objet; // what it is for
    Montant Quantité;
    Montant Prix;
    Montant Possédé;
    bool Cochée = false;

    // The crafter doesn't know the price yet.
    bool EstSansPrix() const { return Prix == Montant() && Quantité > Montant(); }

    // Nothing when there is no quantity to divide by, or too little.
    std::optional<Montant> PrixUnitaire() const;
};
using PartsAchat = std::vector<PartAchat>;

enum class Coche { Non, EnPartie, Oui };

// In the texts that are shown. A figure that can't be counted is empty.
struct LigneAchat
{
    std::string Matériau;
    std::string Quantité;
    std::string PrixUnitaire; // empty when the objects don't agree on it
    std::string Prix;
    std::string Possédé; // "j'ai": empty for nothing
    std::string Reste;   // to buy: nothing of what is ticked
    Coche Cochée = Coche::Non;
    bool SansPrix = false; // for one of the objects at least
    std::string Détail;    // object by object, a line for each

    friend bool operator==(const LigneAchat&, const LigneAchat&) = default;
};

LigneAchat LigneDe(const std::string& Matériau, const PartsAchat& Parts);

// What the rest of a row costs.
std::optional<Montant> PrixDuReste(const PartsAchat& Parts);

// Shares out what the crafter has: to each part what it takes, ticked ones first, and what is left
// over to the last.
void Répartir(Montant Possédé, PartsAchat& Parts);

} // namespace orvane
