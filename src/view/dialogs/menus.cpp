#include "view/dialogs/menus.h"

#include "app/version.h"
#include "base/typography.h"
#include "home/feuilles.h"
#include "view/dialogs/guide.h"
#include "view/dialogs/shopping_list_window.h"

namespace orvane {

namespace {

void TellAbout(Application& App)
{
    App.MsgBox(Typeset(ProgramTitle + ", version " + std::to_string(VersionMajeure) + "." +
                       std::to_string(VersionMineure) +
                       "\n\nCe que coûtent les objets des trois royaumes, ce qu’il faut en "
                       "demander, et ce que valent vos commandes."));
}

} // namespace

Menus ProgramMenus(Application& App)
{
    return {{"&Commande",
             {{"Liste d’achats…", QKeySequence(Qt::CTRL | Qt::Key_L),
               [&App] { OpenShoppingList(App); }},
              {"Copier pour l’acheteur", {}, [&App] { CopyForBuyer(App); }},
              {"Copier les achats", {}, [&App] { CopyPurchases(App); }}}},
            {"&Aide",
             {{"Guide du crafteur", QKeySequence(Qt::Key_F1), [&App] { OpenGuide(App); }},
              {"À propos…", {}, [&App] { TellAbout(App); }},
              {"Quitter", QKeySequence(Qt::CTRL | Qt::Key_Q), [&App] { Quitter(App); }}}}};
}

} // namespace orvane
