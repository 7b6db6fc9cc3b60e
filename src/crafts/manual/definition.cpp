#include "crafts/common/craft_frame.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "toolkit/placing.h"
#include "toolkit/visibility.h"

// Where the controls of the manual crafts stand and what they say until a skin moves them. Three
// columns: the menu, the walk with the bill of materials, the object.
namespace orvane {

using namespace cadre;

void frm_ArtisanatsManuels::Définir()
{
    cadre::Placer(*this, {Bar_Menus, img_Bannière, shp_Artisanat, pct_Artisanat, lbl_Artisanat});
    DéfinirChoix();
    DéfinirObjet();
    DéfinirMatériaux();
    DéfinirVente();
    DéfinirObjetSup();
    ShowAll({&txt_Sup, &txt_Image, &txt_Icône, &txt_IconeObjetSup, &txt_ObjetSupBis}, false);
    txt_Image.Text.StartWith("Vide"); // so that the first empty text shows the placeholder
    PlacerBoutons(cmd_AjouterPanier, cmd_Retour);
}

void frm_ArtisanatsManuels::DéfinirChoix()
{
    PlacePanel(shp_Choix, {MiddleX, 86, MiddleWide, 166});
    PlaceHeading(lbl11, "Choix de l'objet à fabriquer", {MiddleX + 14, 90, 400, High});
    struct Row
    {
        Label& Name;
        const char* Words;
        ComboBox& List;
        int Y;
    };
    for (const Row& Each :
         {Row{lbl14, "Produit :", cbo_Produit, 118},
          Row{lbl15, "Produit détaillé :", cbo_ProduitDétaillé, 150},
          Row{lbl16, "Objet :", cbo_Objet, 182}, Row{lbl_Degré, "Degré :", cbo_Degré, 216}}) {
        PlaceLabel(Each.Name, Each.Words, {MiddleX + 14, Each.Y, 112, High});
        Place(Each.List, {MiddleX + 128, Each.Y, 338, 25}, Each.Words);
    }
    for (ComboBox* Walk : {&cbo_Produit, &cbo_ProduitDétaillé, &cbo_Objet})
        Walk->Sorted = true;
    cbo_Degré.Width = 3135;
    PlaceLabel(lbl_TypeDégats, "Type :", {MiddleX + 218, 216, 48, High});
    Place(cbo_TypeDégats, {MiddleX + 268, 216, 198, 25}, "Type");
    ShowAll({&lbl_Degré, &cbo_Degré, &lbl_TypeDégats, &cbo_TypeDégats}, false);
}

void frm_ArtisanatsManuels::DéfinirObjet()
{
    PlacePanel(shp_Niveau, {RightX, 86, RightWide, 58});
    PlaceHeading(lbl12, "Niveau", {RightX + 14, 102, 120, 26});
    PlaceTitle(lbl_Niveau, "", {RightX + 150, 98, 90, 34});
    lbl_Niveau.Align = Alignment::Right;
    Place(img_Niveau, {RightX + 254, 103, 24, 24}, "Niveau");

    PlacePanel(shp_Objet, {RightX, 154, RightWide, 228});
    PlaceHeading(lbl31, "Informations sur l'objet", {RightX + 14, 158, 260, High});
    PlaceField(lbl32, "Niveau :", txt_Niveau, {RightX + 14, 188, 58, High}, 54);
    PlaceField(lbl_AF, "AF :", txt_AF, {RightX + 14, 218, 58, High}, 54);
    PlaceField(lbl_Dps, "Dps : ", txt_Dps, {RightX + 14, 248, 58, High}, 54);
    PlaceField(lbl_Vit, "Vit. :", txt_Vit, {RightX + 14, 278, 58, High}, 54, "Vitesse");
    Place(img_Icône, {RightX + 14, 306, 32, 32});
    Place(img_Objet, {RightX + 134, 188, 150, 150});
    img_Objet.Depicts = &cbo_Objet.Text;
    PlaceField(lbl_BonusSpécial, "Bonus spécial : ", txt_BonusSpécial,
               {RightX + 14, 346, 108, High}, 162);
    ShowAll({&lbl_AF, &txt_AF, &lbl_Dps, &txt_Dps, &lbl_Vit, &txt_Vit, &lbl_BonusSpécial,
             &txt_BonusSpécial},
            false);
}

void frm_ArtisanatsManuels::DéfinirMatériaux()
{
    PlacePanel(shp_Matériaux, {MiddleX, 262, MiddleWide, 278});
    PlaceHeading(lbl21, "Matériaux", {MiddleX + 14, 266, 300, High});
    Matériaux.Placer(MiddleX + 14, 292, 29, {268, 42, 114});
    Matériaux.CommencerParZéro();
    for (LigneMatériau& Each : Matériaux)
        Each.Prix.Accepts = NumberKind::Montant;
    PlaceField(lbl23, "Prix coûtant :", txt_PrixCoûtant, {MiddleX + 150, 474, 202, High}, 114,
               "Matériaux, prix coûtant");
    PlaceField(lbl22, "Prix de revente à un PNJ :", txt_PrixRevente,
               {MiddleX + 150, 504, 202, High}, 114);
    for (Label* Total : {&lbl23, &lbl22}) {
        Total->Align = Alignment::Right;
        Total->Width = Total->Width - 8 * TwipsPerPixel;
    }
    txt_PrixCoûtant.Text.StartWith("0");
    txt_PrixRevente.Text.StartWith("0");
}

void frm_ArtisanatsManuels::DéfinirVente()
{
    PlacePanel(shp_InfosVente, {MiddleX, 550, MiddleWide, 140});
    PlaceHeading(lbl_InfosVente, "Informations de vente", {MiddleX + 14, 556, 300, High});
    PlaceField(lbl411, "Nb d'objets :", txt_NbObjet, {MiddleX + 14, 594, 140, High}, 66,
               "Nombre d'objets");
    PlaceField(lbl44, "Nb d'essais suppl. :", txt_NbEssais, {MiddleX + 14, 634, 140, High}, 66,
               "Nombre d'essais supplémentaires");
    PlaceField(lbl48, "Prix coûtant :", txt_PrixCoûtantTotal, {MiddleX + 236, 594, 100, High}, 130,
               "Vente, prix coûtant");
    PlaceField(lbl42, "Prix de vente :", txt_PrixVente, {MiddleX + 236, 634, 100, High}, 130);
    txt_NbObjet.Text.StartWith("1");
    txt_NbEssais.Text.StartWith("0");
    txt_PrixCoûtantTotal.Text.StartWith("0");
    txt_PrixVente.Text.StartWith("0");
    txt_PrixVente.IsAnswer = true;
    txt_NbObjet.OpenFor(NumberKind::Entier16);
    txt_NbEssais.OpenFor(NumberKind::Entier16);
}

void frm_ArtisanatsManuels::DéfinirObjetSup()
{
    PlacePanel(shp_ObjetSup, {RightX, 392, RightWide, 242});
    PlaceHeading(lbl_ObjetSup, "Objet nécessaire", {RightX + 14, 396, 220, High});
    Place(txt_ObjetSup, {RightX + 14, 424, 230, High}, "Objet nécessaire, nom");
    Place(img_ObjetSup, {RightX + 252, 416, 32, 32});
    PlaceField(lbl_NbObjetSup, "Nb :", txt_NbObjetSup, {RightX + 14, 454, 36, High}, 44,
               "Objet nécessaire, nombre");
    PlaceLabel(lbl_ObjetSupNiveau, "Niveau :", {RightX + 112, 454, 58, High});
    PlaceLabel(lbl_ObjetSupNiveauCraft, "", {RightX + 172, 454, 50, High}, Alignment::Right);
    Place(img_ObjetSupNiveau, {RightX + 232, 454, 24, 24}, "Objet nécessaire, niveau");
    MatériauxSup.Placer(RightX + 14, 484, 28, {166, 26, 50}, "Objet nécessaire");
    PlaceField(lbl_ObjetSUpPrixCoûtant, "Prix :", txt_ObjetSUpPrixCoûtant,
               {RightX + 128, 600, 56, High}, 100, "Objet nécessaire, prix");
    lbl_ObjetSUpPrixCoûtant.Align = Alignment::Right;
    txt_NbObjetSup.Text.StartWith("1");
    txt_ObjetSUpPrixCoûtant.Text.StartWith("0");
    txt_ObjetSUpPrixCoûtant.OpenFor(NumberKind::Montant);
    txt_ObjetSup.Locked = false;

    MontrerObjetSup(false); // until an object asks for another one
}

} // namespace orvane
