#include "support/petit_dossier.h"

// The choice of a realm, and the one way out that stores it.
namespace orvane {

namespace {

class Royaume : public EnMarche
{
  protected:
    std::string Écus()
    {
        std::string Noms;
        for (const Image* Each :
             {&Accueil().img_Valdren, &Accueil().img_Corvane, &Accueil().img_Brenmoor})
            Noms += Each->Picture().File.stem().string() + " ";
        return Noms;
    }

    std::string Retenu() { return Cellule("Config.mdb", "SELECT Nom FROM DernierRoyaume"); }
};

} // namespace

TEST_F(Royaume, AClickOnAShieldTakesItsRealm)
{
    Door().Click(Accueil().img_Brenmoor);
    EXPECT_EQ(Écus(), "EcuValdren EcuCorvane EcuBrenmoorOmbre ");
    EXPECT_EQ(App.Globals.RoyaumeCourant, "Brenmoor");
    EXPECT_EQ(App.Globals.CheminRoyaume, (Dossier / "Artisanat_Brenmoor.mdb").string());
    EXPECT_EQ(Réglages().txt_NiveauForge.Text(), "402");
    Door().Click(Accueil().img_Corvane);
    EXPECT_EQ(Écus(), "EcuValdren EcuCorvaneOmbre EcuBrenmoor ");
}

TEST_F(Royaume, ClickingTheRealmChosenAlreadyDropsUnvalidatedEdits)
{
    Door().Click(Accueil().cmd_Configuration);
    Door().Type(Réglages().txt_NiveauForge, "7");
    Door().Type(Réglages().txt_MargeForge, "abc");
    Door().Click(Accueil().img_Valdren);
    EXPECT_EQ(Écus(), "EcuValdrenOmbre EcuCorvane EcuBrenmoor ");
    EXPECT_EQ(Réglages().txt_NiveauForge.Text(), "400");
    EXPECT_EQ(Réglages().txt_MargeForge.Text(), "50");
    EXPECT_FALSE(Réglages().txt_MargeForge.Marked);
    EXPECT_EQ(Visibles(), "frm_Configuration | frm_Accueil") << "the click went to the home screen";
}

TEST_F(Royaume, OnlyQuittingStoresIt)
{
    Door().Click(Accueil().img_Corvane);
    OuvrirAtelier();
    Door().Click(Atelier().cmd_Retour);
    EXPECT_EQ(Retenu(), "Valdren") << "a click alone isn't stored";
    Door().Click(Accueil().cmd_Quitter);
    EXPECT_EQ(Retenu(), "Corvane");
    EXPECT_EQ(Quittés, 1);
}

TEST_F(Royaume, QuittingLosesUnvalidatedSettings)
{
    Door().Click(Accueil().cmd_Configuration);
    Door().Type(Réglages().txt_NiveauCouture, "7");
    Door().Click(Accueil().cmd_Quitter);
    EXPECT_EQ(Cellule("Config.mdb", "SELECT CraftValdren FROM ConfigRoyaume WHERE Num=2"), "100");
}

TEST_F(Royaume, ClosingTheHomeScreenByItsFrameIsQuitting)
{
    Door().Click(Accueil().img_Brenmoor);
    Door().Close(Accueil());
    EXPECT_EQ(Retenu(), "Brenmoor");
    EXPECT_EQ(Quittés, 1);
}

TEST_F(Royaume, AConfigThatIsGoneKeepsNobodyIn)
{
    std::filesystem::remove(Dossier / "Config.mdb");
    Boîtes.ExpectMsgBox("La base de données «\u00A0Config.mdb\u00A0» est introuvable.\nReplacez "
                        "le fichier à côté du programme.");
    Door().Click(Accueil().cmd_Quitter);
    EXPECT_EQ(Quittés, 1);
}

TEST_F(Royaume, CraftScreensReadTheNewRealmsCatalogueAndMargins)
{
    Door().Click(Accueil().img_Corvane);
    OuvrirAtelier();
    Choisir("Couture", "Tissu", "Robes", "Robe 0", "brut");
    EXPECT_EQ(Atelier().txt_Matériaux[1].Text(), "laine 0");
    // 2 × 6; 12 × 1,21
    EXPECT_EQ(Totaux(), "12 | 12 | 14,52");
}

} // namespace orvane
