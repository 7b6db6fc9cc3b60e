#include "crafts/common/material_codes.h"

#include "app/queries.h"

namespace orvane {

void RésoudreMatériau(Variables& Globals, std::int16_t NuméroDegré, bool PatronCouronne,
                      LigneMatériau& Ligne)
{
    const std::string& Code = Ligne.Code->Text;
    if (Code == CodeSansMatériau)
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
