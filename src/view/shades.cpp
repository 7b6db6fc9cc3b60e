#include "view/shades.h"

#include "view/look.h"

#include <array>
#include <utility>

namespace orvane::look {

namespace {

constexpr std::array<std::pair<const char*, QColor Shades::*>, 25> Names{{
    {"Fond", &Shades::Ground},
    {"FondHaut", &Shades::GroundTop},
    {"FondBas", &Shades::GroundBottom},
    {"FondBord", &Shades::GroundEdge},
    {"Panneau", &Shades::Panel},
    {"PanneauBord", &Shades::PanelBorder},
    {"Encre", &Shades::Ink},
    {"EncrePâle", &Shades::MutedInk},
    {"Papier", &Shades::Paper},
    {"Creux", &Shades::Well},
    {"CreuxBord", &Shades::WellBorder},
    {"ChampBord", &Shades::FieldBorder},
    {"Repère", &Shades::Focus},
    {"RepèreHalo", &Shades::FocusHalo},
    {"Choix", &Shades::Choice},
    {"ChoixEncre", &Shades::ChoiceInk},
    {"ChoixCalme", &Shades::QuietChoice},
    {"Survol", &Shades::Hover},
    {"Faute", &Shades::WrongGround},
    {"FauteBord", &Shades::WrongBorder},
    {"PlaqueHaut", &Shades::PlateTop},
    {"PlaqueBas", &Shades::PlateBottom},
    {"PlaqueBord", &Shades::PlateBorder},
    {"PlaqueEncre", &Shades::PlateInk},
    {"Bulle", &Shades::Tip},
}};

Shades& Current()
{
    static Shades Held;
    return Held;
}

} // namespace

const Shades& Now()
{
    return Current();
}

void Take(const std::map<std::string, Colour>& Given)
{
    Current() = {};
    for (const auto& [Name, Which] : Names)
        if (const auto Found = Given.find(Name); Found != Given.end())
            Current().*Which = ColourOf(Found->second);
}

} // namespace orvane::look
