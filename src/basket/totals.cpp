#include "basket/totals.h"

#include "base/notation.h"
#include "base/typography.h"

namespace orvane {

void Cumul::Ajouter(const std::optional<Montant>& Terme)
{
    Somme = Somme && Terme ? SumIfFits(*Somme, *Terme) : std::nullopt;
}

std::string Cumul::Texte() const
{
    return Somme ? T(*Somme) : std::string();
}

Total Totaliser(const std::vector<LigneDePanier>& Lignes, std::string LigneDePanier::*Prix)
{
    Cumul Somme;
    for (const LigneDePanier& Each : Lignes) {
        Somme.Ajouter((Each.*Prix).empty() ? Montant() : Montant::FromText(Each.*Prix));
        if (!Somme.Valeur())
            return {"", Typeset("Le prix de « " + Each.Nom + " » (commande « " + Each.Acheteur +
                                " », " + Each.Royaume + ") ne peut pas être compté.")};
    }
    return {Somme.Texte(), ""};
}

} // namespace orvane
