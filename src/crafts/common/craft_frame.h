#pragma once

#include "toolkit/placing.h"

// What the three craft screens look like alike: the menu at the left, banner and trade above, a
// middle and a right column of panels, the two buttons below. In pixels at 96 dots per inch.
namespace orvane::cadre {

inline constexpr int MiddleX = 214;
inline constexpr int MiddleWide = 480;
inline constexpr int RightX = 704;
inline constexpr int RightWide = 296;
inline constexpr int High = 24;   // of a line
inline constexpr int Margin = 14; // inside a panel

struct Tête
{
    SideMenu& Menu;
    Image& Bannière;
    Shape& Cadre;
    PictureBox& Emblème;
    Label& Artisanat;
};

void Placer(Screen& Which, const Tête& Haut);
void PlacerBoutons(Button& AjouterPanier, Button& Retour);

} // namespace orvane::cadre
