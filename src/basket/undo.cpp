#include "basket/undo.h"

#include "app/queries.h"
#include "basket/frm_panier.h"
#include "basket/orders.h"

namespace orvane {

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
        RemplirCommandes(App);
        Panier.cbo_Commandes.Text = Dernier.Commande;
        if (App.Feuilles.Active() == &Panier)
            Panier.Activate();
    });
}

} // namespace orvane
