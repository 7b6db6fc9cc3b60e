#include "store/catalogue.h"
#include "support/expect_fails.h"
#include "support/petit_dossier.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <deque>

// The alchemy objects that each realm's database links from the file beside it. The fixture is a
// copy, so that its links point to the folder it comes from.
namespace orvane {

namespace fs = std::filesystem;

class Lien : public PetitDossier
{
  protected:
    static std::string Fichier(const std::string& Royaume)
    {
        return "Artisanat_" + Royaume + ".mdb";
    }

    std::string Connect(const std::string& Royaume)
    {
        Store Bases;
        return Bases.Open(Dossier / Fichier(Royaume)).LinkConnect("Alchimie_ListeObjets");
    }

    std::string Ici() const { return ";DATABASE=" + (Dossier / "Artisanat_Alchimie.mdb").string(); }

    void LancerEncore()
    {
        Application Autre(Dossier.Path(), Boîtes);
        EnregistrerFeuilles(Autre);
        Démarrer(Autre);
    }
};

TEST_F(Lien, AMovedFolderIsFollowedInAllThreeRealms)
{
    Modifier("Artisanat_Alchimie.mdb", "DELETE FROM ListeObjets WHERE Num > 1;"
                                       "UPDATE ListeObjets SET Nom = 'Essence d''ici'");
    for (const std::string& Royaume : Royaumes())
        ASSERT_NE(Connect(Royaume), Ici());
    Lancer();
    for (const std::string& Royaume : Royaumes()) {
        EXPECT_EQ(Connect(Royaume), Ici());
        EXPECT_EQ(Lire(Fichier(Royaume), "SELECT * FROM Alchimie_ListeObjets", "Nom"),
                  "Essence d'ici");
    }
}

TEST_F(Lien, WhateverElseStandsThereIsRepaired)
{
    Lancer();
    for (const std::string& Avant :
         {std::string(), std::string(";DATABASE="), std::string("Artisanat_Alchimie.mdb"),
          std::string(";DATABASE=C:\\Jeux\\Artisanat_Alchimie.mdb"),
          ";DATABASE=" + (Dossier / "autre" / "").string() + "Artisanat_Alchimie.mdb"}) {
        Modifier(Fichier("Brenmoor"), "UPDATE LinkedTables SET Connect = '" + Avant + "'");
        LancerEncore();
        EXPECT_EQ(Connect("Brenmoor"), Ici()) << Avant;
    }
}

TEST_F(Lien, AnUnchangedFolderIsNotRewrittenButConnectedAgain)
{
    Lancer();
    {
        std::deque<SQLite::Database> Autres; // programs that let nobody else write
        for (const std::string& Royaume : Royaumes())
            Autres.emplace_back((Dossier / Fichier(Royaume)).string(), SQLite::OPEN_READWRITE)
                .exec("BEGIN IMMEDIATE");
        EXPECT_EQ(SentenceOf([this] { LancerEncore(); }), "");
    }
    fs::remove(Dossier / "Artisanat_Alchimie.mdb");
    EXPECT_FAILS(DatabaseMissing, LancerEncore());
    EXPECT_NE(SentenceOf([this] { LancerEncore(); }).find("Artisanat_Alchimie.mdb"),
              std::string::npos);
}

TEST_F(Lien, ARealmsDatabaseThatIsMissingStopsTheStartWhicheverRealmIsInUse)
{
    for (const std::string& Royaume : Royaumes()) {
        fs::rename(Dossier / Fichier(Royaume), Dossier / "gardé");
        EXPECT_NE(SentenceOf([this] { LancerEncore(); }).find(Fichier(Royaume)), std::string::npos);
        fs::rename(Dossier / "gardé", Dossier / Fichier(Royaume));
    }
}

} // namespace orvane
