#include "magic/magique.h"

namespace orvane {

class CoûtAlchimie : public Magique
{
  protected:
    std::string Compter(const std::string& Nombre)
    {
        return Taper(Magie().txt_NbObjetAlchimie, Nombre);
    }

    void OuvrirLigne4() // by a gem
    {
        Tailler(Eclatant);
        Prendre("Alchimie");
    }
};

TEST_F(CoûtAlchimie, TheCountIsInTheCostAndTheMarginOnAllOfIt)
{
    const std::array<const char*, 3> Tous[] = {
        {"20", "1", "1: 37,5 45"},     {"20", "3", "3: 112,5 135"},
        {"20", "", "1: 37,5 45"},      {"20", "0", "0: 0 0"},
        {"20", "-2", "-2: -75 -90"},   {"20", "2,5", "2,5: 75 90"}, // ties to even
        {"20", "3,5", "3,5: 150 180"}, {"0", "1", "1: 37,5 37,5"},
        {"-10", "2", "2: 75 67,5"},
    };
    for (const auto& [Marge, Nombre, Prix] : Tous) {
        Rouvrir(Marge, "1", "1");
        Fabriquer(Bleu);
        Compter("7");
        EXPECT_EQ(Compter(Nombre), Prix) << Marge << " %";
    }
    Rouvrir("33", "1", "1");
    EXPECT_EQ(Fabriquer("Teintures/Étoffes/Gris cendre"), "1,2345 1,641885") << "not rounded";
}

TEST_F(CoûtAlchimie, WithoutAnObjectACountGivesNothing)
{
    EXPECT_EQ(Matériaux(), " x  =  |  x  =  |  x  =  |  x  =  |  x  =  |  x  = ");
    EXPECT_EQ(Compter("5"), "5: 0 0");
    EXPECT_FALSE(Magie().txt_PrixIngdt[1].Marked);
    EXPECT_EQ(Fabriquer(Bleu), "37,5 45") << "for one";
    Compter("5");
    EXPECT_EQ(Fabriquer("Teintures"), "0 0");
    EXPECT_EQ(Compter("5"), "5: 0 0");
}

TEST_F(CoûtAlchimie, TheExtraObjectIsPartOfEachObjectAndStandsWhenAClearingRepairsTheCount)
{
    auto& M = Magie();
    Fabriquer(Lame);
    EXPECT_EQ(Compter("2"), "2: 66 79,2"); // 2 × (3 + 2 × (10 + 5))
    EXPECT_EQ(M.txt_AlchimieObjetSUpPrixCoûtant.Text(), "30");
    Door.Type(M.txt_AlchimieObjetSup, "");
    EXPECT_EQ(ObjetSup() + Dessin(M.img_AlchimieObjetSup), "-");
    EXPECT_EQ(Compter("5"), "5: 165 198") << "hidden, and counted all the same";
    EXPECT_EQ(Fabriquer("Teintures"), "30 36") << "for one, without its material";
    EXPECT_EQ(M.txt_AlchimieObjetSUpPrixCoûtant.Text() + M.txt_NbAlchimieObjetSup.Text() +
                  M.txt_NbObjetAlchimie.Text(),
              "011");
    Fabriquer(Lame);
    EXPECT_EQ(Fabriquer("Teintures"), "0 0") << "the count stood at 1";
}

TEST_F(CoûtAlchimie, AFreeLineIsClosedUnlessAGemHasOpenedIt)
{
    TextBox& Prix = Magie().txt_PrixIngdt[4];
    Fabriquer(Vert);
    EXPECT_EQ(Matériaux().find('*'), std::string::npos);
    EXPECT_EQ(Taper(Prix, "6"), "0: 39,845 47,814") << "it takes no typing";
    OuvrirLigne4();
    Fabriquer(Vert);
    EXPECT_EQ(Matériaux(), "cobalt x 1 = 12,5 | eau x 4 = 0 | garance x 2 = 10 | eau x 3 = 0* | "
                           "suif x 2 = 5 | cendre fine x 10 = 12,345");
    EXPECT_EQ(Taper(Prix, "6"), "6: 45,845 55,014") << "at once";
    EXPECT_EQ(Compter("2"), "2: 91,69 110,028") << "a count keeps the typed price";
    EXPECT_EQ(Taper(Prix, ""), "0: 79,69 95,628");
    Taper(Prix, "6");
    EXPECT_EQ(Fabriquer(Vert), "39,845 47,814") << "a pick resets it";
    Modifier("Artisanat_Alchimie.mdb", "UPDATE Matériaux SET Prix = 2 WHERE Nom = 'eau'");
    EXPECT_EQ(Fabriquer(Vert), "53,845 64,614"); // 7 × 2 more
    EXPECT_EQ(Matériaux().find('*'), std::string::npos) << "a price closes it again";
}

TEST_F(CoûtAlchimie, AFreeSecondLineOfTheExtraObjectIsOpenAndCountsAtOnce)
{
    TextBox& Prix = Magie().txt_PrixMatSup[2];
    Modifier("Artisanat_Alchimie.mdb",
             "UPDATE Matériaux SET Prix = 0 WHERE Nom IN ('suif', 'Barres de métal trempé*')");
    Fabriquer(Lame);
    EXPECT_EQ(
        ObjetSup(),
        "Huile ardente x 2 = 0, 516 CouleurCraft5 essence: Barres de métal trempé au dyr x 1 = 0 | "
        "suif x 2 = 0* | - | -");
    EXPECT_EQ(Taper(Prix, "4"), "4: 11 13,2"); // 3 + 2 × 4
    EXPECT_EQ(Taper(Prix, ""), "0: 3 3,6");
    Taper(Prix, "4");
    EXPECT_EQ(Fabriquer(Lame), "3 3,6") << "a pick resets it";
    Door.Pick(Magie().cbo_Objet, "Lame de feu et de glace");
    EXPECT_TRUE(Prix.Locked) << "a price closes it";
}

TEST_F(CoûtAlchimie, AWrongTextLeavesStalePricesThatTheBasketRefusesUntilTheNextPick)
{
    TextBox& Prix = Magie().txt_PrixIngdt[4];
    OuvrirLigne4();
    for (TextBox* Saisie : {&Magie().txt_NbObjetAlchimie, &Prix})
        for (const std::string Faux : {"abc", "1.5", "922337203685478"}) {
            EXPECT_EQ(Fabriquer(Vert), "39,845 47,814");
            EXPECT_EQ(Taper(*Saisie, Faux), Faux + "!: 39,845 47,814 ?");
            RefuserAjout();
        }
    EXPECT_EQ(Taper(Prix, "922337203685477"), "922337203685477: 39,845 47,814 ?") << "overflow";
    EXPECT_EQ(Taper(Prix, "1"), "1: 40,845 49,014");
    Modifier("Artisanat_Alchimie.mdb",
             "UPDATE Matériaux SET Prix = 922337203685477 WHERE Nom = 'garance'");
    EXPECT_EQ(Fabriquer(Bleu), "0 0 ?") << "a line of five of them overflows";
    EXPECT_EQ(Fabriquer(Lame), "33 39,6");
}

} // namespace orvane
