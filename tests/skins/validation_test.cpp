#include "skins/dans_la_skin.h"

// What a validation does to the look.
namespace orvane {

namespace fs = std::filesystem;

class Validation : public DansLaSkin
{
  protected:
    // What shows another pass: the background taken away, the title moved.
    void SetUp() override
    {
        for (const std::string Skin : {"Velours", "Ardoise"})
            for (const std::string Sous : {"1024x768", "800x600"})
                Tracer(Skin, "frm_Accueil_" + Sous, 2, "lbl_Titre", "O----",
                       (Skin == "Velours" ? "1" : "2") + Sous.substr(0, 3) + ", 0, 0, 0, 0, 0");
        Lancer();
        EXPECT_EQ(Aspect(), "Velours/1024x768/Accueil/Fond.jpg | 1102") << "the start's own pass";
        Accueil().lbl_Titre.Left = 5;
        Accueil().Picture = {};
    }

    // Background and place of the title on the home screen.
    std::string Aspect()
    {
        return Jointes({Fichier(Accueil().Picture), std::to_string(Accueil().lbl_Titre.Left())});
    }
};

TEST_F(Validation, ASkinAloneReloadsPicturesAndLaysNothingOut)
{
    Valider("Ardoise", "1024 x 768");
    EXPECT_EQ(Aspect(), "Ardoise/1024x768/Accueil/Fond.jpg | 5");
    EXPECT_EQ(App.Globals.CheminBaseSkin, App.Globals.CheminSkin + "/Ardoise.mdb");
    Valider("Ardoise", "800 x 600"); // its tables count from now on
    EXPECT_EQ(Aspect(), "Ardoise/800x600/Accueil/Fond.jpg | 2800");
}

TEST_F(Validation, AResolutionDoesBoth)
{
    Valider("Velours", "800 x 600");
    EXPECT_EQ(Aspect(), "Velours/800x600/Accueil/Fond.jpg | 1800");
}

TEST_F(Validation, BothTogether)
{
    Valider("Ardoise", "800 x 600");
    EXPECT_EQ(Aspect(), "Ardoise/800x600/Accueil/Fond.jpg | 2800");
    EXPECT_TRUE(App.Globals.BaseDonnées2.IsEmpty());
}

TEST_F(Validation, NeitherDoesNothing)
{
    fs::remove_all(Dossier / "Skins/Velours/1024x768");
    Valider("Velours", "1024 x 768");
    EXPECT_EQ(Aspect(), " | 5");
}

TEST_F(Validation, ASkinWithoutItsFilesOrAResolutionOutsideTheListStoresNothing)
{
    fs::remove_all(Dossier / "Skins/Ardoise");
    Boîtes.ExpectMsgBox("La skin «\u00A0Ardoise\u00A0» n’existe pas.\nRien n’a été enregistré.");
    Valider("Ardoise", "800 x 600");
    Door.Pick(Réglages().cbo_Skin, "Velours");
    Door.Type(Réglages().cbo_Résolution, "800x600"); // another spelling is no entry
    Boîtes.ExpectMsgBox("La résolution «\u00A0800x600\u00A0» n’existe pas.\nRien n’a été "
                        "enregistré.");
    Door.Click(Réglages().cmd_Validation);
    EXPECT_EQ(Lire("Config.mdb", "SELECT * FROM DernièreSkin", "Nom"), "Velours");
    EXPECT_EQ(Lire("Config.mdb", "SELECT * FROM DernièreRésolution", "Nom"), "1024 x 768");
    EXPECT_EQ(Aspect(), " | 5");
}

// The list has a resolution that the skin doesn't.
TEST_F(Validation, AResolutionThatTheSkinLacksLeavesThePlainLookAndIsTold)
{
    Modifier("Config.mdb", "INSERT INTO RésolutionsListe VALUES (3, '640 x 480')");
    Application Autre(Dossier.Path(), Boîtes);
    EnregistrerFeuilles(Autre);
    Modifier("Config.mdb", "UPDATE DernièreRésolution SET Nom = '640 x 480'");
    Boîtes.ExpectMsgBoxBeginning("La skin ne connaît pas ces écrans");
    Démarrer(Autre);
    EXPECT_NE(Boîtes.Dernière.find("frm_News"), std::string::npos);
    EXPECT_EQ(Boîtes.Dernière.find("frm_Panier"), std::string::npos) << "which is common";
    auto& Maison = Autre.Feuilles.Get<frm_Accueil>();
    EXPECT_EQ(Fichier(Maison.Picture), "");
    EXPECT_EQ(Fichier(Maison.cmd_News.Picture), "");
    EXPECT_EQ(Fichier(Autre.Feuilles.Get<frm_Panier>().Picture), "Velours/Commun/Panier/Fond.jpg");
    EXPECT_EQ(Autre.Feuilles.Count(), 10);
}

// Or the crafter could never start again.
TEST_F(Validation, ASkinWhoseDatabaseIsDamagedIsNotStored)
{
    Dossier.Write(Base("Ardoise"), std::string(5000, 'x'));
    Boîtes.ExpectMsgBoxBeginning("La skin «\u00A0Ardoise\u00A0» n’existe pas.");
    Valider("Ardoise", "1024 x 768");
    EXPECT_EQ(Lire("Config.mdb", "SELECT * FROM DernièreSkin", "Nom"), "Velours");
}

} // namespace orvane
