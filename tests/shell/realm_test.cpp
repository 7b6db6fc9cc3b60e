#include "support/petit_dossier.h"

// The choice of a realm, and the one way out that stores it.
namespace orvane {

class Royaume : public EnMarche
{
  protected:
    std::string Écus()
    {
        std::vector<std::string> Noms;
        for (const Image* Each :
             {&Accueil().img_Valdren, &Accueil().img_Corvane, &Accueil().img_Brenmoor})
            Noms.push_back(Each->Picture().File.stem());
        return Jointes(Noms);
    }

    std::string Retenu() { return Lire("Config.mdb", "SELECT * FROM DernierRoyaume", "Nom"); }
};

TEST_F(Royaume, AClickOnAShieldTakesItsRealm)
{
    Door.Click(Accueil().img_Brenmoor);
    EXPECT_EQ(Écus(), "EcuValdren | EcuCorvane | EcuBrenmoorOmbre");
    EXPECT_EQ(Réglages().txt_NiveauForge.Text(), "402");
    Door.Click(Accueil().img_Corvane);
    EXPECT_EQ(Écus(), "EcuValdren | EcuCorvaneOmbre | EcuBrenmoor");
    OuvrirAtelier();
    Choisir("Couture/Tissu/Robes/Robe 0/brut");
    EXPECT_EQ(Atelier().txt_Matériaux[1].Text(), "laine 0");
    EXPECT_EQ(Totaux(), "12 | 12 | 14,52"); // 2 × 6, × 1,21
}

TEST_F(Royaume, ClickingTheRealmChosenAlreadyDropsUnvalidatedEdits)
{
    Door.Click(Accueil().cmd_Configuration);
    Door.Type(Réglages().txt_NiveauForge, "abc");
    Door.Click(Accueil().img_Valdren);
    EXPECT_EQ(Écus(), "EcuValdrenOmbre | EcuCorvane | EcuBrenmoor");
    EXPECT_EQ(Réglages().txt_NiveauForge.Text(), "400");
    EXPECT_FALSE(Réglages().txt_NiveauForge.Marked);
}

TEST_F(Royaume, QuittingAloneStoresItAndLosesUnvalidatedSettings)
{
    Door.Click(Accueil().img_Corvane);
    Door.Click(Accueil().cmd_Configuration);
    Door.Type(Réglages().txt_NiveauCouture, "7");
    EXPECT_EQ(Retenu(), "Valdren") << "a click alone isn't stored";
    Door.Click(Accueil().cmd_Quitter);
    EXPECT_EQ(Retenu(), "Corvane");
    Door.Click(Accueil().img_Brenmoor);
    Door.Close(Accueil());
    EXPECT_EQ(Retenu(), "Brenmoor") << "closing by the frame is quitting";
    EXPECT_EQ(Lire("Config.mdb", "SELECT * FROM ConfigRoyaume WHERE Num=2", "CraftCorvane"), "101");
    EXPECT_EQ(Quittés, 2);
    Perdre("Config.mdb");
    Door.Click(Accueil().cmd_Quitter);
    EXPECT_EQ(Quittés, 3) << "a folder that is gone keeps nobody in";
}

} // namespace orvane
