#include "basket/orders.h"

#include "app/queries.h"
#include "base/typography.h"
#include "basket/frm_panier.h"

#include <algorithm>

namespace orvane {

namespace {

// An input in sight that the crafter can correct.
bool AUneSaisieFausse(const Screen& Feuille)
{
    return std::ranges::any_of(Feuille.Controls(), [](const Control* Each) {
        const auto* Saisie = dynamic_cast<const TextBox*>(Each);
        return Saisie != nullptr && Saisie->Marked && Saisie->Visible && !Saisie->Locked;
    });
}

std::string ÀFaireDAbord(const TextBox& Prix)
{
    if (AUneSaisieFausse(Prix.Owner()))
        return "corrigez d’abord les nombres saisis.";
    if (Prix.WaitsFor != nullptr)
        return "corrigez d’abord « " + std::string(Prix.WaitsFor->Called) +
               " », que cet écran ne montre pas en ce moment.";
    return "refaites d’abord le dernier choix.";
}

} // namespace

void OuvrirPanier(Application& App)
{
    App.Feuilles.Get<frm_Panier>().Show();
}

void RemplirCommandes(Application& App)
{
    Variables& Globals = App.Globals;
    ComboBox& Commandes = App.Feuilles.Get<frm_Panier>().cbo_Commandes;
    Commandes.Clear();
    bool Trouvée = false;
    const Ouverture Base(App, Globals.BaseDonnées2, Globals.CheminPanier);
    for (Recordset Lignes = OuvrirEnregistrements2(
             Globals, "SELECT DISTINCT Acheteur FROM PanierGlobal ORDER BY Acheteur");
         !Lignes.Eof(); Lignes.MoveNext()) {
        const std::string Acheteur = Lignes.TextOrEmpty("Acheteur");
        Trouvée = Trouvée || Acheteur == NouvelleCommande;
        Commandes.AddItem(Acheteur);
    }
    if (!Trouvée)
        Commandes.AddItem(NouvelleCommande);
    Commandes.Text = NouvelleCommande;
}

void AjouterAuPanier(Application& App, bool EstChoisi, const LigneCommande& Ligne,
                     const char* SansChoix)
{
    if (!EstChoisi || Ligne.PrixCoûtant.Text == "") { // a typed name has no price
        App.MsgBox(SansChoix);
        return;
    }
    if (Ligne.PrixCoûtant.Stale || Ligne.PrixVente.Stale) {
        App.MsgBox(
            Typeset("Les prix affichés ne sont pas à jour : " +
                    ÀFaireDAbord(Ligne.PrixVente.Stale ? Ligne.PrixVente : Ligne.PrixCoûtant)));
        return;
    }
    Variables& Globals = App.Globals;
    const Ouverture Base(App, Globals.BaseDonnées2, Globals.CheminPanier);
    // no row is needed to add one
    Recordset Panier = OuvrirEnregistrements2(Globals, "SELECT * FROM PanierGlobal WHERE Num=0");
    Panier.AddNew();
    Panier.Set("Nom", Ligne.Nom);
    Panier.Set("Nb", Ligne.Nb.Text);
    Panier.Set("PrixCoûtant", Ligne.PrixCoûtant.Text);
    Panier.Set("PrixVente", Ligne.PrixVente.Text);
    Panier.Set("Royaume", Globals.RoyaumeCourant);
    Panier.Set("Acheteur", App.Feuilles.Get<frm_Panier>().cbo_Commandes.Text);
    Panier.Update();
}

} // namespace orvane
