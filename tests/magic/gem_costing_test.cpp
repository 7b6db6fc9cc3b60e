#include "magic/magique.h"

// The plain gem costs 150 and a merchant pays 30, so that a trial loses 120.
namespace orvane {

class CoûtGemmes : public Magique
{
  protected:
    // The last box and the prices.
    std::string Compter(const std::string& Essais, const std::string& Gemmes)
    {
        const std::string Avant = Taper(Magie().txt_ArcanesNbEssais, Essais);
        return Couper(Avant, ':')[0] + "/" + Taper(Magie().txt_ArcanesNbObjet, Gemmes);
    }
};

TEST_F(CoûtGemmes, TrialsAreChargedOnceAndTheirMarginIsOnTheLoss)
{
    const std::array<const char*, 3> Tous[] = {
        {"3", "2", "3/2: 150 180 | 510 576 | 300 360 | 660 756"},
        {"", "", "0/1: 150 180"},
        {"2,5", "3,5", "2,5/3,5: 150 180 | 390 444 | 600 720 | 840 984"}, // two and four
        {"0", "0", "0/0: 150 180 | 150 180 | 0 0 | 0 0"},
        {"-1", "-2", "-1/-2: 150 180 | 30 48 | -300 -360 | -420 -492"},
    };
    Tailler(Simple);
    for (const auto& [Essais, Gemmes, Prix] : Tous) {
        Compter("9", "9");
        EXPECT_EQ(Compter(Essais, Gemmes), Prix);
    }
    Rouvrir("65", "50", "0"); // 150 × 1,5, and the bare loss
    Tailler(Simple);
    EXPECT_EQ(Compter("3", "1"), "3/1: 150 225 | 510 585 | 150 225 | 510 585");
    Modifier("Artisanat_Valdren.mdb",
             "UPDATE Degrés_Arcanes SET PrixRevente = 200 WHERE NuméroDegré = 3");
    Tailler(Simple); // a gain of 50 each
    EXPECT_EQ(Compter("2", "1"), "2/1: 150 225 | 50 125 | 150 225 | 50 125");
}

// 30 + 2 × 1,3332 sells at 43,446312; a trial loses 2,6664, and 2,93304 with its margin.
TEST_F(CoûtGemmes, TheSalePriceGoesWholeIntoTheQuantityAndAsMoneyIntoTheRest)
{
    Rouvrir("20", "33", "10");
    Tailler("Gemmes de zèle/Claire/taillée"); // 2,933 + 43,4463; 46,3793 + 434,4631 - 43,4463
    EXPECT_EQ(Compter("1", "10"), "1/10: 32,6664 43,446312 | 35,3328 46,3793 | 326,664 434,46312 | "
                                  "329,3304 437,3961");
}

TEST_F(CoûtGemmes, WithoutAGemCountsGiveNothing)
{
    Prendre("Arcanes");
    EXPECT_EQ(Compter("3", "2"), "3/2: 0 0");
    EXPECT_EQ(Tailler(Simple), "150 180") << "for one";
    Compter("3", "2");
    EXPECT_EQ(Tailler("Gemmes de veille/Simple"), "0 0");
    EXPECT_EQ(Magie().txt_ArcanesNbEssais.Text() + Magie().txt_ArcanesNbObjet.Text(), "01");
    EXPECT_EQ(Compter("3", "2"), "3/2: 0 0");
}

TEST_F(CoûtGemmes, TheCountOfTheAlchemySideMultipliesAGemUntilTheNextPick)
{
    Tailler(Simple);
    Prendre("Alchimie");
    EXPECT_EQ(Taper(Magie().txt_NbObjetAlchimie, "3"), "3: 450 540");
    Prendre("Arcanes");
    EXPECT_EQ(Arcanes(), "150 180") << "no run yet";
    EXPECT_EQ(Taper(Magie().txt_ArcanesNbEssais, "1"), // a loss of 420; 540 + 462
              "1: 450 540 | 870 1002 | 450 540 | 870 1002");
    EXPECT_EQ(Tailler(Simple), "150 180");
}

// 150, lines 4 to 6 of 0, 25 and 40, and three gems of 25,5.
TEST_F(CoûtGemmes, AFreeLineIsOpenFromTheFourthOnAndCountsAtOnce)
{
    TextBox& Prix = Magie().txt_PrixIngdt[4];
    EXPECT_EQ(Tailler(Eclatant), "291,5 349,8");
    EXPECT_EQ(Taper(Prix, "10"), "10: 301,5 361,8");
    EXPECT_EQ(Alchimie(), "0 0") << "the other craft isn't in hand";
    EXPECT_EQ(Taper(Prix, ""), "0: 291,5 349,8");
    Taper(Prix, "10");
    EXPECT_EQ(Tailler(Eclatant), "291,5 349,8") << "a pick resets it";
    Modifier("Artisanat_Valdren.mdb", "UPDATE Matériaux_Arcanes SET Prix = 0");
    Tailler(Eclatant);
    EXPECT_EQ(Matériaux(), "cristal x 1 = 0 | poudre x 7 = 0 | fil d'argent x 4 = 0 | "
                           "larme x 20 = 0* | braise x 20 = 0* | corail x 20 = 0*");
    EXPECT_EQ(ObjetSup(),
              "Claire x 3 = 0, 516 CouleurCraft4 essence: fil d'argent x 1 = 0 | corail x 4 = 0* | "
              "braise x 4 = 0 | -");
    EXPECT_EQ(Taper(Magie().txt_PrixIngdt[6], "2"), "2: 2 2,4");
    EXPECT_EQ(Taper(Magie().txt_PrixMatSup[2], "5"), "5: 17 20,4"); // 2 + 3 × 5
}

TEST_F(CoûtGemmes, AWrongTextLeavesStalePricesThatTheBasketRefusesUntilTheNextPick)
{
    auto& M = Magie();
    Tailler(Eclatant);
    for (TextBox* Saisie : {&M.txt_ArcanesNbEssais, &M.txt_ArcanesNbObjet, &M.txt_PrixIngdt[4]})
        for (const std::string Faux : {"abc", "1.5", "922337203685478"}) {
            EXPECT_EQ(Taper(*Saisie, Faux), Faux + "!: 291,5 349,8 ?");
            RefuserAjout();
            EXPECT_EQ(Tailler(Eclatant), "291,5 349,8");
            EXPECT_FALSE(Saisie->Marked);
        }
    EXPECT_EQ(Taper(M.txt_PrixIngdt[4], "922337203685477"), "922337203685477: 291,5 349,8 ?");
}

} // namespace orvane
