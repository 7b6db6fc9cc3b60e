#include "basket/undo.h"

#include "app/queries.h"
#include "basket/frm_panier.h"
#include "basket/orders.h"

namespace orvane {

namespace {

void Montrer(Application& App, const std::string& Commande)
{
    auto& Panier = App.Feuilles.Get<frm_Panier>();
    RemplirCommandes(App);
    Panier.cbo_Commandes.Text = Commande;
    if (App.Feuilles.Active() == &Panier)
        Panier.Activate();
}

} // namespace

std::string ÀAnnuler(Application& App)
{
    const auto& Gestes = App.Feuilles.Get<frm_Panier>().Gestes;
    return Gestes.empty() ? std::string() : Gestes.back().Annulation;
}

void Annuler(Application& App)
{
    auto& Panier = App.Feuilles.Get<frm_Panier>();
    if (Panier.Gestes.empty())
        return;
    App.Door.Event([&] {
        const Geste Dernier = Panier.Gestes.back();
        {
            const Ouverture Base(App, App.Globals.BaseDonnées2, App.Globals.CheminPanier);
            Dernier.Défaire(*App.Globals.BaseDonnées2);
        }
        Panier.Gestes.pop_back();
        Montrer(App, Dernier.Commande);
    });
}

void RelireCommandes(Application& App)
{
    App.Feuilles.Get<frm_Panier>().Gestes.clear();
    Montrer(App, NouvelleCommande);
}

} // namespace orvane
