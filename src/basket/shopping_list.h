#pragma once

#include "basket/order_lines.h"
#include "basket/purchase_row.h"
#include "basket/totals.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace orvane {

// Of a whole list, as texts; one that can't be counted is empty.
struct SommesDAchats
{
    std::string Prix;
    std::string Reste; // what is still to be paid
    Total PrixCoûtant; // of the order itself
    Total PrixVente;
};

// What one buys for an order: the materials of all its objects, one row for each name, in French
// order. What the crafter has and what is ticked is kept with the materials of each object, so that
// every list that the object is part of agrees, a name given to the order changes nothing, and what
// is added later isn't ticked yet.
class ListeDAchats
{
  public:
    // Panier is the basket's file; it is open only while a routine runs.
    ListeDAchats(Store& Bases, std::filesystem::path Panier);

    // Reads everything afresh. Failure of the store: the list stays as it was.
    void Lire(const Portée& Laquelle);

    const Portée& DeQuoi() const { return LaPortée; }
    const std::vector<LigneAchat>& Lignes() const { return LesLignes; }
    const std::vector<LigneDePanier>& Objets() const { return LesObjets; } // in French order
    const SommesDAchats& Sommes() const { return LesSommes; }

    // A sentence that names the objects of which no material is known, as rows of before have none;
    // empty when there is no such object.
    std::string SansMatériaux() const;

    // What the crafter has of a row (from 0), as it was typed: nothing, or a number that isn't
    // below 0. False for any other text, and nothing changes. Stored at once, as a tick is.
    bool Posséder(std::size_t Ligne, const std::string& Texte);
    void Cocher(std::size_t Ligne, bool Oui);

  private:
    template <class Valeur>
    void Changer(const PartsAchat& Parts, const char* Colonne, Valeur De);

    Store& Bases;
    std::filesystem::path Panier;
    Portée LaPortée;
    std::vector<LigneDePanier> LesObjets;
    std::vector<LigneAchat> LesLignes;
    std::vector<PartsAchat> LesParts;  // of LesLignes
    std::vector<std::string> Inconnus; // objects without a material
    SommesDAchats LesSommes;
};

} // namespace orvane
