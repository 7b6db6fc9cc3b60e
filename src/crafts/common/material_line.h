#pragma once

#include "base/montant.h"
#include "toolkit/placing.h"

#include <string_view>

// A line of a bill of materials, the same on every craft screen: name, "x", quantity, "=", price.
namespace orvane {

// The name of a slot that holds no material.
inline constexpr std::string_view SansNom = "(aucun)";

struct LigneMatériau
{
    TextBox& Nom;
    Label& Fois;
    TextBox& Qté;
    Label& Égale;
    TextBox& Prix;
};

// Widths of a line's boxes, in pixels; the signs between them take SigneLarge each.
struct ColonnesMatériau
{
    int Nom;
    int Qté;
    int Prix;
};

inline constexpr int SigneLarge = 14;

void Placer(const LigneMatériau& Ligne, int X, int Y, const ColonnesMatériau& Colonnes);
void Montrer(const LigneMatériau& Ligne, bool Montrée);

// The price of a line from its unit price and quantity, a product of two amounts; both texts empty
// give "0". A wrong text leaves the price as it was, shown as stale.
void CalculerPrixLigne(TextBox& PrixUnitaire, TextBox& Qté, TextBox& Prix);

// A line price in a sum: the empty text, as before the first object, counts as 0.
Montant PrixLigne(TextBox& Prix);

// Opens a line price to typing, or closes it, with the ground of the box that looks so.
void PoserVerrou(TextBox& Prix, bool Libre, const TextBox& Ouverte, const TextBox& Fermée);

} // namespace orvane
