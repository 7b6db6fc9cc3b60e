#include "basket/orders.h"
#include "crafts/common/purchases.h"
#include "crafts/manual/frm_artisanats_manuels.h"

namespace orvane {

// The row takes the texts that the boxes show. The check is made on the degree: an object without
// one has no prices.
void frm_ArtisanatsManuels::cmd_AjouterPanier_Click()
{
    const std::string Type = cbo_TypeDégats.Visible ? cbo_TypeDégats.Text + " " : std::string();
    AjouterAuPanier(App, HasChoice(),
                    {cbo_Objet.Text + " " + Type + cbo_Degré.Text, txt_NbObjet,
                     txt_PrixCoûtantTotal, txt_PrixVente, [this] { return Achetés(); }});
}

Achats frm_ArtisanatsManuels::Achetés()
{
    return AchatsPour(
        Lots({&txt_NbObjet, &txt_NbEssais}),
        {{&Matériaux}, {&MatériauxSup, &txt_NbObjetSup, &txt_ObjetSup, &txt_ObjetSUpPrixCoûtant}});
}

} // namespace orvane
