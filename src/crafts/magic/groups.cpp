#include "crafts/magic/frm_artisanats_magiques.h"
#include "settings/frm_configuration.h"
#include "toolkit/visibility.h"

// The two groups of controls, one for each craft: the menu shows one and hides the other.
namespace orvane {

void frm_ArtisanatsMagiques::PrendreAlchimie()
{
    PrendreMétier("Alchimie");
    AfficherAlchimie(true);
    AfficherArcanes(false);
}

void frm_ArtisanatsMagiques::PrendreArcanes()
{
    PrendreMétier("Arcanes");
    AfficherAlchimie(false);
    AfficherArcanes(true);
}

void frm_ArtisanatsMagiques::PrendreMétier(const char* Nom)
{
    lbl_Artisanat.Caption = Nom;
    Bar_Menus.InHand = Nom;
    pct_Artisanat.Picture = App.Feuilles.Get<frm_Configuration>().ImageMétier(Nom);
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

} // namespace orvane
