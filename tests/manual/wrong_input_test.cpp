#include "support/petit_dossier.h"

// A text that is no number marks its box; results stay, shown as stale.
namespace orvane {

using SaisieFausse = DansLAtelier;

TEST_F(SaisieFausse, ItIsMarkedResultsStayAndTheBasketRefusesUntilItIsRight)
{
    ChoisirBéret();
    Door.Type(Atelier().txt_NbObjet, "3");
    Door.Type(Atelier().txt_NbEssais, "2");
    for (const auto& [Case, Juste] :
         {std::pair{&Atelier().txt_NbObjet, "3"}, std::pair{&Atelier().txt_NbEssais, "2"}})
        for (const char* Faux : {"abc", " ", "40000", "-32769", "1e5", "12.5", "1 000", "-", ","}) {
            SCOPED_TRACE(Case->Name() + " " + Faux);
            Door.Type(*Case, Faux);
            EXPECT_EQ(Case->Text(), Faux) << "the typed text stays";
            EXPECT_TRUE(Case->Marked && TotauxPérimés());
            EXPECT_EQ(Totaux(), "12,5 | 54,5 | 63,7");
            Boîtes.ExpectMsgBox("Les prix affichés ne sont pas à jour\u00A0: corrigez d’abord les "
                                "nombres saisis.");
            Door.Click(Atelier().cmd_AjouterPanier);
            Door.Type(*Case, Juste);
            EXPECT_FALSE(Case->Marked || TotauxPérimés());
            EXPECT_EQ(Totaux(), "12,5 | 54,5 | 63,7");
        }
    EXPECT_EQ(Stockées(), "");
    Door.Click(Atelier().cmd_AjouterPanier);
    EXPECT_EQ(Stockées(), "Béret brut | Nouvelle commande");
}

TEST_F(SaisieFausse, AWrongLinePriceLikewiseUntilItIsOverwritten)
{
    Choisir("Couture/Tissu/Chapeaux/Chapeau/rare");
    TextBox& Prix = Atelier().txt_PrixMat[3];
    for (const char* Faux : {"abc", "12.5", "1e5", "922337203685478"}) {
        Door.Type(Prix, Faux);
        EXPECT_TRUE(Prix.Marked && TotauxPérimés()) << Faux;
        EXPECT_EQ(Totaux(), "40,005 | 40,005 | 48,006") << Faux;
        Door.Type(Prix, "2,"); // half typed, a number
        EXPECT_FALSE(Prix.Marked || TotauxPérimés());
        EXPECT_EQ(Totaux(), "42,005 | 42,005 | 50,406");
        Door.Type(Prix, Faux);
        Door.Pick(Atelier().cbo_Degré, "rare");
        EXPECT_FALSE(Prix.Marked || TotauxPérimés());
        EXPECT_EQ(Totaux(), "40,005 | 40,005 | 48,006");
    }
    Door.Type(Prix, "922337203685477"); // the greatest amount; with the others it overflows
    EXPECT_TRUE(TotauxPérimés());
    EXPECT_EQ(Totaux(), "40,005 | 40,005 | 48,006");
}

TEST_F(SaisieFausse, ADegreeTakenMeanwhileSettlesWithTheRepair)
{
    ChoisirBéret();
    Door.Type(Atelier().txt_NbEssais, "2");
    Door.Type(Atelier().txt_NbObjet, "abc");
    Door.Pick(Atelier().cbo_Degré, "simple");
    Door.Type(Atelier().txt_NbObjet, "3");
    // 20 + 5 a piece, resale 5: 3 × 25 + 2 × 20, and 75 × 1,2 + 40 × 1,1
    EXPECT_EQ(Totaux(), "25 | 115 | 134");
}

TEST_F(SaisieFausse, ItBreaksOffNeitherAPickNorAClearing)
{
    ChoisirBéret();
    Door.Type(Atelier().txt_NbObjet, "abc");
    Door.Type(Atelier().txt_NbEssais, "x");
    Door.Pick(Atelier().cbo_Degré, "simple");
    EXPECT_EQ(Atelier().txt_Matériaux[2].Text(), "fil 1");
    EXPECT_EQ(Lignes(), "20 | 5 | 0 | 0 | 0 | 0");
    EXPECT_TRUE(Atelier().txt_PrixMat[1].Locked) << "the lock rule runs";
    EXPECT_EQ(Totaux(), "12,5 | 12,5 | 15") << "none of the results is written";
    Door.Type(Atelier().txt_NbObjet, "2");
    EXPECT_TRUE(Atelier().txt_NbEssais.Marked && TotauxPérimés()) << "one is still wrong";
    Door.Pick(Atelier().cbo_Produit, "Cuir");
    EXPECT_EQ(Lignes(), "0 | 0 | 0 | 0 | 0 | 0");
    EXPECT_EQ(Atelier().txt_Niveau.Text(), "");
    EXPECT_EQ(Jointes(Atelier().cbo_ProduitDétaillé.Items()), "Bottes");
    ChoisirBéret("simple");
    EXPECT_TRUE(TotauxPérimés());
    Door.Type(Atelier().txt_NbEssais, "0");
    EXPECT_FALSE(TotauxPérimés());
    EXPECT_EQ(Totaux(), "25 | 50 | 60");
}

} // namespace orvane
