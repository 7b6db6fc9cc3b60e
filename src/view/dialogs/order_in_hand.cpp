#include "view/dialogs/order_in_hand.h"

#include "base/failure.h"
#include "base/typography.h"
#include "basket/orders.h"
#include "basket/shopping_list.h"
#include "view/qt_text.h"

namespace orvane {

QString OrderInHand(Application& App)
{
    return ToQt(Typeset("Commande : ") + CommandeEnMain(App));
}

OrderShown LinesInHand(Application& App)
{
    OrderShown Result{OrderInHand(App), {}, {}};
    ListeDAchats List(App.Bases, App.Globals.CheminPanier);
    try {
        List.Lire({CommandeEnMain(App), App.Globals.RoyaumeCourant});
    } catch (const Failure&) { // who opens the basket is told
        return Result;
    }
    for (const LigneDePanier& Each : List.Objets())
        Result.Lines.push_back({ToQt(Each.Nom), ToQt(Each.Nb), ToQt(Each.PrixVente)});
    Result.Total = ToQt(List.Sommes().PrixVente.Texte);
    return Result;
}

} // namespace orvane
