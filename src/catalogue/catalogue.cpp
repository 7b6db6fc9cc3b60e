#include "catalogue/catalogue.h"

#include "catalogue/terms.h"

#include <array>

namespace orvane {

using namespace catalogue;

std::span<const std::string> Royaumes()
{
    static const std::array<std::string, 3> Names{"Valdren", "Corvane", "Brenmoor"};
    return Names;
}

std::string RoyaumeFile(const std::string& Royaume)
{
    return "Artisanat_" + Royaume + ".mdb";
}

std::string SkinFile(const std::string& Skin)
{
    return Skin + ".mdb";
}

const DatabaseDefinition& ConfigDefinition()
{
    static const DatabaseDefinition Definition{
        {{"DernierRoyaume", {{"Nom", Text, {}}}},
         {"DernièreSkin", {{"Nom", Text, {}}}},
         {"DernièreRésolution", {{"Nom", Text, {}}}},
         {"SkinsListe", {{"Num", Key, {}}, {"Nom", Text, {}}}},
         {"RésolutionsListe", {{"Num", Key, {}}, {"Nom", Text, {}}}},
         {"ConfigRoyaume",
          Columns{{"Num", Key, {}}} + OfEachRoyaume({"Craft", "Marges1", "Marges2"}, Decimal)}},
        {},
        {}};
    return Definition;
}

const DatabaseDefinition& PanierDefinition()
{
    static const DatabaseDefinition Definition{{{"PanierGlobal",
                                                 {{"Num", Counter, {}},
                                                  {"Nom", Text, {}},
                                                  {"Nb", Whole, {}},
                                                  {"PrixCoûtant", Decimal, {}},
                                                  {"PrixVente", Decimal, {}},
                                                  {"Royaume", Text, {}},
                                                  {"Acheteur", Text, {}}}},
                                                MatériauxDuPanier()},
                                               {},
                                               {}};
    return Definition;
}

const TableDefinition& MatériauxDuPanier()
{
    static const TableDefinition Definition{"PanierMatériaux",
                                            {{"Num", Counter, {}},
                                             To("Ligne", "PanierGlobal"),
                                             {"Matériau", Text, {}},
                                             {"Quantité", Decimal, {}},
                                             {"Prix", Decimal, {}},
                                             {"Possédé", Decimal, {}},
                                             {"Coché", Text, {}}}};
    return Definition;
}

const DatabaseDefinition& AlchimieDefinition()
{
    static const DatabaseDefinition Definition{
        {{"Produits", {{"Num", Key, {}}, {"Nom", Text, {}}}},
         {"ProduitsDétaillés", {{"Num", Key, {}}, To("Produit", "Produits"), {"Nom", Text, {}}}},
         {"Effets", {{"Num", Key, {}}, {"Nom", Text, {}}}},
         {"Matériaux", Columns{{"Num", Key, {}}, {"Nom", Text, {}}, {"Prix", Decimal, {}}} +
                           OfEachRoyaume({""}, Text)},
         {"ListeObjets", Columns{{"Num", Key, {}},
                                 To("ProduitDétaillé", "ProduitsDétaillés"),
                                 {"Nom", Text, {}},
                                 {"NiveauCraft", Whole, {}},
                                 {"Niveau", Whole, {}},
                                 {"Icône", Text, {}}} +
                             Numbered("Mat", 1, 6, ColumnType::Reference, "Matériaux") +
                             Numbered("Qté", 2, 6, Whole) +
                             Columns{To("Effet", "Effets"),
                                     {"Durée", Text, {}},
                                     {"Valeur", Text, {}},
                                     {"Résistance", Text, {}},
                                     {"Charges", Text, {}},
                                     {"NomObjet", Text, {}},
                                     {"NbObjet", Whole, {}},
                                     {"Revente", Decimal, {}}}}},
        {{"R_Alchimie", "SELECT ProduitsDétaillés.Nom, Produits.Nom FROM ProduitsDétaillés "
                        "INNER JOIN Produits ON ProduitsDétaillés.Produit = Produits.Num"},
         {"R_AlchimieObjet",
          "SELECT Produits.Nom, ProduitsDétaillés.Nom, ListeObjets.Nom, ListeObjets.Num, "
          "ListeObjets.NiveauCraft, ListeObjets.Niveau, ListeObjets.Icône" +
              EachJoin("Matériaux", 6, "Nom") + EachJoin("Matériaux", 6, "Prix") +
              EachColumn("ListeObjets", "Qté", 2, 6) +
              ", Effets.Nom, ListeObjets.Durée, ListeObjets.Valeur, ListeObjets.Résistance, "
              "ListeObjets.Charges, ListeObjets.NomObjet, ListeObjets.NbObjet, "
              "ListeObjets.Revente FROM ((ListeObjets INNER JOIN ProduitsDétaillés "
              "ON ListeObjets.ProduitDétaillé = ProduitsDétaillés.Num) INNER JOIN Produits "
              "ON ProduitsDétaillés.Produit = Produits.Num) LEFT JOIN Effets "
              "ON ListeObjets.Effet = Effets.Num" +
              MaterialJoins("ListeObjets", "Matériaux", 6)}},
        {}};
    return Definition;
}

const DatabaseDefinition& SkinDefinition()
{
    static const DatabaseDefinition Definition{
        {{"RésolutionCommune", {{"Nom", Text, {}}, {"Commun", Text, {}}}},
         {"Palette", {{"Nom", Text, {}}, {"Couleur", Text, {}}}},
         LayoutTable("Temp")},
        {},
        {}};
    return Definition;
}

TableDefinition LayoutTable(const std::string& Name)
{
    return {Name,
            {{"Num", Whole, {}},
             {"NomControl", Text, {}},
             {"ChangeLeftTop", Text, {}},
             {"ChangeColor", Text, {}},
             {"ChangeWidth", Text, {}},
             {"ChangeHeight", Text, {}},
             {"ChangeFontSize", Text, {}},
             {"Left", Whole, {}},
             {"Top", Whole, {}},
             {"Width", Whole, {}},
             {"Height", Whole, {}},
             {"Color", Whole, {}},
             {"FontSize", Decimal, {}}}};
}

} // namespace orvane
