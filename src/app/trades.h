#pragma once

#include "toolkit/side_menu.h"

#include <array>
#include <string_view>

// The crafts, told once. Their settings are the boxes of frm_Configuration that bear their names.
namespace orvane {

struct Métier
{
    const char* Nom;
    int Image;           // in imglst_CraftGrand and imglst_CraftPetit, from 1; 0 for none
    const char* Travail; // what a menu tells of it
};

// In the order of the rows of ConfigRoyaume: position is the only link between row and craft.
inline constexpr std::array Métiers{
    Métier{"Armurerie", 8, "Fabrication des armures en métal."},
    Métier{"Couture", 7, "Fabrication des armures en tissu et en cuir."},
    Métier{"Empennage", 6, "Fabrication des armes en bois."},
    Métier{"Forge", 5, "Fabrication des armes en métal."},
    Métier{"Alchimie", 10, "Fabrication de teintures, potions et poisons."},
    Métier{"Arcanes", 9, "Fabrication des gemmes."},
    Métier{"Maroquinerie", 4, "Travail du cuir."},
    Métier{"Menuiserie", 3, "Travail du bois."},
    Métier{"Métallurgie", 2, "Travail du métal."},
    Métier{"Tissage", 1, "Travail du tissu."},
    Métier{"Légendaires", 0, ""},
};

inline constexpr int ImagePanier = 11; // behind the crafts

// The craft of that name. Failure (FailureKind::Program) when there is none.
const Métier& LeMétier(std::string_view Nom);

// A menu's entry for a craft, which bears its name.
SideMenu::Item EntréeMétier(std::string_view Nom);

} // namespace orvane
