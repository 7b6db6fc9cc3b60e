#pragma once

#include "app/feuille.h"
#include "basket/order_lines.h"
#include "basket/undo.h"

#include <array>

namespace orvane {

// The basket: the lines of the order in hand in the current realm, and the totals of all orders.
// The order in hand is the text of cbo_Commandes, which every craft screen writes into its rows.
class frm_Panier : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_Panier";

    explicit frm_Panier(Application& App);

    void Activate() override;

    void ViderListes();
    void RemplirListes(); // appends: ViderListes comes first
    void TotalCoûtant();
    void TotalVente();

    std::vector<Geste> Gestes; // what can be taken back, the latest last

    Shape NAMED(shp_Commandes);
    Shape NAMED(shp_Objets);
    Label NAMED(lbl_Commandes);
    Label NAMED(lbl_Objet);
    Label NAMED(lbl_Nb);
    Label NAMED(lbl_PrixCoûtant);
    Label NAMED(lbl_PrixVente);
    Label NAMED(lbl_Total);
    ComboBox NAMED(cbo_Commandes);
    ListBox NAMED(lst_Objet); // five parallel lists: entry i of each belongs to the same row
    ListBox NAMED(lst_Nb);
    ListBox NAMED(lst_PrixCoûtant);
    ListBox NAMED(lst_PrixVente);
    ListBox NAMED(lst_Num); // hidden
    TextBox NAMED(txt_TotalPanierCoûtant);
    TextBox NAMED(txt_TotalPanierVente);
    Button NAMED(cmd_Enregistrer);
    Button NAMED(cmd_SupprimerObjet);
    Button NAMED(cmd_SupprimerCommande);
    Button NAMED(cmd_Retour);

  private:
    void Définir();
    std::array<ListBox*, 5> Listes();
    void MettreAuPas(const ListBox& Choisie);
    void Totaliser(std::string LigneDePanier::*Prix, TextBox& Où);
    void NommerLignes(const std::string& Acheteur);
    void RetenirSuppression(LignesSupprimées Parties);

    void cbo_Commandes_Click();
    void cmd_Enregistrer_Click();
    void cmd_SupprimerObjet_Click();
    void cmd_SupprimerCommande_Click();
};

} // namespace orvane
