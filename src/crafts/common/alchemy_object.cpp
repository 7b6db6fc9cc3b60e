#include "crafts/common/alchemy_object.h"

#include "app/queries.h"
#include "base/text.h"

namespace orvane {

namespace {

constexpr std::string_view BarresDeMétal = "Barres de métal";

} // namespace

void RemplacerDernierCaractère(Variables& Globals, TextBox& Nom)
{
    const std::string& Royaume = Globals.RoyaumeCourant;
    const std::string Terminaison =
        PremierEnregistrement(Globals, "SELECT Nom, " + Royaume +
                                           " FROM Matériaux WHERE Nom=" + Quoted(Nom.Text))
            .Text(Royaume);
    Nom.Text = WithoutLastCharacters(Nom.Text, 1) + Terminaison;
}

void ChargerObjetSup(Variables& Globals, const std::string& Nom, const ObjetSup& Où)
{
    const Recordset Objet = PremierEnregistrement(
        Globals, "SELECT * FROM R_AlchimieObjet WHERE (ListeObjets.Nom=" + Quoted(Nom) + ")");
    Où.Niveau.Caption = Objet.Text("NiveauCraft");
    Où.Icône.Text = Objet.TextOrEmpty("Icône");
    Où.Matériaux.Charger(Objet, "Matériaux", true);
    TextBox& Premier = Où.Matériaux[1].Nom;
    if (FirstCharacters(Premier.Text, CharacterCount(BarresDeMétal)) == BarresDeMétal)
        RemplacerDernierCaractère(Globals, Premier);
}

} // namespace orvane
