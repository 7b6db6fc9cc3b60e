#pragma once

#include "store/maker.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvane {

std::vector<std::string> Couper(const std::string& Texte, char Signe);

// A database file and a short way to put rows into it: cells divided by |, an empty one is a null.
class Fichier
{
  public:
    Fichier(const std::filesystem::path& Chemin, const DatabaseDefinition& Définition);

    void Remplir(const std::string& Table, const std::string& Colonnes,
                 const std::vector<std::string>& Rangées);

    void Finir() { Maker.Finish(); }

  private:
    const DatabaseDefinition& Définition;
    DatabaseMaker Maker;
};

} // namespace orvane
