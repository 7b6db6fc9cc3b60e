#include "crafts/common/craft_menu.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "toolkit/visibility.h"
#include "toolkit/writing.h"

// The two groups of controls, and what a pick clears below it.
namespace orvane {

void frm_ArtisanatsMagiques::PrendreAlchimie()
{
    auto& Configuration = App.Feuilles.Get<frm_Configuration>();
    lbl_Artisanat.Caption = "Alchimie";
    pct_Artisanat.Picture = Configuration.imglst_CraftGrand.Picture(10);
    AfficherAlchimie(true);
    AfficherArcanes(false);
}

void frm_ArtisanatsMagiques::PrendreArcanes()
{
    auto& Configuration = App.Feuilles.Get<frm_Configuration>();
    lbl_Artisanat.Caption = "Arcanes";
    pct_Artisanat.Picture = Configuration.imglst_CraftGrand.Picture(9);
    AfficherAlchimie(false);
    AfficherArcanes(true);
}

void frm_ArtisanatsMagiques::AfficherAlchimie(bool Visible)
{
    ShowAll({&Shp_AlchimieChoix,
             &lbl_AlchimieChoix,
             &lbl_Produit,
             &cbo_Produit,
             &lbl_ProduitDétaillé,
             &cbo_ProduitDétaillé,
             &lbl_Objet,
             &cbo_Objet,
             &shp_AlchimieObjet,
             &lbl_Caractéristiques,
             &lbl_NiveauObjet,
             &txt_NiveauObjet,
             &lbl_EffetObjet,
             &txt_EffetObjet,
             &lbl_DuréeObjet,
             &txt_DuréeObjet,
             &lbl_valeurObjet,
             &txt_ValeurObjet,
             &lbl_RésistObjet,
             &txt_RésistObjet,
             &pct_IconeAlchimie,
             &shp_AlchimiePrix,
             &lbl_PrixAlchimie,
             &lbl_AlchimieNbObjet,
             &txt_NbObjetAlchimie,
             &lbl_AlchimiePrixCoûtant,
             &txt_PrixCoûtantAlchimie,
             &lbl_AlchimiePrixvente,
             &txt_PrixVenteAlchimie,
             &lbl_AlchimiePrixrevente,
             &txt_PrixReventeAlchimie},
            Visible);
    ShowAll({&cbo_Type, &lbl_Type, &txt_ChargesObjet, &lbl_ChargesObjet}, false);
}

void frm_ArtisanatsMagiques::AfficherArcanes(bool Visible)
{
    ShowAll({&shp_ArcanesChoix,
             &lbl_ArcanesGemmes,
             &lbl_ArcanesBonus,
             &lbl_ArcanesType,
             &lbl_ArcanesSousType,
             &cbo_TypeGemmes,
             &cbo_SousTypeGemmes,
             &cbo_TypeBonus,
             &cbo_SousTypeBonus,
             &pct_IconeArcanes,
             &shp_ArcanesPrix,
             &lbl_ArcanesInfos,
             &lbl_ArcanesQualité,
             &lbl_ArcanesQuantité,
             &lbl_ArcanesToutInclus,
             &lbl_ArcanesPrixCoûtant,
             &txt_ArcanesPrixCoûtant,
             &lbl_ArcanesPrixRevente,
             &txt_ArcanesPrixRevente,
             &lbl_ArcanesPrixVente,
             &txt_ArcanesPrixVente,
             &lbl_ArcanesNbEssais,
             &txt_ArcanesNbEssais,
             &lbl_ArcanesPrixCoûtantQualité,
             &txt_ArcanesPrixCoûtantQualité,
             &lbl_ArcanesPrixVenteQualité,
             &txt_ArcanesPrixVenteQualité,
             &lbl_ArcanesNbObjet,
             &txt_ArcanesNbObjet,
             &lbl_ArcanesPrixCoûtantQuantité,
             &txt_ArcanesPrixCoûtantQuantité,
             &lbl_ArcanesPrixVenteQuantité,
             &txt_ArcanesPrixVenteQuantité,
             &lbl_ArcanesPrixCoûtantTotal,
             &txt_ArcanesPrixCoûtantTotal,
             &lbl_ArcanesPrixVenteTotal,
             &txt_ArcanesPrixVenteTotal},
            Visible);
    ShowAll({&cbo_DegréGemmes, &cbo_DegréBonus, &lbl_ArcanesDegré}, false);
}

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
