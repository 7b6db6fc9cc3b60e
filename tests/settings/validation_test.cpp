#include "support/petit_dossier.h"

namespace orvane {

namespace {

const std::string CasesMarquées =
    "Les cases marquées doivent contenir un nombre entier.\nRien n’a été enregistré.";

class Validation : public EnMarche
{
  protected:
    void SetUp() override
    {
        Lancer();
        Door().Click(Accueil().cmd_Configuration);
    }

    std::vector<std::string> Rangs(const std::string& Royaume)
    {
        return Rangées("Config.mdb", "SELECT * FROM ConfigRoyaume ORDER BY Num",
                       {"Craft" + Royaume, "Marges1" + Royaume, "Marges2" + Royaume});
    }

    // Craft r gets 1000 + r, 100 + r and 200 + r in the boxes that it has.
    void ToutChanger()
    {
        int Rang = 0;
        for (const RéglagesArtisanat& Each : Réglages().Réglages()) {
            ++Rang;
            if (Each.Niveau != nullptr)
                Door().Type(*Each.Niveau, std::to_string(1000 + Rang));
            if (Each.Marge != nullptr)
                Door().Type(*Each.Marge, std::to_string(100 + Rang));
            if (Each.Essai != nullptr)
                Door().Type(*Each.Essai, std::to_string(200 + Rang));
        }
    }

