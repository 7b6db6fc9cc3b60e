#include "support/petit_dossier.h"

namespace orvane {

class Coût : public DansLAtelier
{
  protected:
    // Line prices 25, 0,005, 0 (free), 0 and 15; resale 8: a loss of 32,005.
    void ChoisirChapeau() { Choisir("Couture/Tissu/Chapeaux/Chapeau/rare"); }
};

// One object costs 12,5 and a merchant pays 4; margins 20 and 10.
TEST_F(Coût, CountsOfObjectsAndTrials)
{
    struct Saisie
    {
        const char* Objets;
        const char* Essais;
        const char* Totaux;
    };
    const Saisie Saisies[] = {
        {"1", "0", "12,5 | 12,5 | 15"},
        {"3", "2", "12,5 | 54,5 | 63,7"}, // 37,5 × 1,2 + 2 × 8,5 × 1,1
        {"00", "2", "12,5 | 17 | 18,7"},  // two zeros are no objects
        {"0", "2", "12,5 | 29,5 | 33,7"}, // repaired: one
        {"", "", "12,5 | 12,5 | 15"},     // one, and none
        {"-3", "0", "12,5 | -37,5 | -45"},
        {"2,5", "0", "12,5 | 25 | 30"}, // ties to even
        {"3,5", "0", "12,5 | 50 | 60"},
        {"2,", "0", "12,5 | 25 | 30"}, // half typed
        {"1", "1,5", "12,5 | 29,5 | 33,7"},
        {"1", "-1", "12,5 | 4 | 5,65"},
        {"32767", "0", "12,5 | 409587,5 | 491505"},
    };
    ChoisirBéret();
    for (const auto& [Objets, Essais, Attendus] : Saisies) {
        Door.Type(Atelier().txt_NbObjet, Objets);
        Door.Type(Atelier().txt_NbEssais, Essais);
        EXPECT_EQ(Totaux(), Attendus) << Objets << " objects, " << Essais << " trials";
        EXPECT_FALSE(Atelier().txt_NbObjet.Marked || TotauxPérimés());
    }
    Door.Type(Atelier().txt_NbObjet, "0");
    EXPECT_EQ(Atelier().txt_NbObjet.Text(), "1");
    Door.Type(Atelier().txt_NbEssais, "");
    EXPECT_EQ(Atelier().txt_NbEssais.Text(), "0");
}

TEST_F(Coût, ADegreeClickSettlesTheLossOfATrial)
{
    Door.Type(Atelier().txt_NbObjet, "3");
    Door.Type(Atelier().txt_NbEssais, "2");
    ChoisirBéret();
    EXPECT_EQ(Totaux(), "12,5 | 54,5 | 63,7");
    Door.Pick(Atelier().cbo_Degré, "simple"); // 25 less 5: 75 + 40, 90 + 44
    EXPECT_EQ(Totaux(), "25 | 115 | 134");
    Choisir("Couture/Tissu/Robes/Robe nue/brut"); // 0 less 4: trials lower both
    EXPECT_EQ(Totaux(), "0 | -8 | -8,8");
}

// The loss is that of the cost before the run.
TEST_F(Coût, ATypedPriceHasOneRunAndARepairedOneTwo)
{
    Door.Type(Atelier().txt_NbEssais, "1");
    ChoisirChapeau();
    EXPECT_EQ(Totaux(), "40,005 | 72,01 | 83,2115"); // 48,006 + 1,1 × 32,005
    Door.Type(Atelier().txt_PrixMat[3], "10");
    EXPECT_EQ(Totaux(), "50,005 | 82,01 | 95,2115"); // 60,006 + 1,1 × 32,005
    Door.Type(Atelier().txt_NbObjet, "2");
    EXPECT_EQ(Totaux(), "50,005 | 142,015 | 166,2175"); // 120,012 + 1,1 × 42,005
    Door.Type(Atelier().txt_PrixMat[3], "0");
    EXPECT_EQ(Totaux(), "40,005 | 122,015 | 142,2175"); // 96,012 + 1,1 × 42,005
    Door.Type(Atelier().txt_PrixMat[3], "10");
    Door.Type(Atelier().txt_PrixMat[3], "");
    EXPECT_EQ(Atelier().txt_PrixMat[3].Text(), "0");
    EXPECT_EQ(Totaux(), "40,005 | 112,015 | 131,2175"); // 96,012 + 1,1 × 32,005
}

TEST_F(Coût, SumsAreExactAndTheSalePriceIsNotRounded)
{
    Door.Click(Atelier().cmd_Retour);
    OuvrirRéglagesEtAtelier();
    Door.Type(Réglages().txt_MargeCouture, "7");
    Choisir("Couture/Tissu/Robes/Robe nue/brut");
    Door.Type(Atelier().txt_PrixMat[1], "0,0333");
    EXPECT_EQ(Totaux(), "0,0333 | 0,0333 | 0,035631");
    Door.Type(Atelier().txt_PrixMat[1], "0,03325"); // a typed amount: ties to even
    EXPECT_EQ(Totaux(), "0,0332 | 0,0332 | 0,035524");
    Door.Type(Atelier().txt_PrixMat[1], "0,1");
    Door.Type(Atelier().txt_PrixMat[2], "0,2");
    Door.Type(Atelier().txt_NbObjet, "32767");
    EXPECT_EQ(Totaux(), "0,3 | 9830,1 | 10518,207");
}

// A file made elsewhere may have quantities with decimals.
TEST_F(Coût, AProductOfTwoAmountsIsRoundedOnceTiesToEven)
{
    struct Produit
    {
        std::string Qté;
        std::string Prix;
        const char* Ligne;
    };
    const Produit Produits[] = {
        {"0.5", "0.0001", "0"},       // 0,00005
        {"0.5", "0.0003", "0,0002"},  // 0,00015
        {"1.5", "0.0003", "0,0004"},  // 0,00045
        {"0.75", "0.0002", "0,0002"}, // 0,00015
        {"7", "0.0003", "0,0021"},    // a whole number: exact
    };
    for (const auto& [Qté, Prix, Ligne] : Produits) {
        Modifier("Artisanat_Valdren.mdb", "UPDATE Classique_ListeObjets SET Qté1 = " + Qté +
                                              "; UPDATE Matériaux_Classique SET Prix = " + Prix);
        Choisir("Couture/Tissu/Robes/Robe 0/brut");
        EXPECT_EQ(Atelier().txt_PrixMat[1].Text(), Ligne) << Qté << " × " << Prix;
    }
}

} // namespace orvane
