#pragma once

#include "base/montant.h"
#include "store/store.h"

#include <optional>
#include <string>
#include <vector>

// The rows of the orders as they are stored, each with what one buys for it.
namespace orvane {

// A material, or a thing that is bought as it is: for the whole line, all its objects and trials.
// A price of 0 is one that the crafter hasn't learnt yet.
struct Achat
{
    std::string Matériau; // as the screen shows it
    Montant Quantité;
    Montant Prix;

    friend bool operator==(const Achat&, const Achat&) = default;
};
using Achats = std::vector<Achat>;

// A row of PanierGlobal, in the texts that the basket shows. Prices stand for the whole line.
struct LigneDePanier
{
    std::string Num; // given by the store
    std::string Nom;
    std::string Nb;
    std::string PrixCoûtant;
    std::string PrixVente;
    std::string Royaume;
    std::string Acheteur;
};

// Which rows: of one order or of all, of one realm or of all. Orders are told apart without regard
// to case, as by every query.
struct Portée
{
    std::optional<std::string> Commande;
    std::optional<std::string> Royaume;
};

// In the order in which they were added.
std::vector<LigneDePanier> LireLignes(const Database& Panier, const Portée& Lesquelles);

// The rows of PanierMatériaux that belong to a row, in the order of its bills. The table must be
// there.
Recordset LireMatériaux(const Database& Panier, const std::string& Num);

// One durable write: the row and its materials, or, on Failure, neither. The table of materials
// must be there.
void AjouterLigne(const Database& Panier, const LigneDePanier& Ligne, const Achats& Matériaux);

// A row that is gone, as it was stored, with its materials.
struct MatériauSupprimé
{
    Assignments Rangée;
    std::string RenduÀ; // the row of materials that got what the crafter has of it; may be empty
    Montant Rendu;
};
struct LigneSupprimée
{
    Assignments Rangée;
    std::vector<MatériauSupprimé> Matériaux;
};
using LignesSupprimées = std::vector<LigneSupprimée>;

// The same for a row, and for an order in all realms: what has gone. What the crafter has of a
// row's materials goes over to the others of its order in its realm.
LignesSupprimées SupprimerLigne(const Database& Panier, const std::string& Num);
LignesSupprimées SupprimerCommande(const Database& Panier, const std::string& Acheteur);

// Puts them back under their own numbers, in one durable write. What others got of what the crafter
// has comes back, as far as it is still there.
void RemettreLignes(const Database& Panier, const LignesSupprimées& Lignes);

// Of these rows those that are still De's: they are À's, in one durable write.
void RenommerLignes(const Database& Panier, const std::vector<std::string>& Nums,
                    const std::string& De, const std::string& À);

} // namespace orvane
