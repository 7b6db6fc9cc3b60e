#include "basket/orders.h"

#include "app/queries.h"
#include "base/failure.h"
#include "base/typography.h"
#include "basket/frm_panier.h"
#include "catalogue/upgrade.h"
#include "toolkit/calculation.h"

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

std::string ÀFaireDAbord(const Screen& Atelier, const TextBox* Attendue)
{
    if (AUneSaisieFausse(Atelier))
        return "corrigez d’abord les nombres saisis.";
    if (Attendue != nullptr)
        return "corrigez d’abord « " + std::string(Attendue->Called) +
               " », que cet écran ne montre pas en ce moment.";
    return "refaites d’abord le dernier choix.";
}

void Refuser(Application& App, const Screen& Atelier, const TextBox* Attendue)
{
    App.MsgBox(
        Typeset("Les prix affichés ne sont pas à jour : " + ÀFaireDAbord(Atelier, Attendue)));
}

// A line of which a material is beyond what can be counted is stored all the same, without any.
Achats MatériauxDe(const LigneCommande& Ligne)
{
    try {
        return Ligne.Matériaux();
    } catch (const Failure& Given) {
        if (Given.Kind() != FailureKind::Overflow)
            throw;
        return {};
    }
}

// Before the basket is open, as the table is made by itself.
void PréparerMatériaux(Application& App)
{
    const std::string& Chemin = App.Globals.CheminPanier;
    const auto EstPrêt = [&] {
        const Ouverture Base(App, App.Globals.BaseDonnées2, Chemin);
        return App.Globals.BaseDonnées2->HasTable(MatériauxDuPanier().Name);
    };
    if (!EstPrêt())
        EnsureTable(Chemin, MatériauxDuPanier());
}

void Enregistrer(Application& App, const LigneCommande& Ligne, const Achats& Matériaux)
{
    PréparerMatériaux(App);
    const Ouverture Base(App, App.Globals.BaseDonnées2, App.Globals.CheminPanier);
    AjouterLigne(*App.Globals.BaseDonnées2,
                 {{},
                  Ligne.Nom,
                  Ligne.Nb.Text,
                  Ligne.PrixCoûtant.Text,
                  Ligne.PrixVente.Text,
                  App.Globals.RoyaumeCourant,
                  CommandeEnMain(App)},
                 Matériaux);
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

const std::vector<std::string>& Commandes(Application& App)
{
    return App.Feuilles.Get<frm_Panier>().cbo_Commandes.Items();
}

const std::string& CommandeEnMain(Application& App)
{
    return App.Feuilles.Get<frm_Panier>().cbo_Commandes.Text;
}

void PrendreCommande(Application& App, const std::string& Nom)
{
    auto& Panier = App.Feuilles.Get<frm_Panier>();
    if (App.Feuilles.Active() == &Panier)
        App.Door.Pick(Panier.cbo_Commandes, Nom);
    else
        App.Door.Event([&] { Panier.cbo_Commandes.Text = Nom; });
}

void DireLaCommande(Application& App, Button& Ajouter)
{
    Ajouter.TipNow = [&App, Words = std::string(Ajouter.Tip)] {
        return Words + Typeset(" : « ") + CommandeEnMain(App) + Typeset(" »");
    };
}

void AjouterAuPanier(Application& App, bool EstChoisi, const LigneCommande& Ligne,
                     const char* SansChoix)
{
    if (!EstChoisi || Ligne.PrixCoûtant.Text == "") { // a typed name has no price
        App.MsgBox(SansChoix);
        return;
    }
    Screen& Atelier = Ligne.PrixVente.Owner();
    for (const TextBox* Prix : {&Ligne.PrixVente, &Ligne.PrixCoûtant})
        if (Prix->Stale)
            return Refuser(App, Atelier, Prix->WaitsFor);
    try {
        Enregistrer(App, Ligne, MatériauxDe(Ligne));
        App.OnAdded(Atelier, CommandeEnMain(App));
    } catch (const UnusableText& Given) {
        Refuser(App, Atelier, Given.Input);
    }
}

} // namespace orvane
