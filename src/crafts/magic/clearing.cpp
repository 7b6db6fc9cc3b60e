#include "crafts/magic/frm_artisanats_magiques.h"
#include "toolkit/writing.h"

// What a pick clears below it.
namespace orvane {

// Clears the alchemy walk from one level down: 1 the products, 2 their details, 3 the filter, 4 the
// objects.
void frm_ArtisanatsMagiques::EffacerSélection(std::int16_t Palier)
{
    if (Palier <= 1)
        cbo_Produit.Text = "";
    if (Palier <= 2)
        cbo_ProduitDétaillé.Clear();
    if (Palier <= 3)
        cbo_Type.Text = "";
    if (Palier <= 4)
        cbo_Objet.Clear();
}

// The same for both sides of the gem walk: 1 the types, 2 the sub-types.
void frm_ArtisanatsMagiques::EffacerSélectionGemmes(std::int16_t Palier)
{
    if (Palier <= 1) {
        cbo_TypeGemmes.Text = "";
        cbo_TypeBonus.Text = "";
    }
    cbo_SousTypeGemmes.Clear();
    cbo_SousTypeBonus.Clear();
}

// Every value of both crafts, in an order that matters: most writes run handlers. Quantities fall
// before unit prices, so that line prices come out as 0; a count that falls back to 1 runs its sum
// on what is still there, and what that leaves stands.
void frm_ArtisanatsMagiques::EffacerMatériaux()
{
    Ingrédients.Vider();
    txt_AlchimieObjetSup.Text = "";
    WriteAll({&txt_PrixReventeAlchimie, &txt_PrixCoûtantAlchimie, &txt_PrixVenteAlchimie}, "0");
    txt_NbObjetAlchimie.Text = "1";
    MatériauxSup.Vider();
    txt_AlchimieObjetSUpPrixCoûtant.Text = "0";
    txt_NbAlchimieObjetSup.Text = "1";
    WriteAll({&txt_ArcanesPrixRevente, &txt_ArcanesPrixCoûtant, &txt_ArcanesPrixVente,
              &txt_ArcanesPrixCoûtantTotal, &txt_ArcanesPrixVenteTotal},
             "0");
    WriteAll({&txt_ArcanesNbEssais, &txt_ArcanesPrixCoûtantQualité, &txt_ArcanesPrixVenteQualité},
             "0");
    txt_ArcanesNbObjet.Text = "1";
    WriteAll({&txt_ArcanesPrixCoûtantQuantité, &txt_ArcanesPrixVenteQuantité}, "0");
}

} // namespace orvane
