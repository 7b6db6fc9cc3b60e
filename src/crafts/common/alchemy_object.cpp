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
    Globals.TexteSQL = "SELECT Nom, " + Royaume + " FROM Matériaux WHERE Nom=" + Quoted(Nom.Text);
    const std::string Terminaison = PremierEnregistrement(Globals).Text(Royaume);
    Nom.Text = WithoutLastCharacters(Nom.Text, 1) + Terminaison;
    Globals.Enregistrements.Empty();
}

void ChargerObjetSup(Variables& Globals, const std::string& Nom, const ObjetSup& Où)
{
    Globals.TexteSQL = "SELECT * FROM R_AlchimieObjet WHERE (ListeObjets.Nom=" + Quoted(Nom) + ")";
    const Recordset Objet = PremierEnregistrement(Globals); // its own copy: the writes below nest
    Où.Niveau.Caption = Objet.Text("NiveauCraft");
    Où.Icône.Text = Objet.TextOrEmpty("Icône");
    Où.Matériaux.Charger(Objet, "Matériaux", true);
    TextBox& Premier = Où.Matériaux[1].Nom;
    if (FirstCharacters(Premier.Text, CharacterCount(BarresDeMétal)) == BarresDeMétal)
        RemplacerDernierCaractère(Globals, Premier);
}

} // namespace orvane
