#include "app/trades.h"

#include "base/failure.h"
#include "base/table.h"

namespace orvane {

const Métier& LeMétier(std::string_view Nom)
{
    const Métier* Trouvé = FindRow(Métiers, &Métier::Nom, Nom);
    if (Trouvé == nullptr)
        throw Failure(FailureKind::Program, std::string(Nom));
    return *Trouvé;
}

SideMenu::Item EntréeMétier(std::string_view Nom)
{
    const Métier& Lequel = LeMétier(Nom);
    return {Lequel.Nom, Lequel.Nom, Lequel.Image - 1, Lequel.Travail}; // small icons count from 0
}

} // namespace orvane
