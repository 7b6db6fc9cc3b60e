#include "basket/orders.h"

#include "app/queries.h"
#include "base/typography.h"
#include "basket/frm_panier.h"

namespace orvane {

void RemplirCommandes(Application& App)
{
    Variables& Globals = App.Globals;
    ComboBox& Commandes = App.Feuilles.Get<frm_Panier>().cbo_Commandes;
    Commandes.Clear();
    bool Trouvée = false;
    const Ouverture Base(App, Globals.BaseDonnées2, Globals.CheminPanier);
    Globals.TexteSQL = "SELECT DISTINCT Acheteur FROM PanierGlobal ORDER BY Acheteur";
    for (Recordset& Lignes = OuvrirEnregistrements2(Globals); !Lignes.Eof(); Lignes.MoveNext()) {
        const std::string Acheteur = Lignes.TextOrEmpty("Acheteur");
        Trouvée = Trouvée || Acheteur == NouvelleCommande;
        Commandes.AddItem(Acheteur);
    }
    Globals.Enregistrements2.Empty();
    if (!Trouvée)
        Commandes.AddItem(NouvelleCommande);
    Commandes.Text = NouvelleCommande;
}

void AjouterLigne(Application& App, const LigneCommande& Ligne)
{
    if (Ligne.PrixCoûtant.Stale || Ligne.PrixVente.Stale) {
        App.MsgBox(
            Typeset("Les prix affichés ne sont pas à jour : corrigez d’abord les nombres saisis."));
        return;
    }
    Variables& Globals = App.Globals;
    const Ouverture Base(App, Globals.BaseDonnées2, Globals.CheminPanier);
    Globals.TexteSQL = "SELECT * FROM PanierGlobal WHERE Num=0"; // no row is needed to add one
    Recordset& Panier = OuvrirEnregistrements2(Globals);
    Panier.AddNew();
    Panier.Set("Nom", Ligne.Nom);
    Panier.Set("Nb", Ligne.Nb.Text());
    Panier.Set("PrixCoûtant", Ligne.PrixCoûtant.Text());
    Panier.Set("PrixVente", Ligne.PrixVente.Text());
    Panier.Set("Royaume", Globals.RoyaumeCourant);
    Panier.Set("Acheteur", App.Feuilles.Get<frm_Panier>().cbo_Commandes.Text());
    Panier.Update();
    Globals.Enregistrements2.Empty();
}

} // namespace orvane
