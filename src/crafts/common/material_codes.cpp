#include "crafts/common/material_codes.h"

#include "app/queries.h"

namespace orvane {

namespace {

constexpr std::string_view CodePatron = "8";
constexpr std::string_view CodePrixLibre = "9";
constexpr std::string_view CodeSansMatériau = "10";

} // namespace

bool AUnMatériau(const LigneMatériau& Ligne)
{
    return Ligne.Code->Text != CodeSansMatériau;
}

bool EstLibre(const LigneMatériau& Ligne)
{
    return Ligne.Code->Text == CodePrixLibre;
}

void RésoudreMatériau(Variables& Globals, std::int16_t NuméroDegré, bool PatronCouronne,
                      LigneMatériau& Ligne)
{
    const std::string& Code = Ligne.Code->Text;
    if (!AUnMatériau(Ligne))
        return;
    if (Code == CodePatron) {
        Ligne.Nom.Text =
            PatronCouronne ? "Patron pour couronne tressée" : "Patron pour chapeau pointu";
        Ligne.PrixUnitaire.Text = "0,0050";
        return;
    }
    const Recordset Matériau =
        PremierEnregistrement(Globals, "SELECT * FROM Matériaux_Classique WHERE (Type=" + Code +
                                           " AND Degré=" + std::to_string(NuméroDegré) + ")");
    Ligne.Nom.Text = Matériau.Text("Nom");
    Ligne.PrixUnitaire.Text = Matériau.Text("Prix");
}

} // namespace orvane
