#pragma once

#include "base/notation.h"

#include <cstdint>

// What a craft asks for its work. Margins are per cent; prices aren't rounded to money.
namespace orvane {

inline double AvecMarge(Montant Coût, std::int16_t Marge)
{
    return D(Coût) * (Marge / 100.0 + 1);
}

// One margin is on the objects, the other on what extra trials cost.
inline double PrixVente(Montant Objets, std::int16_t Marge, Montant Essais,
                        std::int16_t MargeEssais)
{
    return AvecMarge(Objets, Marge) + AvecMarge(Essais, MargeEssais);
}

} // namespace orvane
