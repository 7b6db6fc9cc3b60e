#include "basket/frm_panier.h"
#include "toolkit/placing.h"

// Where the controls of the basket stand and what they say until a skin moves them.
namespace orvane {

void frm_Panier::Définir()
{
    SizeScreen(*this, 900, 600);
    PlacePanel(shp_Commandes, {16, 16, 868, 66});
    PlaceLabel(lbl_Commandes, "Liste des commandes :", {32, 37, 160, 24});
    Place(cbo_Commandes, {196, 37, 330, 24}, "Liste des commandes");
    cbo_Commandes.Sorted = true;
    cbo_Commandes.KeepsTyping = true;
    PlaceButton(cmd_Enregistrer, "Nommer la commande",
                "Donner un nom d’acheteur à la nouvelle commande", {544, 27, 200, 44}, "F2");

    PlacePanel(shp_Objets, {16, 94, 868, 422});
    struct Column
    {
        Label& Title;
        const char* Words;
        const char* Called;
        ListBox& List;
        int X;
        int Wide;
    };
    for (const Column& Each :
         {Column{lbl_Objet, "Liste des objets fabriqués", "Objets fabriqués", lst_Objet, 32, 490},
          Column{lbl_Nb, "Nb", "Nombre", lst_Nb, 526, 66},
          Column{lbl_PrixCoûtant, "Px coûtant", "Prix coûtant", lst_PrixCoûtant, 596, 134},
          Column{lbl_PrixVente, "Px vente", "Prix de vente", lst_PrixVente, 734, 134}}) {
        PlaceHeading(Each.Title, Each.Words, {Each.X, 102, Each.Wide, 24});
        Each.Title.Align = Each.X == 32 ? Alignment::Left : Alignment::Centre;
        Place(Each.List, {Each.X, 130, Each.Wide, 330}, Each.Called);
        Each.List.Align = Each.Title.Align;
    }
    Place(lst_Num, {880, 130, 10, 330});
    lst_Num.Visible = false;
    PlaceLabel(lbl_Total, "Total :", {480, 475, 106, 24}, Alignment::Right);
    lbl_Total.Bold = true;
    Place(txt_TotalPanierCoûtant, {596, 475, 134, 24}, "Total, prix coûtant");
    Place(txt_TotalPanierVente, {734, 475, 134, 24}, "Total, prix de vente");
    txt_TotalPanierVente.IsAnswer = true;

    PlaceButton(cmd_SupprimerObjet, "Supprimer l’objet", "Retirer la ligne choisie de la commande",
                {16, 532, 200, 48}, "Del");
    PlaceButton(cmd_SupprimerCommande, "Supprimer la commande",
                "Supprimer toute la commande, dans les trois royaumes", {232, 532, 200, 48});
    PlaceButton(cmd_Retour, "Retour", "Revenir à l’écran précédent", {744, 532, 140, 48}, "Esc");
}

} // namespace orvane
