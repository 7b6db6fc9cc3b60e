#include "crafts/common/material_codes.h"

#include "app/queries.h"

namespace orvane {

void RésoudreMatériau(Variables& Globals, const std::string& Code, std::int16_t NuméroDegré,
                      bool PatronCouronne, TextBox& Nom, TextBox& Prix)
{
    if (Code == CodeSansMatériau)
        return;
    if (Code == CodePatron) {
        Nom.Text = PatronCouronne ? "Patron pour couronne tressée" : "Patron pour chapeau pointu";
        Prix.Text = "0,0050";
        return;
    }
    Globals.TexteSQL = "SELECT * FROM Matériaux_Classique WHERE (Type=" + Code +
                       " AND Degré=" + std::to_string(NuméroDegré) + ")";
    const Recordset& Matériau = PremierEnregistrement(Globals);
    Nom.Text = Matériau.Text("Nom");
    Prix.Text = Matériau.Text("Prix");
    Globals.Enregistrements.Empty();
}

} // namespace orvane
