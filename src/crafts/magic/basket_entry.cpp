#include "basket/orders.h"
#include "crafts/common/purchases.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "toolkit/calculation.h"

namespace orvane {

bool frm_ArtisanatsMagiques::HasChoice() const
{
    return (lbl_Artisanat.Caption == "Alchimie" ? cbo_Objet : cbo_DegréGemmes).Text != "";
}

void frm_ArtisanatsMagiques::cmd_AjouterPanier_Click()
{
    if (lbl_Artisanat.Caption == "Alchimie") {
        const bool Teinture = cbo_Produit.Text == "Teintures";
        const std::string Détail = Teinture ? cbo_ProduitDétaillé.Text + " : " : std::string();
        AjouterAuPanier(App, HasChoice(),
                        {Détail + cbo_Objet.Text, txt_NbObjetAlchimie, txt_PrixCoûtantAlchimie,
                         txt_PrixVenteAlchimie,
                         [this] { return Achetés(Lots({&txt_NbObjetAlchimie})); }});
    } else {
        AjouterAuPanier(
            App, HasChoice(),
            {cbo_TypeGemmes.Text + " " + cbo_SousTypeGemmes.Text + " " + cbo_DegréGemmes.Text,
             txt_ArcanesNbObjet, txt_ArcanesPrixCoûtantTotal, txt_ArcanesPrixVenteTotal,
             [this] { return Achetés(LotsDeGemmes()); }},
            "Aucune gemme sélectionnée.");
    }
}

// One gem takes its bill as often as the count of the alchemy side multiplies its cost.
std::int64_t frm_ArtisanatsMagiques::LotsDeGemmes()
{
    const Montant Une = CoûtObjetSup() + Ingrédients.Somme(PrixVide::Zéro);
    const std::int64_t Fois = M(txt_ArcanesPrixCoûtant) == Une ? 1 : Lots({&txt_NbObjetAlchimie});
    return Lots({&txt_ArcanesNbObjet, &txt_ArcanesNbEssais}) * Fois;
}

Achats frm_ArtisanatsMagiques::Achetés(std::int64_t Lots)
{
    return AchatsPour(Lots, {{&Ingrédients}, {&MatériauxSup, &txt_NbAlchimieObjetSup}});
}

} // namespace orvane
