#pragma once

#include "app/queries.h"
#include "base/notation.h"
#include "base/number_text.h"

#include <cstdint>
#include <string>

namespace orvane {

// The level of an object made at a degree, each of which is worth a hundred levels.
inline std::string NiveauAuDegré(const Recordset& Objet, std::int16_t NuméroDegré)
{
    return T(Objet.Number("NiveauCraft") + Entier16(100 * NuméroDegré));
}

} // namespace orvane
