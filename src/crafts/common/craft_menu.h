#pragma once

#include "settings/frm_configuration.h"

#include <string>
#include <vector>

// The side menu that the three craft screens share in form: groups of trades, then the basket.
namespace orvane {

inline constexpr const char* VoirPanier = "Voir le panier";

struct GroupeMenu
{
    std::string Clé;
    std::string Titre;
    std::string Tip;
    std::vector<SideMenu::Item> Entrées;
};

// Builds the whole menu, with the program's picture beside each group of trades.
void ConstruireMenu(SideMenu& Menu, frm_Configuration& Configuration,
                    const std::vector<GroupeMenu>& Groupes);

} // namespace orvane
