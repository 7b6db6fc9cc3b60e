#pragma once

#include "app/queries.h"
#include "base/montant.h"
#include "toolkit/placing.h"
#include "toolkit/screen.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Bills of materials, the same on every craft screen: lines of name, "x", count, "=", price.
namespace orvane {

// The name of a line that holds no material.
inline constexpr std::string_view SansNom = "(aucun)";

// What the controls of a bill are called; the number of the line, from 1, stands behind each.
struct NomsNomenclature
{
    std::string Nom;
    std::string Fois;
    std::string Qté;
    std::string Égale;
    std::string Prix;
    std::string PrixUnitaire; // hidden
    std::string Code;         // hidden; empty where the craft has no codes
};

// Widths of a line's boxes, in pixels; the signs between them take SigneLarge each.
struct ColonnesMatériau
{
    int Nom;
    int Qté;
    int Prix;
};

inline constexpr int SigneLarge = 14;

// Places the five boxes and signs of a line one behind the other.
void PlacerLigne(TextBox& Nom, Label& Fois, TextBox& Qté, Label& Égale, TextBox& Prix, int X, int Y,
                 const ColonnesMatériau& Colonnes);

// What the three boxes of a line are called: "Matériau 2, nom", "Matériau 2, quantité"...
void NommerLigne(TextBox& Nom, TextBox& Qté, TextBox& Prix, const std::string& Ligne);

// A line owns its controls. The text of a control is the value.
class LigneMatériau
{
  public:
    LigneMatériau(Screen& Owner, const NomsNomenclature& Noms, int Num);

    const int Num; // from 1
    TextBox Nom;
    Label Fois;
    TextBox Qté;
    Label Égale;
    TextBox Prix;
    TextBox PrixUnitaire;
    std::optional<TextBox> Code;

    bool EstSansMatériau() const { return Nom.Text == SansNom; }

    void Montrer(bool Montrée);

    // Opens the price to typing, or closes it.
    void PoserVerrou(bool Libre, Colour FondOuvert, Colour FondFermé);

    // The price as the product of two amounts; two empty texts give "0". A wrong text leaves the
    // price as it was, shown as stale.
    void CalculerPrix();
};

// The two rules that a line's price may follow. Wrong texts end the calculation they stand in.
Montant ProduitDeMontants(LigneMatériau& Ligne);
Montant EntierFoisMontant(LigneMatériau& Ligne); // the count is a whole number

// What an empty line price is in a sum.
enum class PrixVide { Faux, Zéro };

class Nomenclature
{
  public:
    Nomenclature(Screen& Owner, const NomsNomenclature& Noms, int Lignes);

    // From 1. Failure (FailureKind::Program) for a line that isn't there.
    LigneMatériau& operator[](int Num);

    auto begin() { return Lignes.begin(); }
    auto end() { return Lignes.end(); }

    // The title is spoken before each line's number, where a screen has several bills.
    void Placer(int X, int Y, int Pas, const ColonnesMatériau& Colonnes,
                const std::string& Titre = {});
    void CommencerParZéro(); // every figure, as the screen's definition has it
    void Montrer(bool Montrée);

    // Empties names and codes, then counts, unit prices and prices to "0": column by column, as
    // handlers expect counts to fall before unit prices.
    void Vider();

    // Name, count and unit price of each line, from the repeated joins of a table in a query:
    // "Matériaux.Nom", "Matériaux_1.Nom"... The count of the first is "1" where the table has none.
    void Charger(const Recordset& Objet, const std::string& Table, bool PremièreSansQté);

    // Codes, then counts, of the first lines from an object's row: "Mat1", "Mat2"... "Qté1"...
    void ChargerCodes(const Recordset& Objet, int Nombre);

    // Prices all lines by a rule, or, if one can't be priced, none, and the bill is stale. A line
    // that isn't counted is priced "0".
    bool Chiffrer(Montant (*Règle)(LigneMatériau&),
                  const std::function<bool(const LigneMatériau&)>& EstComptée = {});

    // Wrong and stale prices end the calculation that asks.
    Montant Somme(PrixVide Vide = PrixVide::Faux);

    // The figures belong to another choice, or to none: no calculation rests on them until they
    // are read again.
    void Périmer() { MarquerPérimée(true); }
    void Rafraîchir() { MarquerPérimée(false); }
    bool EstPérimée() const;

  private:
    void MarquerPérimée(bool Périmée);

    std::deque<LigneMatériau> Lignes; // controls stay where they are
};

// Column of the i-th (from 1) of the repeated joins of one table, as saved queries name them.
std::string ColonneJointe(const std::string& Table, int i, const std::string& Colonne);

} // namespace orvane
