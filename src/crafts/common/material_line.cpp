#include "crafts/common/material_line.h"

#include "toolkit/calculation.h"
#include "toolkit/visibility.h"

namespace orvane {

void Placer(const LigneMatériau& Ligne, int X, int Y, const ColonnesMatériau& Colonnes)
{
    constexpr int High = 24;
    Place(Ligne.Nom, {X, Y, Colonnes.Nom, High});
    Ligne.Nom.Align = Alignment::Left;
    X += Colonnes.Nom;
    PlaceLabel(Ligne.Fois, "x", {X, Y, SigneLarge, High}, Alignment::Centre);
    X += SigneLarge;
    Place(Ligne.Qté, {X, Y, Colonnes.Qté, High});
    X += Colonnes.Qté;
    PlaceLabel(Ligne.Égale, "=", {X, Y, SigneLarge, High}, Alignment::Centre);
    Place(Ligne.Prix, {X + SigneLarge, Y, Colonnes.Prix, High});
}

void Montrer(const LigneMatériau& Ligne, bool Montrée)
{
    ShowAll({&Ligne.Nom, &Ligne.Qté, &Ligne.Fois, &Ligne.Égale, &Ligne.Prix}, Montrée);
}

void CalculerPrixLigne(TextBox& PrixUnitaire, TextBox& Qté, TextBox& Prix)
{
    if (PrixUnitaire.Text == "" && Qté.Text == "") {
        Prix.Text = "0";
        return;
    }
    std::string Produit;
    if (Calculate({&Prix}, [&] { Produit = T(M(PrixUnitaire) * M(Qté)); }))
        Prix.Text = Produit;
}

Montant PrixLigne(TextBox& Prix)
{
    return Prix.Text == "" ? Montant() : M(Prix);
}

void PoserVerrou(TextBox& Prix, bool Libre, const TextBox& Ouverte, const TextBox& Fermée)
{
    Prix.Locked = !Libre;
    Prix.BackColor = Libre ? Ouverte.BackColor() : Fermée.BackColor();
}

} // namespace orvane
