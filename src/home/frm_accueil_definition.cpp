#include "home/frm_accueil.h"
#include "toolkit/placing.h"

// Where the controls of the home screen stand and what they say until a skin moves them.
namespace orvane {

void frm_Accueil::Définir()
{
    SizeScreen(*this, 760, 560);
    PlaceTitle(lbl_Titre, "Orvane", {40, 26, 680, 50});
    lbl_Titre.FontSize = 30;
    lbl_Titre.Align = Alignment::Centre;
    PlaceLabel(lbl_SousTitre, "Le carnet de calcul des artisans", {40, 78, 680, 26},
               Alignment::Centre);
    lbl_SousTitre.FontSize = 11;

    PlacePanel(shp_Royaumes, {40, 118, 680, 238});
    PlaceHeading(lbl_Royaumes, "Votre royaume", {56, 124, 300, 24});
    struct Shield
    {
        Image& Picture;
        Label& Name;
        const char* Words;
    };
    int X = 96;
    for (const Shield& Each :
         {Shield{img_Valdren, lbl_Valdren, "Valdren"}, Shield{img_Corvane, lbl_Corvane, "Corvane"},
          Shield{img_Brenmoor, lbl_Brenmoor, "Brenmoor"}}) {
        Place(Each.Picture, {X, 152, 136, 160});
        PlaceLabel(Each.Name, Each.Words, {X, 318, 136, 26}, Alignment::Centre);
        Each.Name.FontSize = 12;
        Each.Name.Bold = true;
        X += 216;
    }

    PlacePanel(shp_Ateliers, {40, 368, 680, 170});
    PlaceButton(cmd_ArtisanatsManuels, "Artisanats manuels",
                "Armurerie, couture, empennage, forge, archerie et armes légendaires",
                {60, 386, 206, 60}, "Ctrl+1");
    PlaceButton(cmd_ArtisanatsMagiques, "Artisanats magiques", "Alchimie et arcanes",
                {277, 386, 206, 60}, "Ctrl+2");
    PlaceButton(cmd_ArtisanatsSecondaires, "Artisanats secondaires", "Sellerie et recyclage",
                {494, 386, 206, 60}, "Ctrl+3");
    PlaceButton(cmd_Configuration, "Configuration", "Niveaux, marges, habillage et résolution",
                {60, 462, 206, 56}, "Ctrl+4");
    PlaceButton(cmd_News, "Nouvelles", "Version du logiciel et état des données",
                {277, 462, 206, 56}, "Ctrl+5");
    PlaceButton(cmd_Quitter, "Quitter", "Retenir le royaume et quitter", {494, 462, 206, 56},
                "Ctrl+Q");

    txt_Skin.Visible = false;
    txt_Résolution.Visible = false;
}

} // namespace orvane
