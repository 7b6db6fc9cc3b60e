#include "basket/order_lines.h"

#include "base/notation.h"
#include "base/text.h"
#include "catalogue/catalogue.h"
#include "store/sql_text.h"

#include <algorithm>
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

Montant PossédéDe(const Recordset& Matériau)
{
    return Montant::FromText(Matériau.TextOrEmpty("Possédé")).value_or(Montant());
}

// What the crafter has of a material goes over to another row of it. There may be none.
void Rendre(const Database& Panier, const std::string& Matériau, MatériauSupprimé& Parti,
            const std::vector<std::string>& Autres)
{
    for (const std::string& Autre : Autres)
        for (Recordset Lignes = LireMatériaux(Panier, Autre); !Lignes.Eof(); Lignes.MoveNext())
            if (FoldedCase(Lignes.TextOrEmpty("Matériau")) == FoldedCase(Matériau)) {
                const Montant Déjà = PossédéDe(Lignes);
                const auto Somme = SumIfFits(Déjà, Parti.Rendu);
                if (!Somme)
                    return;
                Lignes.Edit();
                Lignes.Set("Possédé", T(*Somme));
                Lignes.Update();
                Parti.RenduÀ = Lignes.TextOrEmpty("Num");
                return;
            }
}

// Takes a material back to its row, with what another one got of it.
Assignments Repris(const Database& Panier, const MatériauSupprimé& Parti)
{
    Assignments Rangée = Parti.Rangée;
    if (Parti.RenduÀ.empty())
        return Rangée;
    Recordset Autre =
        Panier.OpenRecordset("SELECT * FROM PanierMatériaux WHERE Num=" + Parti.RenduÀ);
    if (Autre.Eof())
        return Rangée;
    const Montant Là = PossédéDe(Autre);
    const Montant Reprise = std::min(Là, Parti.Rendu);
    Autre.Edit();
    Autre.Set("Possédé", T(Là - Reprise));
    Autre.Update();
    for (auto& [Colonne, Cellule] : Rangée)
        if (Colonne == "Possédé")
            Cellule = Value(T(Reprise));
    return Rangée;
}

// The row, under its number if that is free: a file that couldn't be brought up to date may have
// given it again.
std::int64_t Remettre(Recordset Table, Assignments Rangée, bool EstPris)
{
    if (EstPris)
        std::erase_if(Rangée, [](const auto& Each) { return Each.first == "Num"; });
    Table.AddNew();
    Table.Set(Rangée);
    return Table.Update();
}

std::string NuméroDe(const Assignments& Rangée)
{
    const auto Trouvé = std::ranges::find(
        Rangée, "Num", [](const auto& Each) -> const std::string& { return Each.first; });
    return Trouvé == Rangée.end() || Trouvé->second.IsNull() ? "0" : Trouvé->second.ToText();
}

void RemettreMatériaux(const Database& Panier, const LigneSupprimée& Ligne, std::int64_t Num)
{
    for (const MatériauSupprimé& Each : Ligne.Matériaux) {
        Assignments Rangée = Repris(Panier, Each);
        for (auto& [Colonne, Cellule] : Rangée)
            if (Colonne == "Ligne")
                Cellule = Value(Num);
        Recordset Table =
            Panier.OpenRecordset("SELECT * FROM PanierMatériaux WHERE Num=" + NuméroDe(Rangée));
        const bool EstPris = !Table.Eof();
        Remettre(std::move(Table), std::move(Rangée), EstPris);
    }
}

// The rows of a condition and their materials, as they are stored.
LignesSupprimées Retenir(const Database& Panier, const std::string& Condition)
{
    LignesSupprimées Lues;
    const bool EnTable = Panier.HasTable(MatériauxDuPanier().Name);
    for (Recordset Lignes = Panier.OpenRecordset("SELECT * FROM PanierGlobal" + Condition);
         !Lignes.Eof(); Lignes.MoveNext()) {
        LigneSupprimée& Lue = Lues.emplace_back(LigneSupprimée{Lignes.Row(), {}});
        if (!EnTable)
            continue;
        for (Recordset Matériaux = LireMatériaux(Panier, NuméroDe(Lue.Rangée)); !Matériaux.Eof();
             Matériaux.MoveNext())
            Lue.Matériaux.push_back({Matériaux.Row(), {}, PossédéDe(Matériaux)});
    }
    return Lues;
}

void RendrePossédés(const Database& Panier, const std::string& Num, LigneSupprimée& Partie)
{
    const Recordset Ligne =
        Panier.OpenRecordset("SELECT Acheteur, Royaume FROM PanierGlobal WHERE Num=" + Num);
    std::vector<std::string> Autres =
        Numéros(Panier, {Ligne.TextOrEmpty("Acheteur"), Ligne.TextOrEmpty("Royaume")});
    std::erase(Autres, Num);
    auto Parti = Partie.Matériaux.begin();
    for (Recordset Matériaux = LireMatériaux(Panier, Num); !Matériaux.Eof();
         Matériaux.MoveNext(), ++Parti)
        if (Parti->Rendu > Montant())
            Rendre(Panier, Matériaux.TextOrEmpty("Matériau"), *Parti, Autres);
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

LignesSupprimées SupprimerLigne(const Database& Panier, const std::string& Num)
{
    LignesSupprimées Parties;
    Panier.Transaction([&] {
        Parties = Retenir(Panier, " WHERE Num=" + Num);
        if (Panier.HasTable(MatériauxDuPanier().Name)) {
            if (!Parties.empty())
                RendrePossédés(Panier, Num, Parties.front());
            SupprimerMatériaux(Panier, Num);
        }
        Panier.Execute("DELETE * FROM PanierGlobal WHERE Num=" + Num);
    });
    return Parties;
}

LignesSupprimées SupprimerCommande(const Database& Panier, const std::string& Acheteur)
{
    LignesSupprimées Parties;
    Panier.Transaction([&] {
        Parties = Retenir(Panier, Condition({Acheteur, {}}));
        if (Panier.HasTable(MatériauxDuPanier().Name))
            for (const std::string& Num : Numéros(Panier, {Acheteur, {}}))
                SupprimerMatériaux(Panier, Num);
        Panier.Execute("DELETE * FROM PanierGlobal WHERE Acheteur=" + Quoted(Acheteur));
    });
    return Parties;
}

void RemettreLignes(const Database& Panier, const LignesSupprimées& Lignes)
{
    Panier.Transaction([&] {
        for (const LigneSupprimée& Each : Lignes) {
            Recordset Table = Panier.OpenRecordset("SELECT * FROM PanierGlobal WHERE Num=" +
                                                   NuméroDe(Each.Rangée));
            const bool EstPris = !Table.Eof();
            RemettreMatériaux(Panier, Each, Remettre(std::move(Table), Each.Rangée, EstPris));
        }
    });
}

void RenommerLignes(const Database& Panier, const std::vector<std::string>& Nums,
                    const std::string& De, const std::string& À)
{
    Panier.Transaction([&] {
        for (const std::string& Num : Nums) {
            Recordset Ligne = Panier.OpenRecordset("SELECT * FROM PanierGlobal WHERE Num=" + Num +
                                                   " AND Acheteur=" + Quoted(De));
            if (Ligne.Eof())
                continue;
            Ligne.Edit();
            Ligne.Set("Acheteur", À);
            Ligne.Update();
        }
    });
}

} // namespace orvane
