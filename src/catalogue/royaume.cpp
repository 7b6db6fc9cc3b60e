#include "catalogue/catalogue.h"
#include "catalogue/terms.h"

// What each realm's database holds: one catalogue for each craft.
namespace orvane {

using namespace catalogue;

namespace {

std::vector<TableDefinition> ManualTables()
{
    return {
        {"Artisanat_Liste", {{"Num", Key, {}}, {"Nom", Text, {}}}},
        {"Degrés_ListeTypes",
         Columns{{"NuméroDegré", Whole, {}}} + Numbered("DegréType", 1, 2, Text)},
        {"Matériaux_ClassiqueType", {{"Num", Key, {}}, {"Nom", Text, {}}}},
        {"Matériaux_Classique",
         {{"Num", Key, {}},
          To("Type", "Matériaux_ClassiqueType"),
          {"Degré", Whole, {}},
          {"Nom", Text, {}},
          {"Prix", Decimal, {}}}},
        {"Classique_Produits",
         {{"Num", Key, {}},
          To("Artisanat", "Artisanat_Liste"),
          {"Nom", Text, {}},
          {"Degré", Whole, {}}}},
        {"Classique_ProduitsDétaillés",
         {{"Num", Key, {}}, To("Produit", "Classique_Produits"), {"Nom", Text, {}}}},
        {"Classique_ListeObjets", Columns{{"Num", Key, {}},
                                          To("ProduitDétaillé", "Classique_ProduitsDétaillés"),
                                          {"Nom", Text, {}},
                                          {"Sup", Text, {}}} +
                                      Numbered("Mat", 1, 6, Text) + Numbered("Qté", 1, 6, Whole) +
                                      Columns{{"Image", Text, {}},
                                              {"Icône", Text, {}},
                                              {"NiveauCraft", Whole, {}},
                                              {"NiveauObjet", Whole, {}},
                                              {"Dps", Text, {}},
                                              {"Vit", Text, {}},
                                              {"BonusSpécial", Text, {}},
                                              {"NomObjet", Text, {}},
                                              {"NbObjet", Whole, {}}} +
                                      Numbered("PrixReventeDegré", 0, 9, Decimal)},
    };
}

std::vector<TableDefinition> MagicTables()
{
    return {
        {"Arcanes_Produits", {{"Num", Key, {}}, {"Nom", Text, {}}}},
        {"Arcanes_ProduitsDétaillés",
         {{"Num", Key, {}}, To("Produit", "Arcanes_Produits"), {"Nom", Text, {}}}},
        {"Arcanes_Bonus", {{"Num", Key, {}}, {"Nom", Text, {}}, {"Degré", Whole, {}}}},
        {"Matériaux_Arcanes",
         {{"Num", Key, {}}, {"Nom", Text, {}}, {"Prix", Decimal, {}}, {"Degré", Whole, {}}}},
        {"Degrés_Arcanes", Columns{{"NuméroDegré", Whole, {}}} + Numbered("DegréType", 1, 3, Text) +
                               Columns{{"PrixRevente", Decimal, {}}}},
        {"Arcanes_ListeObjets",
         Columns{{"Num", Key, {}},
                 To("ProduitDétaillé", "Arcanes_ProduitsDétaillés"),
                 To("TypeBonus", "Arcanes_Bonus"),
                 {"Bonus", Text, {}},
                 {"Icône", Text, {}},
                 {"NiveauCraft", Whole, {}}} +
             Numbered("Mat", 1, 5, ColumnType::Reference, "Matériaux_Arcanes") +
             Columns{{"CoefQté2", Whole, {}},
                     {"QtéSup", Whole, {}},
                     {"NomObjet", Text, {}},
                     {"NbObjet", Whole, {}}}},
    };
}

std::vector<TableDefinition> ArcheryTables()
{
    return {
        {"ArcherieType", {{"Num", Key, {}}, {"Nom", Text, {}}}},
        {"Archerie", Columns{{"Num", Key, {}},
                             To("Type", "ArcherieType"),
                             {"Nom", Text, {}},
                             {"NiveauCraft", Whole, {}},
                             {"Icône", Text, {}}} +
                         Numbered("Mat", 1, 3, ColumnType::Reference, "Matériaux_Classique") +
                         Numbered("Qté", 1, 3, Whole)},
    };
}

std::vector<TableDefinition> LegendaryTables()
{
    return {
        {"ArmesLégendaires_ListeObjets",
         {{"Num", Key, {}},
          To("Artisanat", "Artisanat_Liste"),
          {"Nom", Text, {}},
          {"NiveauCraft", Whole, {}},
          {"NiveauObjet", Whole, {}},
          {"Dps", Text, {}},
          {"Vit", Text, {}},
          To("Objet", "Classique_ListeObjets"),
          To("Gemme", "Arcanes_ListeObjets"),
          {"NomGemme", Text, {}},
          To("Matériau", "Matériaux_Classique"),
          {"QtéArcanes", Whole, {}},
          {"QtéTeintures", Whole, {}},
          {"QtéMat", Whole, {}},
          {"PrixRevente", Decimal, {}}}},
        {"ArmesLégendaires_Type",
         {{"Num", Key, {}},
          {"Nom", Text, {}},
          To("Teinture", "Alchimie_ListeObjets"),
          {"ObjetSpécial", Text, {}},
          {"TypeDégât", Text, {}}}},
        {"ArmesLégendaires_Images",
         {{"Num", Key, {}},
          To("Arme", "ArmesLégendaires_ListeObjets"),
          To("Type", "ArmesLégendaires_Type"),
          {"Image", Text, {}},
          {"Icône", Text, {}}}},
    };
}

std::vector<TableDefinition> SecondaryTables()
{
    return {
        {"Secondaire_Produits",
         {{"Num", Key, {}},
          To("Artisanat", "Artisanat_Liste"),
          {"Nom", Text, {}},
          {"Degré", Whole, {}}}},
        {"Secondaire_ListeObjets", Columns{{"Num", Key, {}}, To("Produit", "Secondaire_Produits")} +
                                       Numbered("Mat", 1, 3, Text) + Numbered("Qté", 1, 3, Whole) +
                                       Columns{{"Icône", Text, {}}, {"NiveauCraft", Whole, {}}} +
                                       Numbered("PrixReventeDegré", 0, 9, Decimal)},
        {"Sellerie_ProduitsDétaillés",
         {{"Num", Key, {}}, To("Artisanat", "Artisanat_Liste"), {"Nom", Text, {}}}},
        {"Sellerie_ListeObjets",
         Columns{{"Num", Key, {}},
                 To("Artisanat", "Artisanat_Liste"),
                 {"Nom", Text, {}},
                 {"Icône", Text, {}},
                 {"Image", Text, {}},
                 {"PrixRevente", Decimal, {}},
                 {"NiveauCraft", Whole, {}}} +
             Numbered("Mat", 1, 4, ColumnType::Reference, "Matériaux_Classique") +
             Numbered("Qté", 1, 4, Whole)},
    };
}

std::vector<QueryDefinition> ManualQueries()
{
    return {
        {"R_Classique",
         "SELECT Classique_Produits.Nom, Classique_ProduitsDétaillés.Nom, "
         "Classique_ListeObjets.Nom, Artisanat_Liste.Nom, Classique_Produits.Degré "
         "FROM ((Classique_Produits INNER JOIN Artisanat_Liste "
         "ON Classique_Produits.Artisanat = Artisanat_Liste.Num) "
         "LEFT JOIN Classique_ProduitsDétaillés "
         "ON Classique_ProduitsDétaillés.Produit = Classique_Produits.Num) "
         "LEFT JOIN Classique_ListeObjets "
         "ON Classique_ListeObjets.ProduitDétaillé = Classique_ProduitsDétaillés.Num"},
        {"R_ClassiqueObjets",
         "SELECT Classique_ListeObjets.Num, Classique_ListeObjets.NiveauCraft, "
         "Classique_ListeObjets.Icône" +
             EachJoin("Matériaux_ClassiqueType", 3, "Nom") +
             EachColumn("Classique_ListeObjets", "Qté", 1, 3) + " FROM Classique_ListeObjets" +
             MaterialJoins("Classique_ListeObjets", "Matériaux_ClassiqueType", 3)},
    };
}

std::vector<QueryDefinition> MagicQueries()
{
    const std::string Joins =
        " FROM ((Arcanes_ListeObjets INNER JOIN Arcanes_ProduitsDétaillés "
        "ON Arcanes_ListeObjets.ProduitDétaillé = Arcanes_ProduitsDétaillés.Num) "
        "INNER JOIN Arcanes_Produits "
        "ON Arcanes_ProduitsDétaillés.Produit = Arcanes_Produits.Num) "
        "INNER JOIN Arcanes_Bonus ON Arcanes_ListeObjets.TypeBonus = Arcanes_Bonus.Num";
    const std::string Names = "SELECT Arcanes_ListeObjets.Bonus, Arcanes_Bonus.Nom, "
                              "Arcanes_Produits.Nom, Arcanes_ProduitsDétaillés.Nom";
    return {
        {"R_Arcanes", Names + Joins},
        {"R_ArcanesObjets", Names +
                                ", Arcanes_ListeObjets.Num, Arcanes_ListeObjets.Icône, "
                                "Arcanes_ListeObjets.NiveauCraft, Arcanes_ListeObjets.CoefQté2, "
                                "Arcanes_ListeObjets.QtéSup, Arcanes_ListeObjets.NomObjet, "
                                "Arcanes_ListeObjets.NbObjet" +
                                EachJoin("Matériaux_Arcanes", 5, "Nom") +
                                EachJoin("Matériaux_Arcanes", 5, "Prix") + Joins +
                                MaterialJoins("Arcanes_ListeObjets", "Matériaux_Arcanes", 5)},
    };
}

std::vector<QueryDefinition> LegendaryQueries()
{
    return {
        {"R_ArmesLégendairesObjets",
         "SELECT ArmesLégendaires_ListeObjets.Nom, Artisanat_Liste.Nom, "
         "ArmesLégendaires_ListeObjets.NiveauCraft, ArmesLégendaires_ListeObjets.NiveauObjet, "
         "ArmesLégendaires_ListeObjets.Dps, ArmesLégendaires_ListeObjets.Vit, "
         "Classique_ListeObjets.Nom, Classique_ListeObjets.Num, Arcanes_ListeObjets.Num, "
         "Matériaux_Classique.Nom, Matériaux_Classique.Prix, "
         "ArmesLégendaires_ListeObjets.NomGemme, ArmesLégendaires_ListeObjets.QtéArcanes, "
         "ArmesLégendaires_ListeObjets.QtéTeintures, ArmesLégendaires_ListeObjets.QtéMat, "
         "ArmesLégendaires_ListeObjets.PrixRevente "
         "FROM (((ArmesLégendaires_ListeObjets INNER JOIN Artisanat_Liste "
         "ON ArmesLégendaires_ListeObjets.Artisanat = Artisanat_Liste.Num) "
         "LEFT JOIN Classique_ListeObjets "
         "ON ArmesLégendaires_ListeObjets.Objet = Classique_ListeObjets.Num) "
         "LEFT JOIN Arcanes_ListeObjets "
         "ON ArmesLégendaires_ListeObjets.Gemme = Arcanes_ListeObjets.Num) "
         "LEFT JOIN Matériaux_Classique "
         "ON ArmesLégendaires_ListeObjets.Matériau = Matériaux_Classique.Num"},
        {"R_ArmesLégendairesType",
         "SELECT ArmesLégendaires_Type.Nom, Alchimie_ListeObjets.Nom, Alchimie_ListeObjets.Num, "
         "ArmesLégendaires_Type.ObjetSpécial, ArmesLégendaires_Type.TypeDégât "
         "FROM ArmesLégendaires_Type LEFT JOIN Alchimie_ListeObjets "
         "ON ArmesLégendaires_Type.Teinture = Alchimie_ListeObjets.Num"},
        {"R_ArmesLégendairesMatériaux",
         "SELECT Matériaux_Classique.Nom, Matériaux_Classique.Prix, Matériaux_ClassiqueType.Nom "
         "FROM Matériaux_Classique INNER JOIN Matériaux_ClassiqueType "
         "ON Matériaux_Classique.Type = Matériaux_ClassiqueType.Num "
         "WHERE Matériaux_Classique.Degré = 9"},
        {"R_ArmesLégendairesImages",
         "SELECT ArmesLégendaires_Images.Image, ArmesLégendaires_Images.Icône, "
         "ArmesLégendaires_ListeObjets.Nom, ArmesLégendaires_Type.Nom "
         "FROM (ArmesLégendaires_Images INNER JOIN ArmesLégendaires_ListeObjets "
         "ON ArmesLégendaires_Images.Arme = ArmesLégendaires_ListeObjets.Num) "
         "INNER JOIN ArmesLégendaires_Type "
         "ON ArmesLégendaires_Images.Type = ArmesLégendaires_Type.Num"},
    };
}

std::vector<QueryDefinition> HorseAndArcheryQueries()
{
    return {
        {"R_Archerie", "SELECT Archerie.Nom, ArcherieType.Nom, Archerie.NiveauCraft, "
                       "Archerie.Icône" +
                           EachJoin("Matériaux_Classique", 3, "Nom") +
                           EachJoin("Matériaux_Classique", 3, "Prix") +
                           EachColumn("Archerie", "Qté", 1, 3) +
                           " FROM (Archerie INNER JOIN ArcherieType "
                           "ON Archerie.Type = ArcherieType.Num)" +
                           MaterialJoins("Archerie", "Matériaux_Classique", 3)},
        {"R_Secondaire", "SELECT Secondaire_Produits.Nom, Secondaire_Produits.Degré, "
                         "Artisanat_Liste.Nom FROM Secondaire_Produits INNER JOIN Artisanat_Liste "
                         "ON Secondaire_Produits.Artisanat = Artisanat_Liste.Num"},
        {"R_SecondaireObjets",
         "SELECT Secondaire_Produits.Nom" + EachColumn("Secondaire_ListeObjets", "Mat", 1, 3) +
             EachColumn("Secondaire_ListeObjets", "Qté", 1, 3) +
             ", Secondaire_ListeObjets.Icône, Secondaire_ListeObjets.NiveauCraft" +
             EachColumn("Secondaire_ListeObjets", "PrixReventeDegré", 0, 9) +
             " FROM Secondaire_ListeObjets INNER JOIN Secondaire_Produits "
             "ON Secondaire_ListeObjets.Produit = Secondaire_Produits.Num"},
        {"R_SellerieObjets",
         "SELECT Sellerie_ListeObjets.Nom, Artisanat_Liste.Nom, Sellerie_ListeObjets.Icône, "
         "Sellerie_ListeObjets.Image, Sellerie_ListeObjets.PrixRevente, "
         "Sellerie_ListeObjets.NiveauCraft" +
             EachJoin("Matériaux_Classique", 4, "Nom") +
             EachJoin("Matériaux_Classique", 4, "Prix") +
             EachColumn("Sellerie_ListeObjets", "Qté", 1, 4) +
             " FROM (Sellerie_ListeObjets INNER JOIN Artisanat_Liste "
             "ON Sellerie_ListeObjets.Artisanat = Artisanat_Liste.Num)" +
             MaterialJoins("Sellerie_ListeObjets", "Matériaux_Classique", 4)},
        {"R_SellerieProduits", "SELECT Sellerie_ProduitsDétaillés.Nom, Artisanat_Liste.Nom "
                               "FROM Sellerie_ProduitsDétaillés INNER JOIN Artisanat_Liste "
                               "ON Sellerie_ProduitsDétaillés.Artisanat = Artisanat_Liste.Num"},
    };
}

template <class T>
std::vector<T> Joined(std::initializer_list<std::vector<T>> Groups)
{
    std::vector<T> Result;
    for (const auto& Group : Groups)
        Result.insert(Result.end(), Group.begin(), Group.end());
    return Result;
}

} // namespace

const DatabaseDefinition& RoyaumeDefinition()
{
    static const DatabaseDefinition Definition{
        Joined(
            {ManualTables(), MagicTables(), ArcheryTables(), LegendaryTables(), SecondaryTables()}),
        Joined({ManualQueries(), MagicQueries(), LegendaryQueries(), HorseAndArcheryQueries()}),
        {{"Alchimie_ListeObjets", AlchimieFile, "ListeObjets"}}};
    return Definition;
}

} // namespace orvane
