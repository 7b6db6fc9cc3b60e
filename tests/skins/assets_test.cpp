#include "skins/dans_la_skin.h"

#include <algorithm>

namespace orvane {

namespace fs = std::filesystem;

class Images : public DansLaSkin
{
  protected:
    struct Habit
    {
        const char* Feuille;
        const char* Dossier;
        std::vector<std::string> Boutons; // "Retour": cmd_Retour takes BoutonRetour.jpg
    };

    // Backgrounds and buttons of all ten screens, and no other button from the skin.
    void ToutHabillé(const std::string& Skin, const std::string& Sous, const std::string& Royaume)
    {
        const Habit Habits[] = {
            {"frm_Accueil",
             "Accueil",
             {"ArtisanatsManuels", "ArtisanatsMagiques", "ArtisanatsSecondaires", "Configuration",
              "Quitter", "News"}},
            {"frm_Configuration", "Configuration", {"Validation", "Couleur"}},
            {"frm_ArtisanatsManuels", "ArtisanatsManuels", {"AjouterPanier", "Retour"}},
            {"frm_Archerie", "Archerie", {"AjouterPanier", "Retour"}},
            {"frm_ArtisanatsMagiques", "ArtisanatsMagiques", {"AjouterPanier", "Retour"}},
            {"frm_ArtisanatsSecondaires", "ArtisanatsSecondaires", {"Retour", "AjouterPanier"}},
            {"frm_Panier",
             "Panier",
             {"SupprimerCommande", "SupprimerObjet", "Enregistrer", "Retour"}},
            {"frm_Statut", "Statut", {"Retour"}},
            {"frm_ArmesLégendaires", "ArmesLégendaires", {"AjouterPanier", "Retour"}},
            {"frm_News", "News", {"Retour", "Détails"}},
        };
        for (const auto& [Nom, Dans, Boutons] : Habits) {
            SCOPED_TRACE(Nom);
            const std::string_view Feuille = Nom;
            const bool Commun = Feuille == "frm_Configuration" || Feuille == "frm_Panier";
            const bool Statut = Feuille == "frm_Statut";
            const std::string Racine = Skin + "/" + (Commun ? "Commun" : Sous) + "/" + Dans + "/";
            const Screen& Habillée = App.Feuilles.Touch(Feuille);
            EXPECT_EQ(Fichier(Habillée.Picture), Racine + (Statut ? Royaume : "Fond") + ".jpg");
            for (const std::string& Bouton : Boutons)
                EXPECT_EQ(Fichier(dynamic_cast<Button&>(Habillée.Find("cmd_" + Bouton)).Picture),
                          Racine + "Bouton" + Bouton + (Statut ? Royaume : "") + ".jpg");
            for (const Control* Each : Habillée.Controls())
                if (dynamic_cast<const Button*>(Each) != nullptr &&
                    std::ranges::count(Boutons, Each->Name().substr(4)) == 0) {
                    const auto& Autre = static_cast<const Button&>(*Each);
                    EXPECT_FALSE(Fichier(Autre.Picture).starts_with(Skin)) << Each->Name();
                }
        }
    }
};

TEST_F(Images, TheStartLoadsAllTenScreensInTheSkinsOrderAndDressesThem)
{
    Lancer();
    std::vector<std::string> Noms;
    for (int i = 0; i < App.Feuilles.Count(); ++i)
        Noms.push_back(App.Feuilles[i].Name());
    EXPECT_EQ(Jointes(Noms),
              "frm_Accueil | frm_Configuration | frm_ArtisanatsManuels | frm_Archerie | "
              "frm_ArtisanatsMagiques | frm_ArtisanatsSecondaires | frm_Panier | frm_Statut | "
              "frm_ArmesLégendaires | frm_News");
    ToutHabillé("Velours", "1024x768", "Valdren");
    EXPECT_TRUE(App.Globals.BaseDonnées2.IsEmpty());
    Valider("Ardoise", "800 x 600");
    ToutHabillé("Ardoise", "800x600", "Valdren");
}

// null, "N" and "o" are no "O".
TEST_F(Images, EachScreenGoesByItsOwnMark)
{
    Modifier(Base("Velours"),
             "UPDATE RésolutionCommune SET Commun = NULL WHERE Nom = 'frm_Panier';"
             "UPDATE RésolutionCommune SET Commun = 'o' WHERE Nom = 'frm_News';"
             "UPDATE RésolutionCommune SET Commun = 'O' WHERE Nom = 'frm_Statut';"
             "CREATE TABLE frm_Panier_1024x768 AS SELECT * FROM frm_Panier_Commun;"
             "CREATE TABLE frm_Statut_Commun AS SELECT * FROM frm_Statut_1024x768");
    Lancer();
    EXPECT_EQ(Fichier(Panier().Picture), "Velours/1024x768/Panier/Fond.jpg");
    EXPECT_EQ(Fichier(App.Feuilles.Touch("frm_News").Picture), "Velours/1024x768/News/Fond.jpg");
    EXPECT_EQ(Fichier(App.Feuilles.Touch("frm_Statut").Picture),
              "Velours/Commun/Statut/Valdren.jpg");
    EXPECT_EQ(App.Globals.CheminStatut, (Dossier / "Skins/Velours/Commun/Statut/").string());
}

TEST_F(Images, TheStatusScreenWearsTheRealmOfTheLastRun)
{
    Modifier("Config.mdb", "UPDATE DernierRoyaume SET Nom = 'Corvane'");
    Lancer();
    ToutHabillé("Velours", "1024x768", "Corvane");
    Door.Click(Accueil().img_Brenmoor);
    ToutHabillé("Velours", "1024x768", "Corvane");
    Valider("Ardoise", "1024 x 768");
    ToutHabillé("Ardoise", "1024x768", "Brenmoor");
    EXPECT_EQ(App.Globals.CheminStatut, (Dossier / "Skins/Ardoise/1024x768/Statut/").string());
}

TEST_F(Images, ASkinWithoutAResolutionLoadsNothing)
{
    frm_Accueil Seule(App); // not started
    Seule.txt_Skin.Text = "Velours";
    EXPECT_EQ(App.Feuilles.Count(), 0);
    EXPECT_EQ(App.Globals.CheminSkin, "");
    EXPECT_TRUE(Seule.Picture().IsEmpty());
}

TEST_F(Images, MissingOnesLeaveThePlainLookAndAreToldOnce)
{
    const fs::path Bouton = Dossier / "Skins/Velours/1024x768/Accueil/BoutonNews.jpg";
    fs::remove(Bouton);
    fs::remove(Dossier / "Skins/Velours/Commun/Panier/Fond.jpg");
    Boîtes.ExpectMsgBox("Des images sont introuvables ou illisibles\u00A0; le programme fonctionne "
                        "sans "
                        "elles\u00A0:\nSkins/Velours/1024x768/Accueil/BoutonNews.jpg\nSkins/"
                        "Velours/Commun/Panier/Fond.jpg");
    Lancer();
    EXPECT_EQ(Fichier(Accueil().cmd_News.Picture), "");
    EXPECT_EQ(Accueil().cmd_News.Words(), "Nouvelles") << "what the plain button says";
    EXPECT_EQ(Fichier(Panier().Picture), "");
    EXPECT_EQ(Fichier(Panier().cmd_Retour.Picture), "Velours/Commun/Panier/BoutonRetour.jpg");
    Valider("Velours", "1024 x 768"); // nothing new to tell
    Valider("Ardoise", "1024 x 768");
    EXPECT_EQ(Fichier(Accueil().cmd_News.Picture), "Ardoise/1024x768/Accueil/BoutonNews.jpg");
    Dossier.Write("Skins/Velours/1024x768/Accueil/BoutonNews.jpg", "jpg");
    Dossier.Write("Skins/Velours/Commun/Panier/Fond.jpg", "jpg");
    Valider("Velours", "1024 x 768");
    ToutHabillé("Velours", "1024x768", "Valdren");
}

TEST_F(Images, FileNamesOfAnotherCaseAreFound)
{
    const fs::path Skin = Dossier / "Skins/Velours/1024x768";
    fs::rename(Skin / "Archerie/Fond.jpg", Skin / "Archerie/FOND.JPG");
    fs::rename(Skin / "ArmesLégendaires", Skin / "armesLÉGENDAIRES");
    Lancer();
    EXPECT_EQ(Fichier(Archerie().Picture), "Velours/1024x768/Archerie/FOND.JPG");
    EXPECT_EQ(Fichier(App.Feuilles.Touch("frm_ArmesLégendaires").Picture),
              "Velours/1024x768/armesLÉGENDAIRES/Fond.jpg");
}

TEST_F(Images, AStoredSkinWhoseFilesAreGoneGivesWayToTheFirstThatExists)
{
    fs::remove_all(Dossier / "Skins/Velours");
    Boîtes.ExpectMsgBox("«\u00A0Velours\u00A0» n’existe plus\u00A0: «\u00A0Ardoise\u00A0» est "
                        "choisi à sa place.");
    Lancer();
    ToutHabillé("Ardoise", "1024x768", "Valdren");
    EXPECT_EQ(Réglages().cbo_Skin.Text(), "Ardoise");
}

TEST_F(Images, WithoutAnySkinTheProgramStartsPlainAndKeepsSettings)
{
    fs::remove_all(Dossier / "Skins");
    Boîtes.ExpectMsgBoxBeginning("«\u00A0Velours\u00A0» n’existe plus");
    Lancer();
    EXPECT_EQ(Visibles(), "frm_Accueil");
    EXPECT_EQ(Fichier(Accueil().Picture), "");
    OuvrirAtelier();
    Choisir("Couture/Tissu/Chapeaux/Béret/brut");
    EXPECT_EQ(Totaux(), "12,5 | 12,5 | 15");
    Door.Click(Atelier().cmd_Retour);
    Door.Click(Accueil().cmd_Configuration);
    Door.Type(Réglages().txt_NiveauForge, "7");
    Door.Click(Réglages().cmd_Validation);
    Door.Click(Accueil().img_Valdren); // reads the file again
    EXPECT_EQ(Réglages().txt_NiveauForge.Text(), "7");
}

} // namespace orvane
