#include "basket/orders.h"
#include "crafts/manual/frm_artisanats_manuels.h"

namespace orvane {

// The row takes the texts that the boxes show. The check is made on the degree: an object without
// one has no prices.
void frm_ArtisanatsManuels::cmd_AjouterPanier_Click()
{
    if (cbo_Degré.Text == "") {
        App.MsgBox("Aucun objet sélectionné.");
        return;
    }
    const std::string Type = cbo_TypeDégats.Visible ? cbo_TypeDégats.Text + " " : std::string();
    AjouterLigne(App, {cbo_Objet.Text + " " + Type + cbo_Degré.Text, txt_NbObjet,
                       txt_PrixCoûtantTotal, txt_PrixVente});
}

} // namespace orvane
