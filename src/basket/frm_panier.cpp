#include "basket/frm_panier.h"

#include "app/queries.h"
#include "base/text.h"
#include "basket/orders.h"
#include "basket/totals.h"

#include <memory>

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
    lst_Objet.WhenEmpty = "";
    for (TextBox* Total : {&txt_TotalPanierCoûtant, &txt_TotalPanierVente}) {
        Total->Text = "0";
        Total->Marked = false;
        Total->Tip = "";
    }
}

void frm_Panier::RemplirListes()
{
    const Ouverture Base(App, Globals.CheminPanier);
    for (Recordset Lignes = OuvrirEnregistrements(
             "SELECT * FROM PanierGlobal WHERE (Royaume=" + Quoted(Globals.RoyaumeCourant) +
             " AND Acheteur=" + Quoted(cbo_Commandes.Text) + ") ORDER BY Nom");
         !Lignes.Eof(); Lignes.MoveNext()) {
        // a row is read whole: a column that isn't there must not leave lists of unlike lengths
        const std::array<std::string, 5> Cellules{
            Lignes.TextOrEmpty("Nom"), Lignes.TextOrEmpty("Nb"), Lignes.TextOrEmpty("PrixCoûtant"),
            Lignes.TextOrEmpty("PrixVente"), Lignes.TextOrEmpty("Num")};
        auto Cellule = Cellules.begin();
        for (ListBox* Liste : Listes())
            Liste->AddItem(*Cellule++);
    }
    lst_Objet.WhenEmpty =
        lst_Objet.ListCount() == 0 ? "Cette commande est vide dans ce royaume" : "";
}

void frm_Panier::TotalCoûtant()
{
    Totaliser(&LigneDePanier::PrixCoûtant, txt_TotalPanierCoûtant);
}

void frm_Panier::TotalVente()
{
    Totaliser(&LigneDePanier::PrixVente, txt_TotalPanierVente);
}

// Over all orders and realms. What can't be counted leaves no total, and the box tells which row.
void frm_Panier::Totaliser(std::string LigneDePanier::*Prix, TextBox& Où)
{
    const Ouverture Base(App, Globals.CheminPanier);
    const Total Compté = orvane::Totaliser(LireLignes(*Globals.BaseDonnées, {}), Prix);
    Où.Text = Compté.Texte;
    Où.Marked = !Compté.Faute.empty();
    Où.Tip = Compté.Faute;
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

// The rows of the unnamed order, of all realms. Failure (FailureKind::NoRow) when none is left.
void frm_Panier::NommerLignes(const std::string& Acheteur)
{
    const Ouverture Base(App, Globals.CheminPanier);
    Recordset Lignes = PremierEnregistrement("SELECT * FROM PanierGlobal WHERE Acheteur=" +
                                             Quoted(NouvelleCommande));
    const auto Nommées = std::make_shared<std::vector<std::string>>(); // also of a naming cut short
    Gestes.push_back(
        {"Annuler le nom donné", NouvelleCommande, [Nommées, Acheteur](const Database& Panier) {
             RenommerLignes(Panier, *Nommées, Acheteur, NouvelleCommande);
         }});
    for (; !Lignes.Eof(); Lignes.MoveNext()) {
        Lignes.Edit();
        Lignes.Set("Acheteur", Acheteur);
        Lignes.Update();
        Nommées->push_back(Lignes.TextOrEmpty("Num"));
    }
}

void frm_Panier::RetenirSuppression(LignesSupprimées Parties)
{
    if (!Parties.empty())
        Gestes.push_back({"Annuler la suppression", cbo_Commandes.Text,
                          [Parties = std::move(Parties)](const Database& Panier) {
                              RemettreLignes(Panier, Parties);
                          }});
}

void frm_Panier::cmd_SupprimerObjet_Click()
{
    if (lst_Objet.ListIndex == -1)
        return;
    {
        const Ouverture Base(App, Globals.CheminPanier);
        RetenirSuppression(SupprimerLigne(*Globals.BaseDonnées, lst_Num.Text));
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
        RetenirSuppression(SupprimerCommande(*Globals.BaseDonnées, cbo_Commandes.Text));
    }
    ViderListes();
    lst_Objet.WhenEmpty = "La commande est supprimée";
    RemplirCommandes(App);
    txt_TotalPanierCoûtant.Text = "0";
    txt_TotalPanierVente.Text = "0";
}

} // namespace orvane
