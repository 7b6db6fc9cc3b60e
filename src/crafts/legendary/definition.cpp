#include "crafts/legendary/frm_armes_legendaires.h"
#include "toolkit/visibility.h"

// Where the controls of the legendary weapons stand and what they say until a skin moves them.
// Above at the left the choice and the final bill, at the right the weapon and its sale; below, the
// bills of the three components side by side.
namespace orvane {

namespace {

constexpr int LeftX = 12;
constexpr int LeftWide = 484;
constexpr int RightX = 506;
constexpr int RightWide = 490;
constexpr int BillY = 136;
constexpr int BlocksY = 418;
constexpr int BlockWide = 322;
constexpr int High = 24;
constexpr int Margin = 14;

} // namespace

void frm_ArmesLégendaires::Définir()
{
    SizeScreen(*this, 1008, 700);
    DéfinirChoix();
    DéfinirInfos();
    DéfinirComposants();
    DéfinirVente();
    PlaceHeading(lbl_Détails,
                 "Détails des composants nécessaires à la confection de l'arme légendaire",
                 {LeftX + Margin, 388, 800, High});
    constexpr int Step = BlockWide + 9;
    DéfinirComposant(Arme, "Objet", LeftX);
    DéfinirComposant(Gemme, "Gemme", LeftX + Step);
    DéfinirComposant(Teinture, "Teinture", LeftX + 2 * Step);
    DéfinirCachés();
    constexpr int ButtonsY = 640;
    PlaceButton(cmd_AjouterPanier, "Ajouter au panier", "Ajouter l’arme à la commande en cours",
                {LeftX, ButtonsY, 168, 46}, "Ctrl+Return");
    PlaceButton(cmd_Panier, "Voir le panier", "Ouvrir le panier",
                {LeftX + 190, ButtonsY + 7, 32, 32}, "Ctrl+B");
    PlaceLabel(lbl_Panier, "Voir le panier", {LeftX + 230, ButtonsY + 11, 130, High});
    PlaceButton(cmd_Retour, "Retour", "Revenir aux artisanats manuels", {880, ButtonsY, 116, 46},
                "Esc");
}

void frm_ArmesLégendaires::DéfinirChoix()
{
    constexpr int X = LeftX + Margin;
    PlacePanel(shp_Choix, {LeftX, 12, LeftWide, 114});
    PlaceHeading(lbl_Choix, "Choix de l'arme à fabriquer", {X, 16, 380, High});
    Place(pct_Craft, {LeftX + LeftWide - Margin - 32, 18, 32, 32});
    PlaceLabel(lbl_ChoixArme, "Arme :", {X, 56, 76, High});
    Place(cbo_Arme, {X + 78, 56, 378, 25}, "Arme");
    PlaceLabel(lbl_ChoixType, "Type :", {X, 90, 76, High});
    Place(cbo_Type, {X + 78, 90, 378, 25}, "Type");
    cbo_Arme.Sorted = true;
    cbo_Type.Sorted = true;
}

void frm_ArmesLégendaires::DéfinirInfos()
{
    constexpr int X = RightX + Margin;
    PlacePanel(shp_Infos, {RightX, 12, 322, 214});
    PlaceHeading(lbl_TitreNiveau, "Niveau", {X, 20, 70, High});
    PlaceTitle(lbl_Niveau, "", {X + 76, 16, 76, 32});
    Place(img_Niveau, {X + 156, 20, 24, 24}, "Niveau");
    Place(img_Icône, {RightX + 322 - Margin - 32, 20, 32, 32});
    PlaceField(lbl_NiveauObjet, "Niveau :", txt_Niveau, {X, 72, 66, High}, 72);
    PlaceField(lbl_Dps, "Dps : ", txt_Dps, {X + 156, 72, 62, High}, 76);
    PlaceField(lbl_Vit, "Vit. :", txt_Vit, {X, 116, 66, High}, 72, "Vitesse");
    PlaceField(lbl_Dégâts, "Dégât :", txt_Dégâts, {X + 156, 116, 62, High}, 76, "Dégâts");
    PlaceField(lbl_PrixRevente, "Prix de revente à un PNJ :", txt_PrixRevente, {X, 176, 184, High},
               110);
    txt_PrixRevente.Text.StartWith("0");
    PlacePanel(shp_Image, {RightX + 330, 12, 160, 214});
    Place(img_Objet, {RightX + 335, 44, 150, 150});
    img_Objet.Depicts = &cbo_Arme.Text;
}

void frm_ArmesLégendaires::DéfinirComposants()
{
    constexpr int X = LeftX + Margin;
    PlacePanel(shp_Composants, {LeftX, BillY, LeftWide, 240});
    PlaceHeading(lbl_Composants, "Composants", {X, BillY + 4, 300, High});
    struct Row
    {
        const char* Words;
        TextBox& Nom;
        TextBox& Qté;
        TextBox& Prix;
        const char* Nombre;
    };
    int i = 0;
    for (const Row& Each : {Row{"Objet :", txt_Arme, txt_QtéArme, txt_PrixArme, "1"},
                            Row{"Gemme :", txt_Gemme, txt_QtéGemme, txt_PrixGemme, "0"},
                            Row{"Teinture :", txt_Teinture, txt_QtéTeinture, txt_PrixTeinture, "0"},
                            Row{"Matériau :", txt_Matériau, txt_QtéMatériau, txt_PrixMatériau, "0"},
                            Row{"Spécial :", txt_Spécial, txt_QtéSpécial, txt_PrixSpécial, "1"}}) {
        ++i;
        const int Y = BillY + 34 + (i - 1) * 33;
        PlaceLabel(lbl_Composant[i], Each.Words, {X, Y, 76, High});
        PlacerLigne(Each.Nom, lbl_ComposantX[i], Each.Qté, lbl_ComposantÉgale[i], Each.Prix, X + 78,
                    Y, {214, 38, 98});
        NommerLigne(Each.Nom, Each.Qté, Each.Prix, WithoutColon(Each.Words));
        Each.Qté.Text.StartWith(Each.Nombre);
        Each.Prix.Text.StartWith("0");
    }
    for (TextBox* Libre : {&txt_PrixGemme, &txt_PrixTeinture, &txt_PrixSpécial})
        Libre->OpenFor(NumberKind::Montant);
    PlaceField(lbl_PrixCoûtant, "Prix coûtant :", txt_PrixCoûtant,
               {X + 250, BillY + 204, 108, High}, 98, "Composants, prix coûtant");
    txt_PrixCoûtant.Text.StartWith("0");
}

void frm_ArmesLégendaires::DéfinirVente()
{
    constexpr int X = RightX + Margin;
    constexpr int Y = 236;
    PlacePanel(shp_Vente, {RightX, Y, RightWide, 140});
    PlaceHeading(lbl_Vente, "Informations de vente ", {X, Y + 4, 300, High});
    PlaceField(lbl_NbObjet, "Nb d'obj. fabriqués :", txt_NbObjet, {X, Y + 44, 148, High}, 64,
               "Nombre d'objets fabriqués");
    PlaceField(lbl_NbEssais, "Nb d'essais suppl. :", txt_NbEssais, {X, Y + 92, 148, High}, 64,
               "Nombre d'essais supplémentaires");
    PlaceField(lbl_PrixCoûtantTotal, "Prix coûtant :", txt_PrixCoûtantTotal,
               {X + 232, Y + 44, 100, High}, 130, "Vente, prix coûtant");
    PlaceField(lbl_PrixVente, "Px de vente :", txt_PrixVente, {X + 232, Y + 92, 100, High}, 130,
               "Prix de vente");
    txt_NbObjet.Text.StartWith("1");
    for (TextBox* Zéro : {&txt_NbEssais, &txt_PrixCoûtantTotal, &txt_PrixVente})
        Zéro->Text.StartWith("0");
    txt_PrixVente.IsAnswer = true;
    txt_NbObjet.OpenFor(NumberKind::Entier16);
    txt_NbEssais.OpenFor(NumberKind::Entier16);
}

void frm_ArmesLégendaires::DéfinirComposant(Composant& Lequel, const char* Titre, int X)
{
    PlacePanel(Lequel.Cadre, {X, BlocksY, BlockWide, 202});
    X += Margin;
    Place(Lequel.Icône, {X, BlocksY + 8, 32, 32});
    PlaceHeading(Lequel.Titre, Titre, {X + 42, BlocksY + 12, 90, High});
    PlaceLabel(Lequel.TitreNiveau, "Niveau :", {X + 134, BlocksY + 12, 62, High});
    PlaceHeading(Lequel.Niveau, "", {X + 198, BlocksY + 12, 60, High});
    Place(Lequel.Indicateur, {X + 266, BlocksY + 12, 24, 24}, Titre + std::string(", niveau"));
    Lequel.Matériaux.Placer(X, BlocksY + 54, 34, {180, 28, 58}, Titre);
    Lequel.Matériaux.CommencerParZéro();
    PlaceField(Lequel.TitrePrixCoûtant, "Px coût. :", Lequel.PrixCoûtant,
               {X + 120, BlocksY + 164, 74, High}, 100, Titre + std::string(", prix coûtant"));
    Lequel.PrixCoûtant.Text.StartWith("0");
    Lequel.FichierIcône.Visible = false;
}

void frm_ArmesLégendaires::DéfinirCachés()
{
    ShowAll({&txt_PrixUnitaireMatériau, &txt_ObjetNum, &txt_GemmeNum, &txt_TeintureNum, &txt_Image,
             &txt_Icône},
            false);
    txt_PrixUnitaireMatériau.Text.StartWith("0");
    for (TextBox* Holder : {&txt_Image, &Teinture.FichierIcône})
        Holder->Text.StartWith("Vide"); // so that the first empty text shows the placeholder
}

} // namespace orvane
