#include "crafts/archery/frm_archerie.h"
#include "toolkit/placing.h"

// Where the controls of frm_Archerie stand and what they say until a skin moves them.
namespace orvane {

void frm_Archerie::Définir()
{
    constexpr int High = 24;
    SizeScreen(*this, 680, 560);
    PlacePanel(shp_Choix, {16, 16, 430, 110});
    PlaceHeading(lbl11, "Type de projectiles", {30, 20, 300, High});
    Place(cbo_Type, {30, 48, 402, High}, "Type de projectiles");
    PlaceLabel(lbl13, "Carquois :", {30, 86, 90, High});
    Place(cbo_Objet, {122, 86, 310, High}, "Carquois");
    cbo_Type.Sorted = true;
    cbo_Objet.Sorted = true;

    PlacePanel(shp_Niveau, {458, 16, 206, 110});
    PlaceHeading(lbl12, "Niveau", {472, 20, 100, High});
    PlaceTitle(lbl_Niveau, "", {472, 48, 70, 34});
    Place(img_Niveau, {552, 54, 24, 24}, "Niveau");
    Place(img_Icône, {472, 84, 32, 32});
    img_Icône.Depicts = &cbo_Objet.Text;
    Place(Image1, {594, 44, 60, 60});

    PlacePanel(shp_Matériaux, {16, 138, 648, 142});
    PlaceHeading(lbl21, "Matériaux", {30, 142, 300, High});
    Matériaux.Placer(30, 172, 32, {374, 64, 154});
    for (LigneMatériau& Each : Matériaux) { // typed texts count only when a calculation reads them
        for (TextBox* Box : {&Each.Nom, &Each.Qté, &Each.Prix})
            Box->Locked = false;
        for (TextBox* Box : {&Each.Qté, &Each.Prix})
            Box->Accepts = NumberKind::Montant;
    }

    PlacePanel(shp_Vente, {16, 292, 648, 172});
    PlaceField(lbl32, "Nb de carquois :", txt_NbObjet, {30, 306, 154, High}, 80,
               "Nombre de carquois");
    txt_NbObjet.Text.StartWith("1");
    txt_NbObjet.OpenFor(NumberKind::Entier16);
    PlaceLabel(lbl33, "20 unités par carquois", {280, 306, 360, High});
    PlaceField(lbl31, "Prix coûtant :", txt_PrixCoûtant, {30, 346, 154, High}, 180);
    PlaceField(lbl34, "Prix de vente : ", txt_PrixVente, {30, 386, 154, High}, 180);
    txt_PrixVente.Text.StartWith("0");
    txt_PrixVente.IsAnswer = true;
    PlaceLabel(lbl35, "Application globale de la marge", {30, 426, 360, High});
    txt_Icône.Visible = false;

    PlaceButton(cmd_AjouterPanier, "Ajouter au panier",
                "Ajouter le carquois à la commande en cours", {16, 490, 200, 48}, "Ctrl+Return");
    PlaceButton(cmd_Retour, "Retour", "Revenir aux artisanats manuels", {524, 490, 140, 48}, "Esc");
}

} // namespace orvane
