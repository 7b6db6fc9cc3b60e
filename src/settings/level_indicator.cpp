#include "settings/level_indicator.h"

#include "base/failure.h"
#include "base/montant.h"
#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <limits>

namespace orvane {

namespace {

struct Bande
{
    int JusquÀ; // greatest difference of the band
    const char* Sens;
};

// In the order of imglst_CouleurCraft.
constexpr std::array Bandes{
    Bande{-31, "Plus de 30 niveaux de moins que vous"},
    Bande{-10, "10 à 30 niveaux de moins que vous"},
    Bande{0, "Votre niveau, ou jusqu’à 9 de moins"},
    Bande{10, "1 à 10 niveaux de plus que vous"},
    Bande{30, "11 à 30 niveaux de plus que vous"},
    Bande{50, "31 à 50 niveaux de plus que vous"},
    Bande{std::numeric_limits<int>::max(), "Plus de 50 niveaux de plus que vous"},
};

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
    const auto Index = static_cast<int>(Bande - Bandes.begin()) + 1;
    Indicateur.Picture = App.Feuilles.Get<frm_Configuration>().imglst_CouleurCraft.Picture(Index);
    Indicateur.Tip = Bande->Sens;
}

} // namespace orvane
