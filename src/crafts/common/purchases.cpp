#include "crafts/common/purchases.h"

#include "toolkit/calculation.h"

#include <algorithm>

namespace orvane {

namespace {

bool EstAchetée(const TextBox& Nom)
{
    return Nom.Visible && Nom.Text != "" && Nom.Text != SansNom;
}

std::int64_t Compte(TextBox& Nombre)
{
    return std::max<std::int64_t>(0, I(Nombre));
}

std::int64_t Fois(const Besoin& Lequel)
{
    return Lequel.Nombre == nullptr ? 1 : Compte(*Lequel.Nombre);
}

// What the bill comes to; nothing when it can't be told.
std::optional<Montant> PrixDeRevient(const Besoin& Lequel)
{
    std::optional<Montant> Revient;
    Calculate({}, [&] {
        const std::int16_t Nombre = Lequel.Nombre == nullptr ? std::int16_t{1} : I(*Lequel.Nombre);
        Revient = Nombre * Lequel.Matériaux->Somme();
    });
    return Revient;
}

bool EstAchetéTelQuel(const Besoin& Lequel)
{
    if (Lequel.Nom == nullptr || !EstAchetée(*Lequel.Nom))
        return false;
    return Lequel.Matériaux == nullptr || M(*Lequel.Prix) != PrixDeRevient(Lequel);
}

} // namespace

std::int64_t Lots(std::initializer_list<TextBox*> Comptes)
{
    std::int64_t Total = 0;
    for (TextBox* Each : Comptes)
        Total += Compte(*Each);
    return Total;
}

Achats AchatsPour(std::int64_t Lots, const std::vector<Besoin>& Besoins)
{
    Achats Tous;
    for (const Besoin& Each : Besoins) {
        if (EstAchetéTelQuel(Each)) {
            Tous.push_back({Each.Nom->Text, Montant::FromWhole(Lots * Fois(Each)),
                            Montant::FromWhole(Lots) * M(*Each.Prix)});
            continue;
        }
        if (Each.Matériaux == nullptr)
            continue;
        for (LigneMatériau& Ligne : *Each.Matériaux)
            if (EstAchetée(Ligne.Nom)) {
                const Montant Combien = Montant::FromWhole(Lots * Fois(Each));
                Tous.push_back({Ligne.Nom.Text, Combien * std::max(Montant(), M(Ligne.Qté)),
                                Combien * M(Ligne.Prix)});
            }
    }
    return Tous;
}

} // namespace orvane
