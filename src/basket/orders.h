#pragma once

#include "app/application.h"
#include "basket/order_lines.h"

#include <functional>
#include <string>
#include <vector>

// What the other subsystems need of the basket.
namespace orvane {

// The order that the program starts on, and the only one that can be given a name.
inline const std::string NouvelleCommande = "Nouvelle commande";

void OuvrirPanier(Application& App);

// Refills the list of orders; the order in hand is then NouvelleCommande.
void RemplirCommandes(Application& App);

// All of them, as the basket lists them.
const std::vector<std::string>& Commandes(Application& App);

// The one that lines are added to.
const std::string& CommandeEnMain(Application& App);

// Makes that order the one in hand; screens keep what they show, and the basket follows when it is
// the one in front.
void PrendreCommande(Application& App, const std::string& Nom);

// The tip of a button that adds to the order in hand names it.
void DireLaCommande(Application& App, Button& Ajouter);

// An object line: its label, the boxes whose texts go into the row as they stand, decimal comma
// included, and what one buys for it. Prices stand for the whole line.
struct LigneCommande
{
    std::string Nom;
    const TextBox& Nb;
    const TextBox& PrixCoûtant;
    const TextBox& PrixVente;
    std::function<Achats()> Matériaux; // may fail as a calculation does
};

// What "Ajouter au panier" does on every craft screen: a row under the order in hand and the
// current realm, with its materials. Without a choice, or with figures that are wrong or stale, a
// message instead. The basket screen isn't refreshed.
void AjouterAuPanier(Application& App, bool EstChoisi, const LigneCommande& Ligne,
                     const char* SansChoix = "Aucun objet sélectionné.");

} // namespace orvane
