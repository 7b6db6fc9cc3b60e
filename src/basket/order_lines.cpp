#include "basket/order_lines.h"

#include "base/notation.h"
#include "base/text.h"
#include "catalogue/catalogue.h"
#include "store/sql_text.h"

#include <array>
#include <utility>

namespace orvane {

namespace {

constexpr std::array Colonnes{
    std::pair{"Num", &LigneDePanier::Num},
    std::pair{"Nom", &LigneDePanier::Nom},
    std::pair{"Nb", &LigneDePanier::Nb},
    std::pair{"PrixCoûtant", &LigneDePanier::PrixCoûtant},
    std::pair{"PrixVente", &LigneDePanier::PrixVente},
    std::pair{"Royaume", &LigneDePanier::Royaume},
    std::pair{"Acheteur", &LigneDePanier::Acheteur},
};

std::string Condition(const Portée& Lesquelles)
{
    std::string Sql;
    if (Lesquelles.Royaume)
        Sql = " WHERE Royaume=" + Quoted(*Lesquelles.Royaume);
    if (Lesquelles.Commande)
        Sql += (Sql.empty() ? " WHERE " : " AND ") + ("Acheteur=" + Quoted(*Lesquelles.Commande));
    return Sql;
}

// The rows' numbers alone: a file that lacks a column can still lose rows.
std::vector<std::string> Numéros(const Database& Panier, const Portée& Lesquelles)
{
    std::vector<std::string> Lus;
    for (Recordset Lignes =
             Panier.OpenRecordset("SELECT Num FROM PanierGlobal" + Condition(Lesquelles));
         !Lignes.Eof(); Lignes.MoveNext())
        if (!Lignes.IsNull("Num"))
            Lus.push_back(Lignes.Text("Num"));
    return Lus;
}

void SupprimerMatériaux(const Database& Panier, const std::string& Num)
{
    Panier.Execute("DELETE * FROM PanierMatériaux WHERE Ligne=" + Num);
}

// Adds what the crafter has of a material to another row of it. There may be none.
void Rendre(const Database& Panier, const std::string& Matériau, Montant Possédé,
            const std::vector<std::string>& Autres)
{
    for (const std::string& Autre : Autres)
        for (Recordset Lignes = LireMatériaux(Panier, Autre); !Lignes.Eof(); Lignes.MoveNext())
            if (FoldedCase(Lignes.TextOrEmpty("Matériau")) == FoldedCase(Matériau)) {
                const Montant Déjà =
                    Montant::FromText(Lignes.TextOrEmpty("Possédé")).value_or(Montant());
                Lignes.Edit();
                Lignes.Set("Possédé", T(SumIfFits(Déjà, Possédé).value_or(Déjà)));
                Lignes.Update();
                return;
            }
}

void RendrePossédés(const Database& Panier, const std::string& Num)
{
    const Recordset Ligne =
        Panier.OpenRecordset("SELECT Acheteur, Royaume FROM PanierGlobal WHERE Num=" + Num);
    if (Ligne.Eof())
        return;
    std::vector<std::string> Autres =
        Numéros(Panier, {Ligne.TextOrEmpty("Acheteur"), Ligne.TextOrEmpty("Royaume")});
    std::erase(Autres, Num);
    for (Recordset Matériaux = LireMatériaux(Panier, Num); !Matériaux.Eof(); Matériaux.MoveNext())
        if (const auto Possédé = Montant::FromText(Matériaux.TextOrEmpty("Possédé")))
            Rendre(Panier, Matériaux.TextOrEmpty("Matériau"), *Possédé, Autres);
}

} // namespace

std::vector<LigneDePanier> LireLignes(const Database& Panier, const Portée& Lesquelles)
{
    std::vector<LigneDePanier> Lues;
    for (Recordset Lignes =
             Panier.OpenRecordset("SELECT * FROM PanierGlobal" + Condition(Lesquelles));
         !Lignes.Eof(); Lignes.MoveNext()) {
        LigneDePanier& Lue = Lues.emplace_back();
        for (const auto& [Colonne, Membre] : Colonnes)
            Lue.*Membre = Lignes.TextOrEmpty(Colonne);
    }
    return Lues;
}

Recordset LireMatériaux(const Database& Panier, const std::string& Num)
{
    return Panier.OpenRecordset("SELECT * FROM PanierMatériaux WHERE Ligne=" + Num);
}

void AjouterLigne(const Database& Panier, const LigneDePanier& Ligne, const Achats& Matériaux)
{
    Panier.Transaction([&] {
        // no row is needed to add one
        Recordset Lignes = Panier.OpenRecordset("SELECT * FROM PanierGlobal WHERE Num=0");
        Lignes.AddNew();
        for (const auto& [Colonne, Membre] : Colonnes)
            if (Membre != &LigneDePanier::Num)
                Lignes.Set(Colonne, Ligne.*Membre);
        const std::int64_t Num = Lignes.Update();
        // a file that couldn't be brought up to date may give the number of a row that is gone
        SupprimerMatériaux(Panier, std::to_string(Num));
        Recordset Achetés = LireMatériaux(Panier, std::to_string(Num));
        for (const Achat& Each : Matériaux) {
            Achetés.AddNew();
            Achetés.Set("Ligne", Num);
            Achetés.Set("Matériau", Each.Matériau);
            Achetés.Set("Quantité", T(Each.Quantité));
            Achetés.Set("Prix", T(Each.Prix));
            Achetés.Update();
        }
    });
}

void SupprimerLigne(const Database& Panier, const std::string& Num)
{
    Panier.Transaction([&] {
        if (Panier.HasTable(MatériauxDuPanier().Name)) {
            RendrePossédés(Panier, Num);
            SupprimerMatériaux(Panier, Num);
        }
        Panier.Execute("DELETE * FROM PanierGlobal WHERE Num=" + Num);
    });
}

void SupprimerCommande(const Database& Panier, const std::string& Acheteur)
{
    Panier.Transaction([&] {
        if (Panier.HasTable(MatériauxDuPanier().Name))
            for (const std::string& Num : Numéros(Panier, {Acheteur, {}}))
                SupprimerMatériaux(Panier, Num);
        Panier.Execute("DELETE * FROM PanierGlobal WHERE Acheteur=" + Quoted(Acheteur));
    });
}

} // namespace orvane
