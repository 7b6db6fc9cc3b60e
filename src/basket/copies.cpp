#include "basket/copies.h"

#include "base/csv.h"
#include "base/typography.h"

namespace orvane {

namespace {

// "Béret brut × 2 : 30"
std::string PourUnPrix(const std::string& Quoi, const std::string& Prix)
{
    return Quoi + (Prix.empty() ? "" : "\u00A0: " + Prix) + "\n";
}

} // namespace

std::string CopiePourAcheteur(const ListeDAchats& De)
{
    const auto& Commande = De.DeQuoi().Commande;
    std::string Texte =
        Commande ? Typeset("Commande « ") + *Commande + Typeset(" »") : "Toutes les commandes";
    Texte += "\n";
    for (const LigneDePanier& Each : De.Objets())
        Texte += PourUnPrix(Each.Nom + " × " + Each.Nb, Each.PrixVente);
    return Texte + PourUnPrix("Total", De.Sommes().PrixVente.Texte);
}

std::string CopieDesAchats(const ListeDAchats& De)
{
    std::string Texte =
        TabLine({"matériau", "quantité", "prix unitaire", "prix", "j’ai", "reste à acheter"});
    for (const LigneAchat& Each : De.Lignes())
        Texte += TabLine(
            {Each.Matériau, Each.Quantité, Each.PrixUnitaire, Each.Prix, Each.Possédé, Each.Reste});
    return Texte;
}

std::string AchatsEnCsv(const ListeDAchats& De)
{
    std::string Texte = CsvLine({"matériau", "quantité", "prix unitaire", "prix"});
    for (const LigneAchat& Each : De.Lignes())
        Texte += CsvLine({Each.Matériau, Each.Quantité, Each.PrixUnitaire, Each.Prix});
    return Texte;
}

std::string CommandeEnCsv(const ListeDAchats& De)
{
    std::string Texte =
        CsvLine({"objet", "nombre", "prix coûtant", "prix de vente", "royaume", "commande"});
    for (const LigneDePanier& Each : De.Objets())
        Texte += CsvLine(
            {Each.Nom, Each.Nb, Each.PrixCoûtant, Each.PrixVente, Each.Royaume, Each.Acheteur});
    return Texte;
}

} // namespace orvane
