#include "support/petit_dossier.h"

namespace orvane {

class Validation : public EnMarche
{
  protected:
    void SetUp() override
    {
        Lancer();
        Door.Click(Accueil().cmd_Configuration);
    }

    std::string Rangs(const std::string& Royaume)
    {
        return Lire("Config.mdb", "SELECT * FROM ConfigRoyaume ORDER BY Num",
                    "Craft" + Royaume + "|Marges1" + Royaume + "|Marges2" + Royaume);
    }

    // Craft r gets 1000 + r, 100 + r and 200 + r in the boxes that it has.
    void ToutChanger()
    {
        int Rang = 0;
        for (const RéglagesArtisanat& Each : Réglages().Réglages()) {
            ++Rang;
            int Base = 1000;
            for (TextBox* Case : {Each.Niveau, Each.Marge, Each.Essai}) {
                if (Case != nullptr)
                    Door.Type(*Case, std::to_string(Base + Rang));
                Base = Base == 1000 ? 100 : 200;
            }
        }
    }
};

TEST_F(Validation, ElevenRowsOfTheRealmInForceAndNoOtherCell)
{
    const std::string Valdren = Rangs("Valdren");
    const std::string Brenmoor = Rangs("Brenmoor");
    Door.Click(Accueil().img_Corvane); // while the screen is open
    ToutChanger();
    Door.Click(Réglages().cmd_Validation);
    EXPECT_EQ(Visibles(), "frm_Accueil") << "hidden once stored";
    EXPECT_EQ(Rangs("Corvane"), // 76, 78, 69, 79, 80, 81 and 512 have no box
              "1001 | 101 | 201 / 1002 | 102 | 202 / 1003 | 103 | 203 / 1004 | 104 | 204 / "
              "1005 | 105 | 76 / 1006 | 106 | 206 / 1007 | 107 | 78 / 1008 | 69 | 79 / "
              "1009 | 109 | 80 / 1010 | 110 | 81 / 512 | 111 | 211");
    EXPECT_EQ(Rangs("Valdren"), Valdren);
    EXPECT_EQ(Rangs("Brenmoor"), Brenmoor);
}

TEST_F(Validation, ADecimalIsStoredAsTyped)
{
    Door.Type(Réglages().txt_MargeCouture, "12,5");
    Door.Click(Réglages().cmd_Validation);
    Door.Click(Accueil().img_Valdren); // reads the file again
    EXPECT_EQ(Réglages().txt_MargeCouture.Text(), "12,5");
}

TEST_F(Validation, OneWrongBoxStoresNothingAndTheScreenStaysOpen)
{
    const std::string Avant = Rangs("Valdren");
    ToutChanger();
    for (const char* Faux : {"", "abc", "40000", "12.5", "1e2"}) {
        Door.Type(Réglages().txt_EssaiLégendaires, Faux); // the last box of all
        Boîtes.ExpectMsgBox(
            "Les cases marquées doivent contenir un nombre entier.\nRien n’a été enregistré.");
        Door.Click(Réglages().cmd_Validation);
        EXPECT_TRUE(Réglages().txt_EssaiLégendaires.Marked) << Faux;
        EXPECT_FALSE(Réglages().txt_NiveauArmurerie.Marked);
        EXPECT_EQ(Visibles(), "frm_Accueil | frm_Configuration");
    }
    EXPECT_EQ(Rangs("Valdren"), Avant);
    Door.Type(Réglages().txt_EssaiLégendaires, "2,");
    EXPECT_FALSE(Réglages().txt_EssaiLégendaires.Marked);
    Door.Click(Réglages().cmd_Validation);
    EXPECT_TRUE(Rangs("Valdren").ends_with(" / 511 | 111 | 2"));
}

TEST_F(Validation, ATypedSkinOrResolutionThatDoesNotExistStoresNothing)
{
    const std::string Avant = Rangs("Valdren");
    ToutChanger();
    Door.Type(Réglages().cbo_Skin, "Granit");
    Boîtes.ExpectMsgBox("La skin «\u00A0Granit\u00A0» n’existe pas.\nRien n’a été enregistré.");
    Door.Click(Réglages().cmd_Validation);
    Door.Pick(Réglages().cbo_Skin, "Velours");
    Door.Type(Réglages().cbo_Résolution, "8 x 6");
    Boîtes.ExpectMsgBox("La résolution «\u00A08 x 6\u00A0» n’existe pas.\nRien n’a été "
                        "enregistré.");
    Door.Click(Réglages().cmd_Validation);
    EXPECT_EQ(Rangs("Valdren"), Avant);
    EXPECT_EQ(Visibles(), "frm_Accueil | frm_Configuration");
}

TEST_F(Validation, SkinAndResolutionAreStoredAndHandedToTheHomeScreen)
{
    Door.Pick(Réglages().cbo_Skin, "Ardoise");
    Door.Pick(Réglages().cbo_Résolution, "800 x 600");
    EXPECT_EQ(Accueil().txt_Skin.Text(), "Velours") << "a pick alone does nothing";
    Door.Click(Réglages().cmd_Validation);
    EXPECT_EQ(Accueil().txt_Skin.Text(), "Ardoise");
    EXPECT_EQ(Accueil().txt_Résolution.Text(), "800 x 600");
    EXPECT_EQ(Lire("Config.mdb", "SELECT * FROM DernièreSkin", "Nom"), "Ardoise");
    EXPECT_EQ(Lire("Config.mdb", "SELECT * FROM DernièreRésolution", "Nom"), "800 x 600");
}

TEST_F(Validation, ClosingByTheFrameStoresNothingAndOpeningReloadsNothing)
{
    const std::string Avant = Rangs("Valdren");
    Door.Type(Réglages().txt_NiveauForge, "7");
    Door.Close(Réglages());
    Door.Click(Accueil().cmd_Configuration);
    EXPECT_EQ(Réglages().txt_NiveauForge.Text(), "7");
    EXPECT_EQ(Rangs("Valdren"), Avant);
    Perdre("Config.mdb");
    Door.Click(Réglages().cmd_Validation);
    EXPECT_EQ(Visibles(), "frm_Accueil | frm_Configuration") << "open until it is stored";
}

TEST_F(Validation, TheColourToolIsHiddenAndTellsANumber)
{
    Door.Click(Réglages().cmd_Couleur);
    Réglages().cmd_Couleur.Visible = true;
    Boîtes.AnswerShowColor(RGB(1, 2, 3)); // 1 + 2 × 256 + 3 × 65536
    Boîtes.ExpectMsgBox("197121");
    Door.Click(Réglages().cmd_Couleur);
    Boîtes.AnswerShowColor({});
    Door.Click(Réglages().cmd_Couleur);
}

} // namespace orvane