    // What ToutChanger leaves in the store; cells without a box keep the file's figures, Plus more
    // than Valdren's.
    static std::vector<std::string> ToutChangé(int Plus)
    {
        const auto Gardé = [Plus](int Nombre) { return std::to_string(Nombre + Plus); };
        return {"1001 | 101 | 201",          "1002 | 102 | 202",
                "1003 | 103 | 203",          "1004 | 104 | 204",
                "1005 | 105 | " + Gardé(75), "1006 | 106 | 206",
                "1007 | 107 | " + Gardé(77), "1008 | " + Gardé(68) + " | " + Gardé(78),
                "1009 | 109 | " + Gardé(79), "1010 | 110 | " + Gardé(80),
                Gardé(511) + " | 111 | 211"};
    }
};

} // namespace

TEST_F(Validation, ElevenRowsAreWrittenForTheRealmAndNoOtherCell)
{
    const auto Corvane = Rangs("Corvane");
    const auto Brenmoor = Rangs("Brenmoor");
    ToutChanger();
    Door().Click(Réglages().cmd_Validation);
    EXPECT_EQ(Visibles(), "frm_Accueil") << "hidden once stored";
    EXPECT_EQ(Rangs("Valdren"), ToutChangé(0));
    EXPECT_EQ(Rangs("Corvane"), Corvane);
    EXPECT_EQ(Rangs("Brenmoor"), Brenmoor);
}

TEST_F(Validation, ARealmTakenWhileTheScreenIsOpenIsTheOneWritten)
{
    const auto Valdren = Rangs("Valdren");
    Door().Click(Accueil().img_Corvane);
    ToutChanger();
    Door().Click(Réglages().cmd_Validation);
    EXPECT_EQ(Rangs("Corvane"), ToutChangé(1));
    EXPECT_EQ(Rangs("Valdren"), Valdren);
}

TEST_F(Validation, ADecimalIsStoredAsTyped)
{
    Door().Type(Réglages().txt_MargeCouture, "12,5");
    Door().Click(Réglages().cmd_Validation);
    Door().Click(Accueil().img_Valdren); // reads the file again
    EXPECT_EQ(Réglages().txt_MargeCouture.Text(), "12,5");
}

TEST_F(Validation, OneWrongBoxStoresNothingAndTheScreenStaysOpen)
{
    const auto Avant = Rangs("Valdren");
    for (const char* Faux : {"", "abc", "40000", "12.5", "1e2", "-"}) {
        SCOPED_TRACE(Faux);
        ToutChanger();
        Door().Type(Réglages().txt_EssaiLégendaires, Faux); // the last box of all
        Boîtes.ExpectMsgBox(CasesMarquées);
        Door().Click(Réglages().cmd_Validation);
        EXPECT_TRUE(Réglages().txt_EssaiLégendaires.Marked);
        EXPECT_FALSE(Réglages().txt_NiveauArmurerie.Marked);
        EXPECT_EQ(Visibles(), "frm_Accueil | frm_Configuration");
        EXPECT_EQ(Rangs("Valdren"), Avant);
    }
    Door().Type(Réglages().txt_EssaiLégendaires, "211");
    EXPECT_FALSE(Réglages().txt_EssaiLégendaires.Marked);
    Door().Click(Réglages().cmd_Validation);
    EXPECT_EQ(Rangs("Valdren"), ToutChangé(0));
}

TEST_F(Validation, ATypedSkinOrResolutionThatDoesNotExistStoresNothing)
{
    const auto Avant = Rangs("Valdren");
    ToutChanger();
    Door().Type(Réglages().cbo_Skin, "Granit");
    Boîtes.ExpectMsgBox("La skin «\u00A0Granit\u00A0» n’existe pas.\nRien n’a été enregistré.");
    Door().Click(Réglages().cmd_Validation);
    Door().Pick(Réglages().cbo_Skin, "Velours");
    Door().Type(Réglages().cbo_Résolution, "");
    Boîtes.ExpectMsgBox("La résolution «\u00A0\u00A0» n’existe pas.\nRien n’a été enregistré.");
    Door().Click(Réglages().cmd_Validation);
    EXPECT_EQ(Rangs("Valdren"), Avant);
    EXPECT_EQ(Accueil().txt_Skin.Text(), "Velours");
    EXPECT_EQ(Accueil().txt_Résolution.Text(), "1024 x 768");
    EXPECT_EQ(Visibles(), "frm_Accueil | frm_Configuration");
}

TEST_F(Validation, SkinAndResolutionAreStoredAndHandedToTheHomeScreen)
{
    std::string Suite;
    Accueil().txt_Skin.OnChange = [&] { Suite += "skin "; };
    Accueil().txt_Résolution.OnChange = [&] { Suite += "résolution "; };
    Door().Click(Réglages().cmd_Validation);
    EXPECT_EQ(Suite, "") << "nothing is written to the home screen when neither changed";

    Door().Click(Accueil().cmd_Configuration);
    Door().Pick(Réglages().cbo_Skin, "Ardoise");
    Door().Pick(Réglages().cbo_Résolution, "800 x 600");
    EXPECT_EQ(Accueil().txt_Skin.Text(), "Velours") << "a pick alone does nothing";
    Door().Click(Réglages().cmd_Validation);
    EXPECT_EQ(Suite, "skin résolution ");
    EXPECT_EQ(Accueil().txt_Skin.Text(), "Ardoise");
    EXPECT_EQ(Accueil().txt_Résolution.Text(), "800 x 600");
    EXPECT_EQ(Cellule("Config.mdb", "SELECT Nom FROM DernièreSkin"), "Ardoise");
    EXPECT_EQ(Cellule("Config.mdb", "SELECT Nom FROM DernièreRésolution"), "800 x 600");
}

TEST_F(Validation, ClosingByTheFrameStoresNothingAndTheBoxesKeepTheirTexts)
{
    const auto Avant = Rangs("Valdren");
    Door().Type(Réglages().txt_NiveauForge, "7");
    Door().Close(Réglages());
    EXPECT_EQ(Rangs("Valdren"), Avant);
    Door().Click(Accueil().cmd_Configuration);
    EXPECT_EQ(Réglages().txt_NiveauForge.Text(), "7") << "opening reloads nothing";
}

TEST_F(Validation, AStoreThatRefusesIsToldAndTheScreenStaysOpen)
{
    std::filesystem::remove(Dossier / "Config.mdb");
    Boîtes.ExpectMsgBox("La base de données «\u00A0Config.mdb\u00A0» est introuvable.\nReplacez "
                        "le fichier à côté du programme.");
    Door().Click(Réglages().cmd_Validation);
    EXPECT_EQ(Visibles(), "frm_Accueil | frm_Configuration");
    EXPECT_TRUE(App.Globals.BaseDonnées.IsEmpty());
}

TEST_F(Validation, TheColourToolIsOutOfReachAndTellsANumber)
{
    Door().Click(Réglages().cmd_Couleur);
    Réglages().cmd_Couleur.Visible = true;
    Boîtes.AnswerShowColor(RGB(1, 2, 3)); // 1 + 2 × 256 + 3 × 65536
    Boîtes.ExpectMsgBox("197121");
    Door().Click(Réglages().cmd_Couleur);
    Boîtes.AnswerShowColor({});
    Door().Click(Réglages().cmd_Couleur);
}

} // namespace orvane
