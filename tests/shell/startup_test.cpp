#include "support/expect_fails.h"
#include "support/petit_dossier.h"

#include <fstream>
#include <functional>
#include <iterator>
#include <map>

namespace orvane {

namespace fs = std::filesystem;

class Démarrage : public PetitDossier
{
  protected:
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

TEST_F(Démarrage, TheLastChoicesAreRestored)
{
    Modifier("Config.mdb", "UPDATE DernierRoyaume SET Nom = 'Corvane'");
    Lancer();
    EXPECT_EQ(Visibles(), "frm_Accueil");
    EXPECT_EQ(App.Globals.RoyaumeCourant, "Corvane");
    EXPECT_EQ(App.Globals.CheminRoyaume, (Dossier / "Artisanat_Corvane.mdb").string());
    EXPECT_EQ(Accueil().img_Valdren.Picture().File.filename(), "EcuValdren.gif");
    EXPECT_EQ(Accueil().img_Corvane.Picture().File.filename(), "EcuCorvaneOmbre.gif");
    EXPECT_EQ(Réglages().txt_NiveauCouture.Text(), "101");
    EXPECT_EQ(Jointes(Réglages().cbo_Skin.Items()), "Ardoise | Velours") << "sorted by the control";
    EXPECT_EQ(Réglages().cbo_Skin.Text(), "Velours");
    EXPECT_EQ(Accueil().txt_Skin.Text(), "Velours");
    EXPECT_EQ(Réglages().cbo_Résolution.Text(), "1024 x 768");
    EXPECT_EQ(Accueil().txt_Résolution.Text(), "1024 x 768");
    EXPECT_EQ(Jointes(Panier().cbo_Commandes.Items()), "Nouvelle commande");
    EXPECT_TRUE(App.Globals.BaseDonnées.IsEmpty() && App.Globals.BaseDonnées2.IsEmpty());
}

TEST_F(Démarrage, ARealmUnknownOrInAnotherCaseGivesWayToTheFirst)
{
    Modifier("Config.mdb", "UPDATE DernierRoyaume SET Nom = 'corvane'");
    Boîtes.ExpectMsgBox("Le royaume «\u00A0corvane\u00A0» n’existe pas\u00A0: Valdren est choisi "
                        "à sa place.");
    Lancer();
    EXPECT_EQ(App.Globals.RoyaumeCourant, "Valdren");
}

TEST_F(Démarrage, AStoredSkinThatIsGoneGivesWayToTheFirstByNum)
{
    Modifier("Config.mdb", "UPDATE DernièreSkin SET Nom = 'Granit'");
    Boîtes.ExpectMsgBox("«\u00A0Granit\u00A0» n’existe plus\u00A0: «\u00A0Velours\u00A0» est "
                        "choisi à sa place.");
    Lancer();
    EXPECT_EQ(Accueil().txt_Skin.Text(), "Velours");
    EXPECT_EQ(Lire("Config.mdb", "SELECT * FROM DernièreSkin", "Nom"), "Granit") << "not saved";
}

TEST_F(Démarrage, MissingPicturesAreToldOnceTogether)
{
    fs::remove(Dossier / "Interface/Logo.png");
    fs::remove(Dossier / "Interface/EcuCorvane.gif");
    Boîtes.ExpectMsgBox("Des images sont introuvables ou illisibles\u00A0; le programme fonctionne "
                        "sans elles\u00A0:\nInterface/EcuCorvane.gif\nInterface/Logo.png");
    Lancer();
    Door.Click(Accueil().img_Corvane);
    Door.Click(Accueil().img_Valdren);
}

TEST_F(Démarrage, ABrokenDatabaseStopsTheStartByItsNameAndNothingIsWritten)
{
    const std::pair<const char*, std::function<void(const fs::path&)>> Défauts[] = {
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
            Application Autre(Dossier.Path(), Boîtes);
            EnregistrerFeuilles(Autre);
            const std::string Phrase = SentenceOf([&] { Démarrer(Autre); });
            EXPECT_NE(Phrase.find(Fichier), std::string::npos) << Phrase;
            EXPECT_EQ(Contenu(), Avant);
            EXPECT_TRUE(Autre.Feuilles.Stack().empty()) << "no screen comes up";
            fs::remove_all(Dossier / Fichier);
            fs::rename(Dossier / "gardé", Dossier / Fichier);
        }
}

TEST_F(Démarrage, EachTableNeedsItsRows)
{
    for (const std::string Table : {"DernierRoyaume", "DernièreSkin", "DernièreRésolution",
                                    "SkinsListe", "RésolutionsListe", "ConfigRoyaume"}) {
        SCOPED_TRACE(Table);
        Modifier("Config.mdb", "CREATE TABLE Gardé AS SELECT * FROM " + Table + "; DELETE FROM " +
                                   Table + " WHERE rowid = (SELECT max(rowid) FROM " + Table +
                                   ") OR 'ConfigRoyaume' <> '" + Table + "'");
        Application Autre(Dossier.Path(), Boîtes);
        EnregistrerFeuilles(Autre);
        EXPECT_FAILS(NoRow, Démarrer(Autre));
        Modifier("Config.mdb", "DELETE FROM " + Table + "; INSERT INTO " + Table +
                                   " SELECT * FROM Gardé; DROP TABLE Gardé");
    }
}

} // namespace orvane
