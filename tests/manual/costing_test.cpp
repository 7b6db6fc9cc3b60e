#include "support/petit_dossier.h"

namespace orvane {

namespace {

class Coût : public DansLAtelier
{
};

struct Saisie
{
    const char* Objets;
    const char* Essais;
    const char* Totaux;
};

} // namespace

// One object costs 12,5 and a merchant pays 4; margins 20 and 10.
TEST_F(Coût, CountsOfObjectsAndTrials)
{
    const Saisie Saisies[] = {
        {"1", "0", "12,5 | 12,5 | 15"},    {"3", "0", "12,5 | 37,5 | 45"},
        {"3", "2", "12,5 | 54,5 | 63,7"}, // + 2 × 8,5, sold × 1,1
        {"00", "2", "12,5 | 17 | 18,7"},  // two zeros are no objects
        {"-3", "0", "12,5 | -37,5 | -45"}, {"2,5", "0", "12,5 | 25 | 30"},     // ties to even
        {"3,5", "0", "12,5 | 50 | 60"},    {"2,", "0", "12,5 | 25 | 30"},      // half typed
        {" 4 ", "0", "12,5 | 50 | 60"},    {"1", "1,5", "12,5 | 29,5 | 33,7"}, // two trials
        {"1", "-1", "12,5 | 4 | 5,65"},    {"32767", "0", "12,5 | 409587,5 | 491505"},
    };
    ChoisirBéret();
    for (const Saisie& Each : Saisies) {
        Door().Type(Atelier().txt_NbObjet, Each.Objets);
        Door().Type(Atelier().txt_NbEssais, Each.Essais);
        EXPECT_EQ(Totaux(), Each.Totaux) << Each.Objets << " objects, " << Each.Essais << " trials";
        EXPECT_FALSE(Atelier().txt_NbObjet.Marked || TotauxPérimés());
    }
}

TEST_F(Coût, CountsAreRepairedAtOnce)
{
    ChoisirBéret();
    for (const char* Effacé : {"", "0"}) {
        Door().Type(Atelier().txt_NbObjet, "5");
        Door().Type(Atelier().txt_NbObjet, Effacé);
        EXPECT_EQ(Atelier().txt_NbObjet.Text(), "1");
        EXPECT_EQ(Totaux(), "12,5 | 12,5 | 15");
    }
    Door().Type(Atelier().txt_NbEssais, "5");
    Door().Type(Atelier().txt_NbEssais, "");
    EXPECT_EQ(Atelier().txt_NbEssais.Text(), "0");
    EXPECT_EQ(Totaux(), "12,5 | 12,5 | 15");
}

TEST_F(Coût, ADegreeClickSettlesTheLossOfATrial)
{
    Door().Type(Atelier().txt_NbObjet, "3");
    Door().Type(Atelier().txt_NbEssais, "2");
    ChoisirBéret();
    EXPECT_EQ(Totaux(), "12,5 | 54,5 | 63,7");
    Door().Pick(Atelier().cbo_Degré, "simple"); // 25 less 5: 75 + 40, 90 + 44
    EXPECT_EQ(Totaux(), "25 | 115 | 134");
}

// Cost 40,005, resale 8, one trial. The loss is that of the cost before the run.
TEST_F(Coût, ATypedPriceHasOneRunAndItsLossFollowsAtTheNext)
{
    Door().Type(Atelier().txt_NbEssais, "1");
    ChoisirChapeau();
    EXPECT_EQ(Totaux(), "40,005 | 72,01 | 83,2115"); // 48,006 + 1,1 × 32,005
    Door().Type(Atelier().txt_PrixMat[3], "10");
    EXPECT_EQ(Totaux(), "50,005 | 82,01 | 95,2115"); // 60,006 + 1,1 × 32,005
    Door().Type(Atelier().txt_NbObjet, "2");
    EXPECT_EQ(Totaux(), "50,005 | 142,015 | 166,2175"); // 120,012 + 1,1 × 42,005
    Door().Type(Atelier().txt_PrixMat[3], "0");
    EXPECT_EQ(Totaux(), "40,005 | 122,015 | 142,2175"); // 96,012 + 1,1 × 42,005
}

TEST_F(Coût, AnEmptiedPriceIsRepairedAndRunsTwice)
{
    Door().Type(Atelier().txt_NbEssais, "1");
    Door().Type(Atelier().txt_NbObjet, "2");
    ChoisirChapeau();
    Door().Type(Atelier().txt_PrixMat[3], "10");
    Door().Type(Atelier().txt_PrixMat[3], "");
    EXPECT_EQ(Atelier().txt_PrixMat[3].Text(), "0");
    EXPECT_EQ(Totaux(), "40,005 | 112,015 | 131,2175"); // the second run finds 32,005
}

TEST_F(Coût, AResaleAboveTheCostMakesTrialsLowerBoth)
{
    Choisir("Couture", "Tissu", "Robes", "Robe nue", "brut");
    Door().Type(Atelier().txt_NbEssais, "3"); // 0 - 4
    EXPECT_EQ(Totaux(), "0 | -12 | -13,2");
}

TEST_F(Coût, TheSalePriceIsNotRoundedToFourDecimals)
{
    Door().Click(Atelier().cmd_Retour);
    OuvrirRéglagesEtAtelier();
    Door().Type(Réglages().txt_MargeCouture, "7");
    Choisir("Couture", "Tissu", "Robes", "Robe nue", "brut");
    Door().Type(Atelier().txt_PrixMat[1], "0,0333");
    EXPECT_EQ(Totaux(), "0,0333 | 0,0333 | 0,035631");
    Door().Type(Atelier().txt_PrixMat[1], "0,03325"); // a line price is rounded, ties to even
    EXPECT_EQ(Totaux(), "0,0332 | 0,0332 | 0,035524");
}

TEST_F(Coût, LinePricesAddUpExactly)
{
    Choisir("Couture", "Tissu", "Robes", "Robe nue", "brut");
    Door().Type(Atelier().txt_PrixMat[1], "0,1");
    Door().Type(Atelier().txt_PrixMat[2], "0,2");
    EXPECT_EQ(Totaux(), "0,3 | 0,3 | 0,36");
    Door().Type(Atelier().txt_NbObjet, "32767");
    EXPECT_EQ(Totaux(), "0,3 | 9830,1 | 11796,12");
}

// Quantities may have decimals in a file made elsewhere: two amounts are multiplied, and rounded
// once.
class CoûtAuDixMillième : public PetitDossier
{
};

TEST_F(CoûtAuDixMillième, AProductOfTwoAmountsIsRoundedOnceToEven)
{
    struct Cas
    {
        const char* Qté;
        const char* Prix;
        const char* Ligne;
    };
    const Cas LesCas[] = {
        {"0.5", "0.0001", "0"},       // 0,00005
        {"0.5", "0.0003", "0,0002"},  // 0,00015
        {"1.5", "0.0003", "0,0004"},  // 0,00045
        {"0.75", "0.0002", "0,0002"}, // 0,00015
    };
    for (const Cas& Each : LesCas) {
        Modifier("Artisanat_Valdren.mdb",
                 std::string("UPDATE Classique_ListeObjets SET Qté1 = ") + Each.Qté +
                     " WHERE Nom = 'Robe 0'; UPDATE Matériaux_Classique SET Prix = " + Each.Prix +
                     " WHERE Type = 1 AND Degré = 0");
        if (App.Feuilles.Count() == 0)
            Lancer();
        if (!Atelier().IsVisible())
            OuvrirAtelier();
        Choisir("Couture", "Tissu", "Robes", "Robe 0", "brut");
        EXPECT_EQ(Atelier().txt_PrixMat[1].Text(), Each.Ligne) << Each.Qté << " × " << Each.Prix;
    }
}

TEST_F(Coût, MarginsFollowOnlyWithTheNextReading)
{
    ChoisirBéret();
    Réglages().txt_MargeCouture.Text = "100";
    Door().Type(Atelier().txt_NbObjet, "2");
    EXPECT_EQ(Totaux(), "12,5 | 25 | 30");
    ChoisirBéret();
    EXPECT_EQ(Totaux(), "12,5 | 25 | 50");
}

} // namespace orvane
