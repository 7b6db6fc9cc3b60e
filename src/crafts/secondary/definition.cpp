#include "crafts/common/craft_frame.h"
#include "crafts/secondary/frm_artisanats_secondaires.h"

// Where the controls of the secondary crafts stand and what they say until a skin moves them. Sale
// and recycling take the same place below the materials.
namespace orvane {

using namespace cadre;

namespace {

constexpr int MaterialsY = 196;
constexpr int BottomY = 448;

} // namespace

void frm_ArtisanatsSecondaires::Définir()
{
    cadre::Placer(*this, {Bar_Menus, img_Bannière, shp_Artisanat, pct_Artisanat, lbl_Artisanat});
    DéfinirChoix();
    DéfinirMatériaux();
    DéfinirVente();
    DéfinirRecyclage();
    AfficherVente(false);
    AfficherRecyclage(false);
    txt_Icône.Visible = false;
    txt_Image.Visible = false;
    txt_Image.Text.StartWith("Vide"); // so that the first empty text shows the placeholder
    PlacerBoutons(cmd_AjouterPanier, cmd_Retour);
}

void frm_ArtisanatsSecondaires::DéfinirChoix()
{
    constexpr int X = MiddleX + Margin;
    PlacePanel(shp_Choix, {MiddleX, 86, MiddleWide, 100});
    PlaceLabel(lbl_Zone1, "Objet :", {X, 102, 90, High});
    Place(cbo_ObjetSecondaire, {X + 92, 102, 360, 25}, "Objet");
    PlaceLabel(lbl_Zone2, "", {X, 144, 90, High});
    Place(cbo_Degré, {X + 92, 144, 360, 25}, "Degré");
    cbo_ObjetSecondaire.Sorted = true;

    PlacePanel(shp_Niveau, {RightX, 86, RightWide, 100});
    PlaceHeading(lbl12, "Niveau", {RightX + Margin, 90, 150, High});
    PlaceTitle(lbl_Niveau, "", {RightX + Margin, 122, 80, 34});
    Place(img_Niveau, {RightX + 104, 127, 24, 24}, "Niveau");
    Place(img_Icône, {RightX + RightWide - Margin - 32, 123, 32, 32});
}

void frm_ArtisanatsSecondaires::DéfinirMatériaux()
{
    constexpr int X = MiddleX + Margin;
    PlacePanel(shp_Matériaux, {MiddleX, MaterialsY, MiddleWide, 242});
    PlaceHeading(lbl21, "Matériaux", {X, MaterialsY + 4, 300, High});
    Matériaux.Placer(X, MaterialsY + 34, 33, {268, 42, 114});
    Matériaux.CommencerParZéro();
    PlaceField(lbl23, "Prix coûtant :", txt_PrixCoûtant, {X + 136, MaterialsY + 174, 202, High},
               114, "Matériaux, prix coûtant");
    PlaceField(lbl22, "Prix de revente à un PNJ :", txt_PrixRevente,
               {X + 136, MaterialsY + 206, 202, High}, 114);
    for (Label* Total : {&lbl23, &lbl22}) {
        Total->Align = Alignment::Right;
        Total->Width = Total->Width - 8 * TwipsPerPixel;
    }
    txt_PrixCoûtant.Text.StartWith("0");
    txt_PrixRevente.Text.StartWith("0");
}

void frm_ArtisanatsSecondaires::DéfinirVente()
{
    constexpr int X = MiddleX + Margin;
    PlacePanel(shp_ImageObjet, {RightX, MaterialsY, RightWide, 242});
    Place(img_Objet, {RightX + (RightWide - 150) / 2, MaterialsY + 46, 150, 150});
    img_Objet.Depicts = &cbo_ObjetSecondaire.Text;
    PlacePanel(shp_InfosVente, {MiddleX, BottomY, MiddleWide, 176});
    PlaceHeading(lbl_InfosVente, "Infos de Vente", {X, BottomY + 6, 300, High});
    PlaceField(lbl_SellerieNbObjets, "Nb d'objets :", txt_SellerieNbObjets,
               {X, BottomY + 44, 200, High}, 160, "Nombre d'objets");
    PlaceField(lbl_SelleriePrixCoûtant, "Prix coûtant :", txt_SelleriePrixCoûtant,
               {X, BottomY + 86, 200, High}, 160, "Vente, prix coûtant");
    PlaceField(lbl_SelleriePrixVente, "Prix de vente :", txt_SelleriePrixVente,
               {X, BottomY + 128, 200, High}, 160);
    txt_SellerieNbObjets.Text.StartWith("1");
    txt_SelleriePrixCoûtant.Text.StartWith("0");
    txt_SelleriePrixVente.Text.StartWith("0");
    txt_SelleriePrixVente.IsAnswer = true;
    txt_SellerieNbObjets.OpenFor(NumberKind::Entier16);
}

void frm_ArtisanatsSecondaires::DéfinirRecyclage()
{
    constexpr int X = MiddleX + Margin;
    constexpr int Wide = 324;
    PlacePanel(shp_Recyclage, {MiddleX, BottomY, MiddleWide, 176});
    PlaceHeading(lbl_Recyclage, "Gain du recyclage", {X, BottomY + 6, 300, High});
    PlaceField(lbl_RecyclageMatPremière, "Coût des matières premières suppl. :", txt_CoûtSuppl,
               {X, BottomY + 44, Wide, High}, 128, "Coût des matières premières supplémentaires");
    PlaceField(lbl_RecyclageNbObjets, "Nombre d'objets fabriqués : ", txt_NbObjet,
               {X, BottomY + 86, Wide, High}, 128);
    PlaceField(lbl_RecyclageGain, "Gain total  (Produit revente - coût mat 1ère) :", txt_Gain,
               {X, BottomY + 128, Wide, High}, 128, "Gain total");
    txt_CoûtSuppl.Text.StartWith("0");
    txt_NbObjet.Text.StartWith("1");
    txt_Gain.Text.StartWith("0");
    txt_Gain.IsAnswer = true;
    for (TextBox* Input : {&txt_CoûtSuppl, &txt_NbObjet}) // amounts both: 2,5 objects count 2,5
        Input->OpenFor(NumberKind::Montant);
}

} // namespace orvane
