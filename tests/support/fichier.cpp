#include "support/fichier.h"

#include <algorithm>
#include <sstream>

namespace orvane {

std::vector<std::string> Couper(const std::string& Texte, char Signe)
{
    std::vector<std::string> Parts;
    std::istringstream Flux(Texte);
    for (std::string Part; std::getline(Flux, Part, Signe);)
        Parts.push_back(Part);
    return Parts;
}

Fichier::Fichier(const std::filesystem::path& Chemin, const DatabaseDefinition& Définition)
    : Définition(Définition),
      Maker(Chemin, Définition)
{
}

void Fichier::Remplir(const std::string& Table, const std::string& Colonnes,
                      const std::vector<std::string>& Rangées)
{
    const auto& Voulue = *std::ranges::find(Définition.Tables, Table, &TableDefinition::Name);
    const auto Noms = Couper(Colonnes, '|');
    for (const std::string& Rangée : Rangées) {
        std::vector<Value> Cellules;
        for (const std::string& Cellule : Couper(Rangée, '|'))
            Cellules.push_back(Cellule.empty() ? Value() : Value(Cellule));
        Cellules.resize(Noms.size());
        Maker.Insert(Voulue, Noms, Cellules);
    }
}

} // namespace orvane
