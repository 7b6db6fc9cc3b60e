#include "catalogue/catalogue.h"
#include "databases/databases.h"
#include "store/store.h"
#include "support/temp_folder.h"
#include "tables/tsv.h"

#include <gtest/gtest.h>

// The maker of the databases, and what it refuses, with the place.
namespace orvane {

namespace {

class Tables : public testing::Test
{
  protected:
    Tables()
    {
        for (const TableDefinition& Each : AlchimieDefinition().Tables)
            Sources.Write("Artisanat_Alchimie/" + Each.Name + ".tsv", "Num\n");
        Sources.Write("Artisanat_Alchimie/ListeObjets.tsv", "Num\tNom\n4\tHuile\n");
        Realm("Artisanat_Liste", "Num\tNom\n1\tForge\n\tCouture\n");
        Realm("Classique_Produits",
              "Artisanat\tNom\nForge\tÉpées\nCouture\tCuir\nCouture\tRobes\n");
        Realm("Classique_ProduitsDétaillés", "Produit\tNom\nÉpées\tCourtes\nCuir\tCourtes\n");
    }

    void Realm(const std::string& Table, const std::string& Rows)
    {
        Sources.Write("Artisanat_commun/" + Table + ".tsv", Rows);
    }

    void Make(bool KeepCrafters = false)
    {
        tools::MakeDatabases(Sources.Path(), Made.Path(), KeepCrafters);
    }

    // The sentence that refuses the tables; empty when they are taken.
    std::string Refusal()
    {
        try {
            Make();
            return {};
        } catch (const tools::SourceError& Given) {
            return Given.what();
        }
    }

    std::string Stored(const std::string& File, const std::string& Table, const std::string& Column)
    {
        Store Bases;
        const Database Base = Bases.Open(Made / File);
        std::string Result;
        for (Recordset Rows = Base.OpenRecordset("SELECT * FROM " + Table); !Rows.Eof();
             Rows.MoveNext())
            Result += Rows.TextOrEmpty(Column) + ";";
        return Result;
    }

    TempFolder Sources;
    TempFolder Made;
};

TEST_F(Tables, RowsNameTheirParentsByTheTailOfAPathOrByNumber)
{
    Realm("Classique_ListeObjets", "# a comment\n"
                                   "ProduitDétaillé\tNom\tQté1\tPrixReventeDegré0\r\n"
                                   "Épées / Courtes\tDague\t2\t0,5\n"
                                   "\n"
                                   "Couture / Cuir / Courtes\tBottes\t\t\n"
                                   "1\tGlaive\t1\t\n");
    Make();
    const char* File = "Artisanat_Brenmoor.mdb";
    EXPECT_EQ(Stored(File, "Classique_Produits", "Artisanat"), "1;2;2;");
    EXPECT_EQ(Stored(File, "Classique_ListeObjets", "ProduitDétaillé"), "1;2;1;");
    EXPECT_EQ(Stored(File, "Classique_ListeObjets", "PrixReventeDegré0"), "0,5;;;");
}

TEST_F(Tables, ARealmsOwnTableStandsInPlaceOfTheCommonOne)
{
    Sources.Write("Artisanat_Corvane/Artisanat_Liste.tsv", "Nom\nForge\nCouture\nTissage\n");
    Realm("ArmesLégendaires_Type", "Nom\tTeinture\nde feu\tHuile\n"); // a row of the alchemy file
    Make();
    EXPECT_EQ(Stored("Artisanat_Corvane.mdb", "Artisanat_Liste", "Nom"), "Forge;Couture;Tissage;");
    EXPECT_EQ(Stored("Artisanat_Valdren.mdb", "Artisanat_Liste", "Nom"), "Forge;Couture;");
    EXPECT_EQ(Stored("Artisanat_Valdren.mdb", "ArmesLégendaires_Type", "Teinture"), "4;");
}

TEST_F(Tables, WhatIsWrongIsToldWithItsPlace)
{
    struct Row
    {
        const char* Rows;
        const char* Sentence;
    };
    const Row Wrong[] = {
        {"ProduitDétaillé\tNom\nCourtes\tDague\n",
         "Classique_ListeObjets.tsv, ligne 2 : « Courtes » désigne 2 lignes de "
         "Classique_ProduitsDétaillés"},
        {"ProduitDétaillé\tNom\n\n# moi\n9\tDague\n",
         "Classique_ListeObjets.tsv, ligne 4 : « 9 » désigne 0 lignes de "
         "Classique_ProduitsDétaillés"},
        {"Nom\tQté1\nDague\n", "Classique_ListeObjets.tsv, ligne 2 : 1 colonnes au lieu de 2"},
        {"Nom\tCouleur\nDague\tbleu\n",
         "Classique_ListeObjets.tsv, ligne 2 : colonne inconnue « Couleur »"},
    };
    for (const Row& Each : Wrong) {
        Realm("Classique_ListeObjets", Each.Rows);
        EXPECT_EQ(Refusal(), Each.Sentence);
    }
    Realm("Classique_ListeObjets", "Nom\tQté1\nDague\tdeux\n");
    EXPECT_TRUE(Refusal().starts_with("Classique_ListeObjets.tsv, ligne 2 : ")) << "no number";
}

TEST_F(Tables, TheCraftersOwnFilesStayWhenAsked)
{
    Make();
    Sources.Write("Config/DernierRoyaume.tsv", "Nom\nCorvane\n");
    Make(true);
    EXPECT_EQ(Stored("Config.mdb", "DernierRoyaume", "Nom"), "");
    Make();
    EXPECT_EQ(Stored("Config.mdb", "DernierRoyaume", "Nom"), "Corvane;");
}

} // namespace

} // namespace orvane
