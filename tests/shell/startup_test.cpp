#include "shell/feuilles.h"
#include "support/expect_fails.h"
#include "support/petit_dossier.h"

#include <fstream>
#include <functional>
#include <iterator>
#include <map>

namespace orvane {

namespace {

namespace fs = std::filesystem;

class Démarrage : public PetitDossier
{
  protected:
    std::string Écu(const Image& Bouclier) { return Bouclier.Picture().File.filename().string(); }

    std::map<std::string, std::string> Contenu() const
    {
        std::map<std::string, std::string> Fichiers;
        for (const auto& Each : fs::directory_iterator(Dossier.Path()))
            if (Each.is_regular_file()) {
                std::ifstream Flux(Each.path(), std::ios::binary);
                Fichiers[Each.path().filename()] = {std::istreambuf_iterator<char>(Flux), {}};
            }
        return Fichiers;
    }
};

} // namespace

TEST_F(Démarrage, TheLastRealmIsRestoredWithItsPathsShieldAndSettings)
{
    Modifier("Config.mdb", "UPDATE DernierRoyaume SET Nom = 'Corvane'");
    Lancer();
    EXPECT_EQ(App.Globals.RoyaumeCourant, "Corvane");
    EXPECT_EQ(App.Globals.CheminRoyaume, (Dossier / "Artisanat_Corvane.mdb").string());
    EXPECT_EQ(App.Globals.CheminConfig, (Dossier / "Config.mdb").string());
    EXPECT_EQ(App.Globals.CheminPanier, (Dossier / "Panier.mdb").string());
    EXPECT_EQ(App.Globals.CheminAlchimie, (Dossier / "Artisanat_Alchimie.mdb").string());
    EXPECT_EQ(Écu(Accueil().img_Valdren), "EcuValdren.gif");
    EXPECT_EQ(Écu(Accueil().img_Corvane), "EcuCorvaneOmbre.gif");
    EXPECT_EQ(Écu(Accueil().img_Brenmoor), "EcuBrenmoor.gif");
    EXPECT_EQ(Réglages().txt_NiveauCouture.Text(), "101");
    EXPECT_EQ(Réglages().txt_EssaiLégendaires.Text(), "82");
    EXPECT_EQ(Visibles(), "frm_Accueil");
}

TEST_F(Démarrage, ListsAndChoicesComeFromTheFiles)
{
    Lancer();
    EXPECT_EQ(Jointes(Réglages().cbo_Skin.Items()), "Ardoise | Velours") << "sorted by the control";
    EXPECT_EQ(Réglages().cbo_Skin.Text(), "Velours");
    EXPECT_EQ(Accueil().txt_Skin.Text(), "Velours");
    EXPECT_EQ(Réglages().cbo_Résolution.Text(), "1024 x 768");
    EXPECT_EQ(Accueil().txt_Résolution.Text(), "1024 x 768");
    EXPECT_EQ(Jointes(Panier().cbo_Commandes.Items()), "Nouvelle commande");
    EXPECT_TRUE(App.Globals.BaseDonnées.IsEmpty());
    EXPECT_TRUE(App.Globals.BaseDonnées2.IsEmpty());
    EXPECT_TRUE(App.Globals.Enregistrements.IsEmpty());
    EXPECT_TRUE(App.Globals.Enregistrements2.IsEmpty());
}

TEST_F(Démarrage, ARealmIsComparedWithItsCase)
{
    Modifier("Config.mdb", "UPDATE DernierRoyaume SET Nom = 'corvane'");
    Boîtes.ExpectMsgBox("Le royaume «\u00A0corvane\u00A0» n’existe pas\u00A0: Valdren est choisi "
                        "à sa place.");
    Lancer();
    EXPECT_EQ(App.Globals.RoyaumeCourant, "Valdren");
    EXPECT_EQ(Écu(Accueil().img_Valdren), "EcuValdrenOmbre.gif");
}

TEST_F(Démarrage, AStoredSkinThatIsGoneGivesWayToTheFirstOfTheList)
{
    Modifier("Config.mdb", "UPDATE DernièreSkin SET Nom = 'Granit'");
    Boîtes.ExpectMsgBox("«\u00A0Granit\u00A0» n’existe plus\u00A0: «\u00A0Velours\u00A0» est "
                        "choisi à sa place.");
    Lancer();
    EXPECT_EQ(Accueil().txt_Skin.Text(), "Velours") << "first by Num, not by name";
    EXPECT_EQ(Réglages().cbo_Skin.Text(), "Velours");
    EXPECT_EQ(Cellule("Config.mdb", "SELECT Nom FROM DernièreSkin"), "Granit") << "told, not saved";
}

TEST_F(Démarrage, MissingPicturesAreToldOnceTogether)
{
    fs::remove(Dossier / "Interface/Logo.png");
    fs::remove(Dossier / "Interface/EcuCorvane.gif");
    Boîtes.ExpectMsgBox("Des images sont introuvables ou illisibles\u00A0; le programme fonctionne "
                        "sans elles\u00A0:\nEcuCorvane.gif\nLogo.png");
    Lancer();
    Door().Click(Accueil().img_Corvane);
    Door().Click(Accueil().img_Valdren);
    EXPECT_TRUE(Accueil().img_Corvane.Picture().IsEmpty());
}

TEST_F(Démarrage, ABrokenDatabaseStopsTheStartByItsNameAndNothingIsWritten)
{
    const std::vector<std::pair<const char*, std::function<void(const fs::path&)>>> Défauts{
        {"missing", [](const fs::path&) {}},
        {"garbage", [](const fs::path& File) { std::ofstream(File) << std::string(5000, 'x'); }},
        {"empty", [](const fs::path& File) { std::ofstream{File}; }},
        {"a folder", [](const fs::path& File) { fs::create_directory(File); }},
    };
    for (const std::string Fichier : {"Config.mdb", "Panier.mdb"})
        for (const auto& [Défaut, Abîmer] : Défauts) {
            SCOPED_TRACE(Fichier + ", " + Défaut);
            fs::rename(Dossier / Fichier, Dossier / "gardé");
            Abîmer(Dossier / Fichier);
            const auto Avant = Contenu();
            ScriptedDialogs Muettes;
            Application Autre(Dossier.Path(), Muettes);
            EnregistrerFeuilles(Autre);
            const std::string Phrase = SentenceOf([&] { Démarrer(Autre); });
            EXPECT_NE(Phrase.find(Fichier), std::string::npos) << Phrase;
            EXPECT_EQ(Contenu(), Avant) << "nothing is written";
            EXPECT_TRUE(Autre.Feuilles.Stack().empty()) << "no screen comes up";
            fs::remove_all(Dossier / Fichier);
            fs::rename(Dossier / "gardé", Dossier / Fichier);
        }
    Lancer();
}

TEST_F(Démarrage, ConfigNeedsItsRows)
{
    for (const std::string Table : {"DernierRoyaume", "DernièreSkin", "DernièreRésolution",
                                    "SkinsListe", "RésolutionsListe"}) {
        Modifier("Config.mdb",
                 "CREATE TABLE Gardé AS SELECT * FROM " + Table + "; DELETE FROM " + Table);
        Application Autre(Dossier.Path(), Boîtes);
        EnregistrerFeuilles(Autre);
        SCOPED_TRACE(Table);
        EXPECT_FAILS(NoRow, Démarrer(Autre));
        Modifier("Config.mdb", "INSERT INTO " + Table + " SELECT * FROM Gardé; DROP TABLE Gardé");
    }
    Modifier("Config.mdb", "DELETE FROM ConfigRoyaume WHERE Num = 11");
    EXPECT_FAILS(NoRow, Lancer());
}

} // namespace orvane
