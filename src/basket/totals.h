#pragma once

#include "base/montant.h"
#include "basket/order_lines.h"

#include <optional>
#include <string>
#include <vector>

// Sums of an order. They are exact, and one that can't be counted has no figure.
namespace orvane {

class Cumul
{
  public:
    void Ajouter(const std::optional<Montant>& Terme); // nothing can't be counted

    std::optional<Montant> Valeur() const { return Somme; }
    std::string Texte() const; // empty when it can't be counted

  private:
    std::optional<Montant> Somme = Montant();
};

struct Total
{
    std::string Texte;
    std::string Faute; // which row has a price that can't be counted; the text is empty then
};

// Of the prices of one kind. A row without a price counts nothing.
Total Totaliser(const std::vector<LigneDePanier>& Lignes, std::string LigneDePanier::*Prix);

} // namespace orvane
