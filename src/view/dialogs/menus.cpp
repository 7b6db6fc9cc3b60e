#include "view/dialogs/menus.h"

#include "app/version.h"
#include "base/typography.h"
#include "basket/orders.h"
#include "basket/undo.h"
#include "home/feuilles.h"
#include "view/dialogs/backups.h"
#include "view/dialogs/guide.h"
#include "view/dialogs/shopping_list_window.h"
#include "view/qt_text.h"

namespace orvane {

namespace {

void TellAbout(Application& App)
{
    App.MsgBox(Typeset(ProgramTitle + ", version " + std::to_string(VersionMajeure) + "." +
                       std::to_string(VersionMineure) +
                       "\n\nCe que coûtent les objets des trois royaumes, ce qu’il faut en "
                       "demander, et ce que valent vos commandes."));
}

// An & would be taken for the mark of a letter.
std::vector<MenuEntry> OrdersToTake(Application& App)
{
    std::vector<MenuEntry> Result;
    for (const std::string& Each : Commandes(App))
        Result.push_back({ToQt(Each).replace(u'&', QStringLiteral("&&")),
                          {},
                          [&App, Each] { PrendreCommande(App, Each); },
                          Each == CommandeEnMain(App)});
    return Result;
}

} // namespace

Menus ProgramMenus(Application& App, const std::function<void()>& Restart)
{
    return {{"&Commande",
             {{"Liste d’achats…", QKeySequence(Qt::CTRL | Qt::Key_L),
               [&App] { OpenShoppingList(App); }},
              {"Copier pour l’acheteur", {}, [&App] { CopyForBuyer(App); }},
              {"Copier les achats", {}, [&App] { CopyPurchases(App); }},
              {{},
               QKeySequence::Undo,
               [&App] { Annuler(App); },
               false,
               [&App] { return ToQt(ÀAnnuler(App)); }},
              {"Revenir à une sauvegarde…", {}, [&App, Restart] { GoBackToBackup(App, Restart); }}},
             [&App] { return OrdersToTake(App); },
             true},
            {"&Aide",
             {{"Guide du crafteur", QKeySequence(Qt::Key_F1), [&App] { OpenGuide(App); }},
              {"À propos…", {}, [&App] { TellAbout(App); }},
              {"Quitter", QKeySequence(Qt::CTRL | Qt::Key_Q), [&App] { Quitter(App); }}}}};
}

} // namespace orvane
