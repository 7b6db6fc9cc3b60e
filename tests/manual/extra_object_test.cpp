#include "manual/avec_objet_sup.h"

// What a click on a damage type builds.
namespace orvane {

using ObjetSup = AvecObjetSup;

TEST_F(ObjetSup, ATypeBeforeAnyDegreeGivesTheMessageAndNoPanel)
{
    ChoisirObjet("Lance supérieure");
    Boîtes.ExpectMsgBox(Refus);
    ChoisirType("de feu");
    EXPECT_EQ(Panneau(), "-");
    EXPECT_EQ(Rangées(), "- | - | - | -");
    EXPECT_EQ(Atelier().cbo_TypeDégats.Text(), "");
    EXPECT_EQ(Atelier().lbl_Niveau.Caption(), "");
    Door.Pick(Atelier().cbo_Degré, "en dyr");
    ChoisirType("de feu"); // the same entry again
    EXPECT_EQ(Panneau(), "Essence de feu d'arme de néthérium | 7,5");
}

TEST_F(ObjetSup, AnotherDegreeGivesTheMessageAndThePanelWithWhatItHeld)
{
    ChoisirObjet("Lance supérieure/rare"); // degree 4: 50
    Boîtes.ExpectMsgBox(Refus);
    ChoisirType("de feu");
    EXPECT_EQ(Panneau(), "Essence | 0") << "the family name";
    EXPECT_EQ(Rangées(), Vides);
    EXPECT_EQ(Atelier().cbo_TypeDégats.Text(), "");

    Door.Pick(Atelier().cbo_Degré, "en dyr");
    ChoisirType("de feu");
    Door.Pick(Atelier().cbo_Degré, "rare");
    Boîtes.ExpectMsgBox(Refus);
    ChoisirType("de glace");
    EXPECT_EQ(Panneau(), "Essence | 7,5");
    EXPECT_EQ(Rangées(), "Barres de métal dyr x 1 = 1 | sel x 2 = 1 | cire x 2 = 0,5 | -");
    EXPECT_EQ(Atelier().lbl_Niveau.Caption(), "445") << "neither the level nor a price moves";
    EXPECT_EQ(Totaux(), "57,5 | 57,5 | 80,5");
}

TEST_F(ObjetSup, TheTypeBuildsNameRowsIndicatorsLevelAndPrice)
{
    ChoisirObjet("Lance supérieure/en dyr");
    EXPECT_EQ(Totaux(), "90 | 90 | 126");
    ChoisirType("de feu");
    EXPECT_EQ(Panneau(), "Essence de feu d'arme de néthérium | 7,5"); // 3 × 2,5
    EXPECT_EQ(Rangées(), "Barres de métal dyr x 1 = 1 | sel x 2 = 1 | cire x 2 = 0,5 | -");
    EXPECT_EQ(Atelier().lbl_ObjetSupNiveauCraft.Caption(), "300");
    EXPECT_EQ(Bande(Atelier().img_ObjetSupNiveau), "CouleurCraft1"); // 205 below alchemy's 505
    EXPECT_EQ(Bande(Atelier().img_Niveau), "CouleurCraft7");
    EXPECT_EQ(Atelier().img_ObjetSup.Picture().File, Dossier / "Objets/Commun/essence.gif");
    EXPECT_EQ(Atelier().txt_NbObjetSup.Text(), "3");
    EXPECT_EQ(Totaux(), "97,5 | 97,5 | 136,5");
    Door.Type(Atelier().txt_NbObjet, "2");
    Door.Type(Atelier().txt_NbEssais, "1"); // 195 + 85,5; 195 × 1,4 + 85,5 × 1,15
    EXPECT_EQ(Totaux(), "97,5 | 280,5 | 371,325");
    // One run: the trial still loses 97,5 - 12.
    ChoisirType("de glace");
    EXPECT_EQ(Panneau(), "Essence de glace d'arme de néthérium | 16,5") << "no trace of the first";
    EXPECT_EQ(Rangées(), "barres de métal* x 1 = 1,5 | sel x 2 = 1 | ambre x 2 = 1,5 | "
                         "cire x 6 = 1,5")
        << "a name in another case keeps its ending; row 4 is back";
    EXPECT_EQ(Bande(Atelier().img_ObjetSupNiveau), "CouleurCraft3"); // as high as alchemy's
    EXPECT_TRUE(Atelier().img_ObjetSup.Picture().IsEmpty()) << "this one has no icon";
    EXPECT_EQ(Totaux(), "106,5 | 298,5 | 396,525"); // 213 + 85,5; 298,2 + 98,325
    ChoisirType("conductrice");
    EXPECT_EQ(Rangées(), "Barres de métal dyr x 1 = 1 | sel x 3 = 1,5 | - | -");
    EXPECT_EQ(Atelier().cbo_TypeDégats.Text(), "conductrice");
    Door.Click(Atelier().cmd_AjouterPanier);
    EXPECT_EQ(Stockées("Nom|Nb"), "Lance supérieure conductrice en dyr | 2");
}

TEST_F(ObjetSup, TheLastTwoDigitsOfTheLevelFollowTypeAndName)
{
    struct Cas
    {
        const char* Objet;
        const char* Type;
        const char* Nom;
        const char* Niveau;
    };
    const Cas Tous[] = {
        {"Lance supérieure/en arcania", "de feu", "Essence de feu d'arme d'arcanium", "930"},
        {"Lance supérieure/en dyr", "de feu", "Essence de feu d'arme de néthérium", "830"},
        {"Lance supérieure/en dyr", "de glace", "Essence de glace d'arme de néthérium", "840"},
        {"Lance supérieure/en dyr", "conductrice", "Essence d'énergie d'arme de néthérium", "850"},
        {"Arc supérieur/en dyr", "conducteur", "Essence d'énergie d'arme de néthérium", "850"},
        {"Arc long durable/en dyr", "conducteur", "Essence d'énergie d'arme de néthérium", "860"},
        {"Lance DURABLE/en dyr", "de feu", "Essence de feu d'arme de néthérium", "840"},
        {"Lance DURABLE/en dyr", "de glace", "Essence de glace d'arme de néthérium", "850"},
        {"Lance DURABLE/en dyr", "conductrice", "Essence d'énergie d'arme de néthérium", "860"},
    };
    for (const auto& [Objet, Type, Nom, Niveau] : Tous) {
        SCOPED_TRACE(std::string(Objet) + " " + Type);
        ChoisirObjet(Objet);
        EXPECT_EQ(Atelier().lbl_Niveau.Caption().substr(1), "45") << "the base level";
        for (int Fois = 0; Fois < 2; ++Fois) { // nothing accumulates
            ChoisirType(Type);
            EXPECT_EQ(Atelier().txt_ObjetSup.Text(), Nom);
            EXPECT_EQ(Atelier().lbl_Niveau.Caption(), Niveau);
        }
    }
}

// A level of 330 against 300 is the last of band 5; the degree's own 345 is of band 6.
TEST_F(ObjetSup, TheIndicatorFollowsTheNewLevel)
{
    Modifier("Artisanat_Valdren.mdb",
             "UPDATE Classique_ListeObjets SET NiveauCraft = -455 WHERE Nom = 'Lance supérieure'");
    ChoisirObjet("Lance supérieure/en dyr");
    EXPECT_EQ(Bande(Atelier().img_Niveau), "CouleurCraft6");
    ChoisirType("de feu");
    EXPECT_EQ(Atelier().lbl_Niveau.Caption(), "330");
    EXPECT_EQ(Bande(Atelier().img_Niveau), "CouleurCraft5");
}

TEST_F(ObjetSup, BarsOfMetalEndInTheWordOfTheRealm)
{
    const std::pair<Image*, const char*> Écus[] = {
        {&Accueil().img_Corvane, "Barres de métal obric"},
        {&Accueil().img_Brenmoor, "Barres de métal ferron"}};
    for (const auto& [Écu, Nom] : Écus) {
        Door.Click(Atelier().cmd_Retour);
        Door.Click(*Écu);
        OuvrirAtelier();
        ChoisirObjet("Lance supérieure/en dyr");
        ChoisirType("de feu");
        EXPECT_EQ(Atelier().txt_MatSup[1].Text(), Nom);
        EXPECT_EQ(Atelier().txt_PrixMatSup[1].Text(), "1") << "only the name changes";
    }
}

// The quantity is taken as a whole number, ties to even: two, not 2,5.
TEST_F(ObjetSup, AQuantityWithDecimalsCountsAsAWholeOne)
{
    Modifier("Artisanat_Alchimie.mdb", "UPDATE ListeObjets SET Qté2 = 2.5 WHERE Num = 1");
    ChoisirObjet("Lance supérieure/en dyr");
    ChoisirType("de feu");
    EXPECT_EQ(Atelier().txt_MatSupQté[2].Text(), "2,5");
    EXPECT_EQ(Atelier().txt_PrixMatSup[2].Text(), "1");
    EXPECT_EQ(Atelier().txt_ObjetSUpPrixCoûtant.Text(), "7,5");
}

} // namespace orvane
