#include "support/petit_dossier.h"

// A text that is no number marks its box, and results stay, shown as stale.
namespace orvane {

namespace {

const std::string PrixPérimés =
    "Les prix affichés ne sont pas à jour\u00A0: corrigez d’abord les cases marquées.";

class SaisieFausse : public DansLAtelier
{
  protected:
    bool RésultatsJustes()
    {
        return !Atelier().txt_PrixCoûtant.Stale && !Atelier().txt_PrixCoûtantTotal.Stale &&
               !Atelier().txt_PrixVente.Stale;
    }

    std::size_t LignesDuPanier()
    {
        return Rangées("Panier.mdb", "SELECT * FROM PanierGlobal", {"Num"}).size();
    }
};

} // namespace

TEST_F(SaisieFausse, ItIsMarkedResultsStayAndTheBasketRefusesUntilItIsRight)
{
    ChoisirBéret();
    Door().Type(Atelier().txt_NbObjet, "3");
    Door().Type(Atelier().txt_NbEssais, "2");
    for (const auto& [Case, Juste] :
         {std::pair{&Atelier().txt_NbObjet, "3"}, std::pair{&Atelier().txt_NbEssais, "2"}})
        for (const char* Faux : {"abc", " ", "40000", "-32769", "1e5", "12.5", "1 000", "-", ","}) {
            SCOPED_TRACE(Case->Name() + " " + Faux);
            Door().Type(*Case, Faux);
            EXPECT_EQ(Case->Text(), Faux) << "the typed text stays";
            EXPECT_TRUE(Case->Marked);
            EXPECT_TRUE(TotauxPérimés());
            EXPECT_EQ(Totaux(), "12,5 | 54,5 | 63,7");
            Boîtes.ExpectMsgBox(PrixPérimés);
            Door().Click(Atelier().cmd_AjouterPanier);
            EXPECT_EQ(LignesDuPanier(), 0U);
            Door().Type(*Case, Juste);
            EXPECT_FALSE(Case->Marked);
            EXPECT_TRUE(RésultatsJustes());
            EXPECT_EQ(Totaux(), "12,5 | 54,5 | 63,7");
        }
    Door().Click(Atelier().cmd_AjouterPanier);
    EXPECT_EQ(LignesDuPanier(), 1U);
}

TEST_F(SaisieFausse, AWrongLinePriceLikewise)
{
    ChoisirChapeau();
    TextBox& Prix = Atelier().txt_PrixMat[3];
    for (const char* Faux : {"abc", "12.5", "1e5", "922337203685478"}) {
        Door().Type(Prix, Faux);
        EXPECT_TRUE(Prix.Marked) << Faux;
        EXPECT_TRUE(TotauxPérimés()) << Faux;
        EXPECT_EQ(Totaux(), "40,005 | 40,005 | 48,006") << Faux;
    }
    Door().Type(Prix, "2,"); // half typed, a number
    EXPECT_FALSE(Prix.Marked);
    EXPECT_EQ(Totaux(), "42,005 | 42,005 | 50,406");
    Door().Type(Prix, "abc");
    Door().Pick(Atelier().cbo_Degré, "rare");
    EXPECT_FALSE(Prix.Marked) << "overwritten by the catalogue's price";
    EXPECT_TRUE(RésultatsJustes());
    EXPECT_EQ(Totaux(), "40,005 | 40,005 | 48,006");
}

TEST_F(SaisieFausse, OneRightBoxDoesNotMakeUpForAnotherWrongOne)
{
    ChoisirBéret();
    Door().Type(Atelier().txt_NbObjet, "abc");
    Door().Type(Atelier().txt_NbEssais, "x");
    EXPECT_TRUE(Atelier().txt_NbObjet.Marked && Atelier().txt_NbEssais.Marked);
    Door().Type(Atelier().txt_NbObjet, "2");
    EXPECT_TRUE(Atelier().txt_NbEssais.Marked);
    EXPECT_TRUE(TotauxPérimés());
    Door().Type(Atelier().txt_NbEssais, "0");
    EXPECT_TRUE(RésultatsJustes());
    EXPECT_EQ(Totaux(), "12,5 | 25 | 30");
}

TEST_F(SaisieFausse, ItBreaksOffNeitherAPickNorAClearing)
{
    ChoisirBéret();
    Door().Type(Atelier().txt_NbObjet, "abc");
    Door().Pick(Atelier().cbo_Degré, "simple");
    EXPECT_EQ(Atelier().txt_Matériaux[2].Text(), "fil 1");
    EXPECT_EQ(Lignes(), "20 | 5 | 0 | 0 | 0 | 0");
    EXPECT_EQ(Atelier().lbl_Niveau.Caption(), "147");
    EXPECT_TRUE(Atelier().txt_PrixMat[1].Locked) << "the lock rule runs";
    EXPECT_TRUE(TotauxPérimés());
    Door().Pick(Atelier().cbo_Produit, "Cuir");
    EXPECT_EQ(Lignes(), "0 | 0 | 0 | 0 | 0 | 0");
    EXPECT_EQ(Atelier().txt_Niveau.Text(), "");
    EXPECT_EQ(Jointes(Atelier().cbo_ProduitDétaillé.Items()), "Bottes");
    ChoisirBéret("simple");
    EXPECT_TRUE(TotauxPérimés()) << "until the count is right";
    Door().Type(Atelier().txt_NbObjet, "1");
    EXPECT_TRUE(RésultatsJustes());
    EXPECT_EQ(Totaux(), "25 | 25 | 30");
}

TEST_F(SaisieFausse, AnAmountTooLargeToCalculateLeavesTheResultsStale)
{
    ChoisirChapeau();
    Door().Type(Atelier().txt_NbObjet, "10");
    Door().Type(Atelier().txt_PrixMat[3], "922337203685477");
    EXPECT_TRUE(TotauxPérimés());
    EXPECT_EQ(Totaux(), "40,005 | 400,05 | 480,06");
    Door().Type(Atelier().txt_PrixMat[3], "0");
    EXPECT_TRUE(RésultatsJustes());
    EXPECT_EQ(Totaux(), "40,005 | 400,05 | 480,06");
}

} // namespace orvane
