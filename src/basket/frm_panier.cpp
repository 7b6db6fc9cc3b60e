#include "basket/frm_panier.h"

#include "app/queries.h"
#include "base/failure.h"
#include "base/notation.h"
#include "base/text.h"
#include "basket/orders.h"

namespace orvane {

namespace {

constexpr std::size_t LongueurNom = 30;

} // namespace

frm_Panier::frm_Panier(Application& App)
    : Feuille(App, ScreenName,
              "Panier : Liste des objets sélectionnés (Prix coûtant et de vente de la totalité des "
              "objets)")
{
    Définir();
    cbo_Commandes.OnClick = [this] { cbo_Commandes_Click(); };
    for (ListBox* Liste : Listes())
        if (Liste != &lst_Num)
            Liste->OnClick = [this, Liste] { MettreAuPas(*Liste); };
    cmd_Enregistrer.OnClick = [this] { cmd_Enregistrer_Click(); };
    cmd_SupprimerObjet.OnClick = [this] { cmd_SupprimerObjet_Click(); };
    cmd_SupprimerCommande.OnClick = [this] { cmd_SupprimerCommande_Click(); };
    cmd_Retour.OnClick = [this] { Hide(); };
}

void frm_Panier::Activate()
{
    cbo_Commandes_Click();
    TotalCoûtant();
    TotalVente();
}

void frm_Panier::ViderListes()
{
    for (ListBox* Liste : Listes())
        Liste->Clear();
    txt_TotalPanierCoûtant.Text = "0";
    txt_TotalPanierVente.Text = "0";
}

void frm_Panier::RemplirListes()
{
    const Ouverture Base(App, Globals.CheminPanier);
    for (Recordset Lignes = OuvrirEnregistrements(
             "SELECT * FROM PanierGlobal WHERE (Royaume=" + Quoted(Globals.RoyaumeCourant) +
             " AND Acheteur=" + Quoted(cbo_Commandes.Text) + ") ORDER BY Nom");
         !Lignes.Eof(); Lignes.MoveNext()) {
        lst_Num.AddItem(Lignes.TextOrEmpty("Num"));
        lst_Objet.AddItem(Lignes.TextOrEmpty("Nom"));
        lst_Nb.AddItem(Lignes.TextOrEmpty("Nb"));
        lst_PrixCoûtant.AddItem(Lignes.TextOrEmpty("PrixCoûtant"));
        lst_PrixVente.AddItem(Lignes.TextOrEmpty("PrixVente"));
    }
}

void frm_Panier::TotalCoûtant()
{
    Totaliser("PrixCoûtant", txt_TotalPanierCoûtant);
}

void frm_Panier::TotalVente()
{
    Totaliser("PrixVente", txt_TotalPanierVente);
}

// Over all orders and realms. A row without a price counts nothing.
void frm_Panier::Totaliser(const std::string& Colonne, TextBox& Total)
{
    TotalPanier = {};
    const Ouverture Base(App, Globals.CheminPanier);
    for (Recordset Lignes = OuvrirEnregistrements("SELECT " + Colonne + " FROM PanierGlobal");
         !Lignes.Eof(); Lignes.MoveNext())
        TotalPanier =
            TotalPanier + Montant::FromText(Lignes.TextOrEmpty(Colonne)).value_or(Montant());
    Total.Text = T(TotalPanier);
}

std::array<ListBox*, 5> frm_Panier::Listes()
{
    return {&lst_Objet, &lst_Nb, &lst_PrixCoûtant, &lst_PrixVente, &lst_Num};
}

void frm_Panier::MettreAuPas(const ListBox& Choisie)
{
    for (ListBox* Liste : Listes())
        if (Liste != &Choisie)
            Liste->ListIndex = Choisie.ListIndex;
}

void frm_Panier::cbo_Commandes_Click()
{
    ViderListes();
    RemplirListes();
    cmd_Enregistrer.Visible = lst_Num.ListCount() > 0 && cbo_Commandes.Text == NouvelleCommande;
}

void frm_Panier::cmd_Enregistrer_Click()
{
    const std::string Nom =
        App.TheDialogs.InputBox("Nom de l'acheteur ?\n30 caractères max.", "Panier");
    if (Nom.empty() || CharacterCount(Nom) > LongueurNom) {
        App.MsgBox("Le nom saisi ne répond pas aux critères");
        return;
    }
    NommerLignes(Nom);
    ViderListes();
    RemplirCommandes(App);
    cbo_Commandes.Text = Nom;
    RemplirListes();
    cmd_Enregistrer.Visible = false;
}

// The rows of the unnamed order, of all realms. Failure (Kind::NoRow) when none is left.
void frm_Panier::NommerLignes(const std::string& Acheteur)
{
    const Ouverture Base(App, Globals.CheminPanier);
    for (Recordset Lignes = PremierEnregistrement("SELECT * FROM PanierGlobal WHERE Acheteur=" +
                                                  Quoted(NouvelleCommande));
         !Lignes.Eof(); Lignes.MoveNext()) {
        Lignes.Edit();
        Lignes.Set("Acheteur", Acheteur);
        Lignes.Update();
    }
}

void frm_Panier::cmd_SupprimerObjet_Click()
{
    if (lst_Objet.ListIndex == -1)
        return;
    {
        const Ouverture Base(App, Globals.CheminPanier);
        Supprimer(Globals, "DELETE * FROM PanierGlobal WHERE Num=" + lst_Num.Text);
    }
    ViderListes();
    RemplirListes();
    TotalCoûtant();
    TotalVente();
}

void frm_Panier::cmd_SupprimerCommande_Click()
{
    {
        const Ouverture Base(App, Globals.CheminPanier);
        Supprimer(Globals,
                  "DELETE * FROM PanierGlobal WHERE Acheteur=" + Quoted(cbo_Commandes.Text));
    }
    ViderListes();
    RemplirCommandes(App);
    txt_TotalPanierCoûtant.Text = "0";
    txt_TotalPanierVente.Text = "0";
}

} // namespace orvane
