#include "crafts/common/craft_frame.h"

namespace orvane::cadre {

void Placer(Screen& Which, const Tête& Haut)
{
    SizeScreen(Which, 1008, 700);
    Place(Haut.Menu, {12, 10, 190, 680});
    Place(Haut.Bannière, {MiddleX - 4, 10, 590, 64});
    PlacePanel(Haut.Cadre, {812, 10, 188, 64});
    Place(Haut.Emblème, {822, 26, 32, 32});
    PlaceTitle(Haut.Artisanat, "", {860, 24, 130, 36});
}

void PlacerBoutons(Button& AjouterPanier, Button& Retour)
{
    constexpr int Y = 644;
    PlaceButton(AjouterPanier, "Ajouter au panier", "Ajouter l’objet à la commande en cours",
                {RightX, Y, 168, 46}, "Ctrl+Return");
    PlaceButton(Retour, "Retour", "Revenir à l’accueil", {RightX + 180, Y, 116, 46}, "Esc");
}

} // namespace orvane::cadre
