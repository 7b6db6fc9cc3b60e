#include "crafts/common/alchemy_object.h"

#include "app/queries.h"
#include "base/text.h"
#include "crafts/common/joined_column.h"

namespace orvane {

namespace {

constexpr std::string_view BarresDeMétal = "Barres de métal";

} // namespace

void RemplacerDernierCaractère(Variables& Globals, TextBox& Nom)
{
    const std::string& Royaume = Globals.RoyaumeCourant;
    Globals.TexteSQL = "SELECT Nom, " + Royaume + " FROM Matériaux WHERE Nom=" + Quoted(Nom.Text());
    const std::string Terminaison = PremierEnregistrement(Globals).Text(Royaume);
    Nom.Text = WithoutLastCharacters(Nom.Text(), 1) + Terminaison;
    Globals.Enregistrements.Empty();
}

void ChargerObjetSup(Variables& Globals, const std::string& Nom, const BlocObjetSup& Bloc)
{
    Globals.TexteSQL = "SELECT * FROM R_AlchimieObjet WHERE (ListeObjets.Nom=" + Quoted(Nom) + ")";
    const Recordset Objet = PremierEnregistrement(Globals); // its own copy: the writes below nest
    Bloc.Niveau.Caption = Objet.Text("NiveauCraft");
    Bloc.Icône.Text = Objet.TextOrEmpty("Icône");
    for (int i = 1; i <= 4; ++i) {
        Bloc.Noms[i].Text = Objet.Text(ColonneJointe("Matériaux", i, "Nom"));
        Bloc.Quantités[i].Text = i == 1 ? "1" : Objet.Text("Qté" + std::to_string(i));
        Bloc.PrixUnitaires[i].Text = Objet.Text(ColonneJointe("Matériaux", i, "Prix"));
    }
    const std::string& Premier = Bloc.Noms[1].Text();
    if (FirstCharacters(Premier, CharacterCount(BarresDeMétal)) == BarresDeMétal)
        RemplacerDernierCaractère(Globals, Bloc.Noms[1]);
}

} // namespace orvane
