#include "crafts/common/craft_menu.h"

namespace orvane {

namespace {

constexpr int IcônePanier = 10; // icons count from 0
constexpr SideMenu::Colours Couleurs{RGB(0, 0, 0), RGB(255, 255, 255), RGB(255, 255, 255),
                                     RGB(100, 100, 100)};

} // namespace

void ConstruireMenu(SideMenu& Menu, frm_Configuration& Configuration,
                    const std::vector<GroupeMenu>& Groupes)
{
    Menu.Attach(Configuration.imglst_CraftPetit, Configuration.imglst_CraftGrand);
    std::vector<SideMenu::Bar> Barres;
    Barres.reserve(Groupes.size() + 1);
    for (const GroupeMenu& Each : Groupes)
        Barres.push_back({Each.Clé, Each.Titre, Each.Tip, Couleurs, Configuration.pct_Logo.Picture,
                          Each.Entrées});
    Barres.push_back({"Panier",
                      "Panier",
                      "Gestion du panier.",
                      Couleurs,
                      {},
                      {{"OuvrirPanier", VoirPanier, IcônePanier, ""}}});
    Menu.Build(std::move(Barres));
}

} // namespace orvane
