#include "manual/avec_objet_sup.h"

#include <functional>

// What becomes of an extra object that stands.
namespace orvane {

using VieObjetSup = AvecObjetSup;

TEST_F(VieObjetSup, AnotherDegreeKeepsTheOldExtraObjectUntilTheNextType)
{
    ChoisirObjet("Lance supérieure/en dyr");
    ChoisirType("de feu");
    Door.Pick(Atelier().cbo_Degré, "en arcania");
    EXPECT_EQ(Panneau(), "Essence de feu d'arme de néthérium | 7,5");
    EXPECT_EQ(Atelier().lbl_Niveau.Caption(), "945") << "the base level";
    EXPECT_EQ(Atelier().cbo_TypeDégats.Text(), "de feu");
    EXPECT_EQ(Totaux(), "107,5 | 107,5 | 150,5");
    ChoisirType("de feu");
    EXPECT_EQ(Panneau(), "Essence de feu d'arme d'arcanium | 12"); // 3 × 4
    EXPECT_EQ(Rangées(), "sel x 1 = 0,5 | cire x 2 = 0,5 | ambre x 4 = 3 | -");
    EXPECT_EQ(Atelier().lbl_Niveau.Caption(), "930");
    EXPECT_EQ(Totaux(), "112 | 112 | 156,8");
}

TEST_F(VieObjetSup, AnotherObjectResetsRowsAndPriceAndKeepsTheNames)
{
    ChoisirObjet("Lance supérieure/en dyr");
    ChoisirType("de feu");
    Door.Pick(Atelier().cbo_Objet, "Arc"); // takes no type
    EXPECT_EQ(Panneau(), "Essence de feu d'arme de néthérium | 0");
    EXPECT_EQ(Rangées(), Vides);
    EXPECT_EQ(Atelier().txt_NbObjetSup.Text(), "1");
    EXPECT_FALSE(Atelier().img_ObjetSup.Picture().IsEmpty()) << "nothing has blanked it";
    Door.Pick(Atelier().cbo_Objet, "Lance DURABLE");
    Boîtes.ExpectMsgBox(Refus); // without a degree; the family name is the first object's
    ChoisirType("de glace");
    EXPECT_EQ(Panneau(), "Essence | 0");
    EXPECT_TRUE(Atelier().img_ObjetSup.Picture().IsEmpty());
    Door.Pick(Atelier().cbo_Degré, "en dyr");
    EXPECT_EQ(Totaux(), "45 | 45 | 63") << "the old price is gone";
}

TEST_F(VieObjetSup, EachLevelAboveTheObjectMakesThePanelDisappear)
{
    const std::function<void()> Gestes[] = {
        [&] { Door.Pick(Atelier().cbo_ProduitDétaillé, "Arcs longs"); },
        [&] { Door.Pick(Atelier().cbo_Produit, "Arcs"); },
        [&] { Door.ClickItem(Atelier().Bar_Menus, "Empennage"); },
        [&] {
            OuvrirPanier();
            Door.Click(Panier().cmd_Retour);
        }};
    for (const auto& Geste : Gestes) {
        ChoisirObjet("Lance supérieure/en dyr");
        ChoisirType("de feu");
        Geste();
        EXPECT_EQ(Panneau(), "-");
        EXPECT_EQ(Rangées(), "- | - | - | -");
        EXPECT_EQ(Atelier().txt_ObjetSupBis.Text(), "");
        EXPECT_EQ(Atelier().txt_ObjetSUpPrixCoûtant.Text(), "0");
        EXPECT_EQ(Atelier().txt_NbObjetSup.Text(), "1");
        EXPECT_TRUE(Atelier().img_ObjetSup.Picture().IsEmpty());
    }
}

TEST_F(VieObjetSup, ATypedPriceHasOneRunAndARepairedOneTwo)
{
    Door.Type(Atelier().txt_NbEssais, "1");
    ChoisirObjet("Lance supérieure/en dyr");
    Door.Pick(Atelier().cbo_TypeDégats, "de feu");
    EXPECT_EQ(Totaux(), "97,5 | 175,5 | 226,2"); // one run: 90 - 12; 136,5 + 1,15 × 78
    Door.Type(Atelier().txt_ObjetSUpPrixCoûtant, "10");
    EXPECT_EQ(Totaux(), "100 | 185,5 | 238,325"); // 97,5 - 12; 140 + 98,325
    Door.Type(Atelier().txt_ObjetSUpPrixCoûtant, "");
    EXPECT_EQ(Atelier().txt_ObjetSUpPrixCoûtant.Text(), "0");
    EXPECT_EQ(Totaux(), "90 | 168 | 215,7"); // two runs: 90 - 12; 126 + 89,7
    ChoisirType("de feu");
    EXPECT_EQ(Atelier().txt_ObjetSUpPrixCoûtant.Text(), "7,5") << "overwritten by a type";
}

TEST_F(VieObjetSup, TypingInTheNameBlanksTheIconAndHidesNoRowAnew)
{
    ChoisirObjet("Lance supérieure/en dyr");
    ChoisirType("de feu");
    Door.Type(Atelier().txt_ObjetSup, "Essence de feu");
    EXPECT_TRUE(Atelier().img_ObjetSup.Picture().IsEmpty());
    EXPECT_EQ(Rangées(), "Barres de métal dyr x 1 = 1 | sel x 2 = 1 | cire x 2 = 0,5 | -")
        << "a row without a material stays hidden";
    Door.Type(Atelier().txt_ObjetSup, "");
    EXPECT_EQ(Panneau(), "-");
    EXPECT_EQ(Rangées(), "- | - | - | -");
    EXPECT_EQ(Totaux(), "97,5 | 97,5 | 136,5") << "the price counts all the same";
    ChoisirType("de feu"); // from the family name
    EXPECT_EQ(Panneau(), "Essence de feu d'arme de néthérium | 7,5");
}

TEST_F(VieObjetSup, AnObjectThatAlchemyDoesNotKnowIsToldAndTheNextPickWorks)
{
    ChoisirObjet("Lance supérieure/en arcania");
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «\u00A0Essence de glace d'arme d'arcanium");
    ChoisirType("de glace");
    EXPECT_EQ(Atelier().lbl_Niveau.Caption(), "945");
    EXPECT_EQ(Rangées(), Vides);
    ChoisirType("de feu");
    EXPECT_EQ(Totaux(), "112 | 112 | 156,8");
}

// A row of the basket would bear one type in its name and the other one's price.
TEST_F(VieObjetSup, ATypeGivenUpHalfWayLeavesPricesThatTheBasketRefuses)
{
    ChoisirObjet("Lance supérieure/en arcania");
    ChoisirType("de feu");
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «");
    ChoisirType("de glace");
    EXPECT_TRUE(TotauxPérimés());
    Boîtes.ExpectMsgBoxBeginning("Les prix affichés ne sont pas à jour");
    Door.Click(Atelier().cmd_AjouterPanier);
    EXPECT_EQ(Stockées(), "");
    ChoisirType("de feu");
    EXPECT_FALSE(TotauxPérimés());
}

} // namespace orvane
