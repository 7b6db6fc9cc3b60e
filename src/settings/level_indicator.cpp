#include "settings/level_indicator.h"

#include "base/failure.h"
#include "base/montant.h"
#include "base/number_text.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

struct Bande
{
    int JusquÀ; // greatest difference of the band
    int Index;  // in imglst_CouleurCraft
};

constexpr std::array Bandes{
    Bande{-31, 1}, Bande{-10, 2}, Bande{0, 3}, Bande{10, 4}, Bande{30, 5}, Bande{50, 6},
};
constexpr int AuDelà = 7;

} // namespace

void ChangerCouleurCraft(Application& App, const std::string& NiveauObjet, std::int16_t NiveauCraft,
                         Image& Indicateur)
{
    const auto Niveau = Entier16FromText(NiveauObjet);
    if (!Niveau)
        throw Failure(Montant::FromText(NiveauObjet) ? FailureKind::OutOfRange
                                                     : FailureKind::WrongText,
                      NiveauObjet);
    const int Écart = *Niveau - NiveauCraft; // wider than a level
    const auto Bande = std::ranges::find_if(
        Bandes, [&](const auto& Candidate) { return Écart <= Candidate.JusquÀ; });
    const int Index = Bande == Bandes.end() ? AuDelà : Bande->Index;
    Indicateur.Picture = App.Feuilles.Get<frm_Configuration>().imglst_CouleurCraft.Picture(Index);
}

} // namespace orvane
