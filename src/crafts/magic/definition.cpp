#include "crafts/common/craft_frame.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "toolkit/visibility.h"

// Where the controls of the magic crafts stand and what they say until a skin moves them. The menu
// at the left; choice, materials and prices one below the other; level and extra object at the
// right. The two crafts take the same places.
namespace orvane {

using namespace cadre;

namespace {

constexpr int ChoiceY = 86;
constexpr int ChoiceHigh = 166;
constexpr int MaterialsY = 262;
constexpr int PricesY = 482;

// A caption above its box.
void PlaceStacked(Label& Name, const char* Words, TextBox& Value, int X, int Y, int Wide)
{
    PlaceLabel(Name, Words, {X, Y, Wide, 20});
    Place(Value, {X, Y + 20, Wide, High});
}

} // namespace

void frm_ArtisanatsMagiques::Définir()
{
    cadre::Placer(*this, {Bar_Menus, img_Bannière, shp_Artisanat, pct_Artisanat, lbl_Artisanat});
    lbl_Artisanat.Caption = "Alchimie";
    DéfinirChoixAlchimie();
    DéfinirCaractéristiques();
    DéfinirChoixArcanes();
    DéfinirMatériaux();
    DéfinirObjetSup();
    DéfinirPrixAlchimie();
    DéfinirPrixArcanes();
    AfficherArcanes(false);
    ShowAll({&txt_IcôneAlchimie, &txt_IcôneArcanes, &txt_AlchimieIconeObjetSup, &txt_Degré,
             &txt_ArcanesCoefQté2},
            false);
    PlacerBoutons(cmd_AjouterPanier, cmd_Retour);
}

void frm_ArtisanatsMagiques::DéfinirChoixAlchimie()
{
    constexpr int X = MiddleX + Margin;
    PlacePanel(Shp_AlchimieChoix, {MiddleX, ChoiceY, MiddleWide, ChoiceHigh});
    PlaceHeading(lbl_AlchimieChoix, "Sélectionner un objet", {X, 90, 400, High});
    struct Row
    {
        Label& Name;
        const char* Words;
        ComboBox& List;
        int Y;
        int Wide;
    };
    for (const Row& Each : {Row{lbl_Produit, "Produit :", cbo_Produit, 122, 358},
                            Row{lbl_ProduitDétaillé, "Détail :", cbo_ProduitDétaillé, 164, 257},
                            Row{lbl_Objet, "Objet :", cbo_Objet, 206, 358}}) {
        PlaceLabel(Each.Name, Each.Words, {X, Each.Y, 90, High});
        Place(Each.List, {X + 92, Each.Y, Each.Wide, 25}, Each.Words);
    }
    PlaceLabel(lbl_Type, "Type :", {X + 228, 164, 52, High});
    Place(cbo_Type, {X + 282, 164, 168, 25}, "Type");
    for (ComboBox* Each : {&cbo_Produit, &cbo_ProduitDétaillé, &cbo_Type, &cbo_Objet})
        Each->Sorted = true;
    ShowAll({&lbl_Type, &cbo_Type}, false);
}

void frm_ArtisanatsMagiques::DéfinirCaractéristiques()
{
    constexpr int X = RightX + Margin;
    PlacePanel(shp_AlchimieObjet, {RightX, ChoiceY, RightWide, ChoiceHigh});
    PlaceHeading(lbl_Caractéristiques, "Caractéristiques de l'objet", {X, 90, 270, High});
    PlaceField(lbl_NiveauObjet, "Niveau :", txt_NiveauObjet, {X, 118, 80, High}, 54);
    PlaceField(lbl_ChargesObjet, "Charges :", txt_ChargesObjet, {X + 148, 118, 66, High}, 54);
    PlaceField(lbl_EffetObjet, "Effet : ", txt_EffetObjet, {X, 150, 80, High}, 188);
    PlaceField(lbl_valeurObjet, "Valeur : ", txt_ValeurObjet, {X, 182, 80, High}, 188);
    PlaceField(lbl_RésistObjet, "Résistance : ", txt_RésistObjet, {X, 214, 80, High}, 60);
    PlaceField(lbl_DuréeObjet, "Durée : ", txt_DuréeObjet, {X + 148, 214, 50, High}, 70);
    ShowAll({&lbl_ChargesObjet, &txt_ChargesObjet}, false);
}

void frm_ArtisanatsMagiques::DéfinirChoixArcanes()
{
    constexpr int X = MiddleX + Margin;
    constexpr int GemX = X + 140;
    constexpr int BonusX = GemX + 314;
    constexpr int ListWide = 300;
    PlacePanel(shp_ArcanesChoix, {MiddleX, ChoiceY, RightX + RightWide - MiddleX, ChoiceHigh});
    PlaceHeading(lbl_ArcanesGemmes, "Gemmes", {GemX, 90, ListWide, High});
    PlaceHeading(lbl_ArcanesBonus, "Bonus", {BonusX, 90, ListWide, High});
    struct Row
    {
        Label& Name;
        const char* Words;
        const char* Called;
        ComboBox& Gems;
        ComboBox& Bonus;
        int Y;
    };
    for (const Row& Each :
         {Row{lbl_ArcanesType, "Type :", "type", cbo_TypeGemmes, cbo_TypeBonus, 122},
          Row{lbl_ArcanesSousType, "Sous-Type :", "sous-type", cbo_SousTypeGemmes,
              cbo_SousTypeBonus, 164},
          Row{lbl_ArcanesDegré, "Degré de finition :", "degré de finition", cbo_DegréGemmes,
              cbo_DegréBonus, 206}}) {
        PlaceLabel(Each.Name, Each.Words, {X, Each.Y, 132, High});
        Place(Each.Gems, {GemX, Each.Y, ListWide, 25}, std::string("Gemmes, ") + Each.Called);
        Place(Each.Bonus, {BonusX, Each.Y, ListWide, 25}, std::string("Bonus, ") + Each.Called);
    }
    for (ComboBox* Each :
         {&cbo_TypeGemmes, &cbo_SousTypeGemmes, &cbo_TypeBonus, &cbo_SousTypeBonus})
        Each->Sorted = true; // the degrees keep the order of their table
}

void frm_ArtisanatsMagiques::DéfinirMatériaux()
{
    PlacePanel(shp_AlchimieMatériaux, {MiddleX, MaterialsY, MiddleWide, 210});
    PlaceHeading(lbl_AlchimieMatériaux, "Matériaux", {MiddleX + Margin, MaterialsY + 4, 300, High});
    Ingrédients.Placer(MiddleX + Margin, MaterialsY + 30, 29, {268, 42, 114});
    for (LigneMatériau& Each : Ingrédients)
        Each.Prix.Accepts = NumberKind::Montant;
    constexpr int X = RightX + Margin;
    PlacePanel(shp_AlchimieArtisanat, {RightX, MaterialsY, RightWide, 66});
    PlaceHeading(lbl_ArtisanatObjet, "Artisanat", {X, MaterialsY + 4, 150, High});
    PlaceLabel(lbl_NiveauCraftAlchimie, "Niveau :", {X, MaterialsY + 34, 60, High});
    PlaceTitle(lbl_NiveauAlchimie, "", {X + 62, MaterialsY + 30, 74, 30});
    Place(img_NiveauAlchimie, {X + 140, MaterialsY + 33, 24, 24}, "Niveau");
    Place(img_NiveauArcanes, {X + 172, MaterialsY + 33, 24, 24});
    for (PictureBox* Icon : {&pct_IconeAlchimie, &pct_IconeArcanes})
        Place(*Icon, {RightX + RightWide - Margin - 32, MaterialsY + 17, 32, 32});
    pct_IconeAlchimie.Depicts = &cbo_Objet.Text;
    pct_IconeArcanes.Depicts = &cbo_TypeGemmes.Text;
}

void frm_ArtisanatsMagiques::DéfinirObjetSup()
{
    constexpr int X = RightX + Margin;
    constexpr int Y = MaterialsY + 76;
    PlacePanel(shp_AlchimieObjetSup, {RightX, Y, RightWide, 242});
    PlaceHeading(lbl_AlchimieObjetSup, "Objet nécessaire", {X, Y + 4, 220, High});
    Place(txt_AlchimieObjetSup, {X, Y + 32, 230, High}, "Objet nécessaire, nom");
    Place(img_AlchimieObjetSup, {X + 238, Y + 24, 32, 32});
    PlaceField(lbl_NbAlchimieObjetSup, "Nb :", txt_NbAlchimieObjetSup, {X, Y + 62, 36, High}, 44,
               "Objet nécessaire, nombre");
    PlaceLabel(lbl_AlchimieObjetSupNiveau, "Niveau :", {X + 98, Y + 62, 58, High});
    PlaceLabel(lbl_AlchimieObjetSupNiveauCraft, "", {X + 158, Y + 62, 50, High}, Alignment::Right);
    Place(img_AlchimieObjetSupNiveau, {X + 218, Y + 62, 24, 24}, "Objet nécessaire, niveau");
    MatériauxSup.Placer(X, Y + 92, 28, {166, 26, 50}, "Objet nécessaire");
    PlaceField(lbl_AlchimieObjetSUpPrixCoûtant, "Prix coûtant :", txt_AlchimieObjetSUpPrixCoûtant,
               {X + 70, Y + 208, 100, High}, 100, "Objet nécessaire, prix coûtant");
    txt_NbAlchimieObjetSup.Text.StartWith("1");
    txt_AlchimieObjetSUpPrixCoûtant.Text.StartWith("0");
    txt_AlchimieObjetSup.Locked = false;
    MatériauxSup[2].Prix.Accepts = NumberKind::Montant;
    txt_AlchimieObjetSup_Change(); // the whole panel is hidden until an object asks for another one
}

void frm_ArtisanatsMagiques::DéfinirPrixAlchimie()
{
    constexpr int X = MiddleX + Margin;
    PlacePanel(shp_AlchimiePrix, {MiddleX, PricesY, MiddleWide, 208});
    PlaceHeading(lbl_PrixAlchimie, "Calcul des prix", {X, PricesY + 6, 300, High});
    struct Row
    {
        Label& Name;
        const char* Words;
        TextBox& Value;
        const char* Initial;
        const char* Called;
    };
    int Y = PricesY + 42;
    for (const Row& Each :
         {Row{lbl_AlchimieNbObjet, "Nb d'obj. fabriqués :", txt_NbObjetAlchimie, "1",
              "Nombre d'objets fabriqués"},
          Row{lbl_AlchimiePrixCoûtant, "Prix coûtant :", txt_PrixCoûtantAlchimie, "0",
              "Prix coûtant"},
          Row{lbl_AlchimiePrixvente, "Px de vente :", txt_PrixVenteAlchimie, "0", "Prix de vente"},
          Row{lbl_AlchimiePrixrevente, "Revente à un PNJ :", txt_PrixReventeAlchimie, "0",
              "Prix de revente à un PNJ"}}) {
        PlaceField(Each.Name, Each.Words, Each.Value, {X, Y, 200, High}, 160, Each.Called);
        Each.Value.Text.StartWith(Each.Initial);
        Y += 40;
    }
    txt_NbObjetAlchimie.OpenFor(NumberKind::Entier16);
    txt_PrixVenteAlchimie.IsAnswer = true;
}

void frm_ArtisanatsMagiques::DéfinirPrixArcanes()
{
    constexpr int Wide = 102;
    constexpr int Step = 118;
    constexpr int One = MiddleX + Margin;
    constexpr int WithTrials = One + Step;
    constexpr int Several = WithTrials + Step;
    constexpr int All = Several + Step;
    PlacePanel(shp_ArcanesPrix, {MiddleX, PricesY, MiddleWide, 208});
    PlaceHeading(lbl_ArcanesInfos, "Infos de vente", {One, PricesY + 6, Wide + 8, High});
    PlaceHeading(lbl_ArcanesQualité, "Qualité", {WithTrials, PricesY + 6, Wide, High});
    PlaceHeading(lbl_ArcanesQuantité, "Quantité", {Several, PricesY + 6, Wide, High});
    PlaceHeading(lbl_ArcanesToutInclus, "Tout inclus", {All, PricesY + 6, Wide, High});

    struct Cell
    {
        Label& Name;
        const char* Words;
        TextBox& Value;
        int X;
        int Row;
        const char* Called;
    };
    const Cell Cells[] = {
        {lbl_ArcanesPrixCoûtant, "Prix coûtant :", txt_ArcanesPrixCoûtant, One, 0, "Prix coûtant"},
        {lbl_ArcanesPrixRevente, "Px revente PNJ :", txt_ArcanesPrixRevente, One, 1,
         "Prix de revente à un PNJ"},
        {lbl_ArcanesPrixVente, "Px vente :", txt_ArcanesPrixVente, One, 2, "Prix de vente"},
        {lbl_ArcanesNbEssais, "Nb essais :", txt_ArcanesNbEssais, WithTrials, 0, "Nombre d'essais"},
        {lbl_ArcanesPrixCoûtantQualité, "Px coûtant :", txt_ArcanesPrixCoûtantQualité, WithTrials,
         1, "Qualité, prix coûtant"},
        {lbl_ArcanesPrixVenteQualité, "Px vente :", txt_ArcanesPrixVenteQualité, WithTrials, 2,
         "Qualité, prix de vente"},
        {lbl_ArcanesNbObjet, "Nb d'obj. :", txt_ArcanesNbObjet, Several, 0, "Nombre d'objets"},
        {lbl_ArcanesPrixCoûtantQuantité, "Px coûtant :", txt_ArcanesPrixCoûtantQuantité, Several, 1,
         "Quantité, prix coûtant"},
        {lbl_ArcanesPrixVenteQuantité, "Px vente :", txt_ArcanesPrixVenteQuantité, Several, 2,
         "Quantité, prix de vente"},
        {lbl_ArcanesPrixCoûtantTotal, "Prix coûtant :", txt_ArcanesPrixCoûtantTotal, All, 1,
         "Tout inclus, prix coûtant"},
        {lbl_ArcanesPrixVenteTotal, "Prix de vente : ", txt_ArcanesPrixVenteTotal, All, 2,
         "Tout inclus, prix de vente"},
    };
    for (const Cell& Each : Cells) {
        PlaceStacked(Each.Name, Each.Words, Each.Value, Each.X, PricesY + 38 + Each.Row * 54, Wide);
        Each.Value.Called = Each.Called;
        Each.Value.Text.StartWith("0");
    }
    txt_ArcanesNbObjet.Text.StartWith("1");
    txt_ArcanesPrixVenteTotal.IsAnswer = true;
    for (TextBox* Count : {&txt_ArcanesNbEssais, &txt_ArcanesNbObjet})
        Count->OpenFor(NumberKind::Entier16);
}

} // namespace orvane
