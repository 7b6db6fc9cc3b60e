#pragma once

#include <string>

namespace orvane {

// Column of the i-th (from 1) of the repeated joins of one table, as saved queries name them:
// "Matériaux.Nom", "Matériaux_1.Nom", "Matériaux_2.Nom"...
inline std::string ColonneJointe(const std::string& Table, int i, const std::string& Colonne)
{
    return (i == 1 ? Table : Table + "_" + std::to_string(i - 1)) + "." + Colonne;
}

} // namespace orvane
