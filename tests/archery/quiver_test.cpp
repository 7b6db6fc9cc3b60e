#include "support/petit_dossier.h"

// Quivers of arrows and bolts. Level 300 and margin 40, those of Empennage.
namespace orvane {

class Carquois : public DansLAtelier
{
  protected:
    void OuvrirArcherie(const std::string& Entrée = "Flèches")
    {
        Choisir("Empennage/Munitions/" + Entrée);
    }

    void ChoisirCarquois(const std::string& Type, const std::string& Objet)
    {
        Door.Pick(Archerie().cbo_Type, Type);
        Door.Pick(Archerie().cbo_Objet, Objet);
        ASSERT_EQ(Archerie().cbo_Objet.Text(), Objet);
    }

    std::string Matériaux()
    {
        std::vector<std::string> Textes;
        for (int i = 1; i <= 3; ++i)
            Textes.push_back(Archerie().txt_Matériaux[i].Text() + " x " +
                             Archerie().txt_MatériauxQté[i].Text() + " = " +
                             Archerie().txt_PrixMat[i].Text());
        return Jointes(Textes);
    }

    // Cost and sale price of all the quivers, "?" behind them when they are stale.
    std::string Prix()
    {
        EXPECT_EQ(Archerie().txt_PrixCoûtant.Stale(), Archerie().txt_PrixVente.Stale());
        return Jointes({Archerie().txt_PrixCoûtant.Text(), Archerie().txt_PrixVente.Text()}) +
               (Archerie().txt_PrixVente.Stale ? " ?" : "");
    }

    void Compter(const std::string& Nombre) { Door.Type(Archerie().txt_NbObjet, Nombre); }
};

TEST_F(Carquois, ItOpensFromBothEntriesAndShowsAllKinds)
{
    for (const char* Entrée : {"Flèches", "Carreaux"}) {
        OuvrirArcherie(Entrée);
        EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels | frm_Archerie");
        EXPECT_EQ(Archerie().Caption(), "Archerie");
        EXPECT_EQ(Jointes(Archerie().cbo_Type.Items()), "Billes | Carreaux | Flèches");
        EXPECT_EQ(Archerie().cbo_Type.Text(), "");
        if (*Entrée == 'F')
            Door.Click(Archerie().cmd_Retour);
        else
            Door.Close(Archerie());
        EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels");
        EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), "Couture") << "its activation";
        EXPECT_EQ(Jointes(Atelier().cbo_Produit.Items()), "Cuir | Tissu");
        EXPECT_EQ(Atelier().cbo_Produit.Text() + Atelier().cbo_ProduitDétaillé.Text(), "");
    }
}

TEST_F(Carquois, BeforeTheFirstOneThereIsNothingToCalculateNorToAdd)
{
    OuvrirArcherie();
    EXPECT_EQ(Prix(), " | 0");
    EXPECT_EQ(Archerie().txt_NbObjet.Text(), "1");
    Compter("3");
    Compter("abc");
    Compter("");
    EXPECT_EQ(Archerie().txt_NbObjet.Text(), "1");
    EXPECT_EQ(Prix(), " | 0");
    EXPECT_FALSE(Archerie().txt_PrixMat[1].Marked);
    Door.Pick(Archerie().cbo_Type, "Billes");
    EXPECT_EQ(Archerie().cbo_Objet.ListCount(), 0) << "a kind without quivers";
    Boîtes.ExpectMsgBox("Aucun carquois sélectionné.");
    Door.Click(Archerie().cmd_AjouterPanier);
    EXPECT_EQ(Stockées(), "");
}

TEST_F(Carquois, AQuiverFillsTheScreenAndTheMarginIsOnTheWhole)
{
    Door.Click(Atelier().cmd_Retour);
    OuvrirRéglagesEtAtelier();
    Door.Type(Réglages().txt_MargeEmpennage, "10");
    OuvrirArcherie();
    Compter("3");
    ChoisirCarquois("Flèches", "simple");
    EXPECT_EQ(Matériaux(), "hampe x 3 = 1,5 | plume x 2 = 2 | pointe x 1 = 0,25");
    EXPECT_EQ(Prix(), "11,25 | 12,375");
    EXPECT_EQ(Archerie().lbl_Niveau.Caption(), "310");
    EXPECT_EQ(Archerie().img_Niveau.Picture().File.stem(), "CouleurCraft4"); // 10 above
    EXPECT_EQ(Archerie().img_Icône.Picture().File, Dossier / "Objets/Valdren/Icônes/carquois.gif");
    EXPECT_EQ(Jointes(Archerie().cbo_Objet.Items()), "barbelé | simple");

    Door.Pick(Archerie().cbo_Type, "Carreaux");
    EXPECT_EQ(Archerie().cbo_Objet.Text(), "");
    EXPECT_EQ(Prix(), "11,25 | 12,375") << "a kind alone changes nothing else";
    EXPECT_EQ(Archerie().lbl_Niveau.Caption(), "310");
    Door.Pick(Archerie().cbo_Objet, "simple"); // a quiver of the same name
    EXPECT_EQ(Matériaux(), "hampe x 1 = 0,5 | plume x 1 = 1 | pointe x 1 = 0,25");
    EXPECT_EQ(Archerie().img_Niveau.Picture().File.stem(), "CouleurCraft3"); // as high
    EXPECT_EQ(Prix(), "5,25 | 5,775");
    ChoisirCarquois("Flèches", "barbelé");
    EXPECT_TRUE(Archerie().img_Icône.Picture().IsEmpty()) << "its file is missing";
}

TEST_F(Carquois, TheCountIsRepairedAndAWrongOneIsMarked)
{
    OuvrirArcherie();
    ChoisirCarquois("Flèches", "simple"); // 3,75 and 5,25
    const std::pair<const char*, const char*> Saisies[] = {
        {"3", "11,25 | 15,75"},
        {"0", "3,75 | 5,25"},
        {"4", "15 | 21"},
        {"", "3,75 | 5,25"},
        {"00", "0 | 0"},
        {"-2", "-7,5 | -10,5"},
        {"2,5", "7,5 | 10,5"},
        {"2,", "7,5 | 10,5"},
        {"abc", "7,5 | 10,5 ?"},
        {"1.5", "7,5 | 10,5 ?"},
        {"40000", "7,5 | 10,5 ?"},
        {"1", "3,75 | 5,25"},
        {"32767", "122876,25 | 172026,75"},
    };
    for (const auto& [Saisie, Attendus] : Saisies) {
        Compter(Saisie);
        EXPECT_EQ(Prix(), Attendus) << Saisie;
        EXPECT_EQ(Archerie().txt_NbObjet.Marked(), Archerie().txt_PrixVente.Stale()) << Saisie;
    }
    Compter("x");
    Boîtes.ExpectMsgBoxBeginning("Les prix affichés ne sont pas à jour");
    Door.Click(Archerie().cmd_AjouterPanier);
    EXPECT_EQ(Stockées(), "");
}

// A file made elsewhere may have quantities with decimals.
TEST_F(Carquois, EachLineIsRoundedTiesToEvenBeforeTheCount)
{
    Modifier("Artisanat_Valdren.mdb",
             "UPDATE Archerie SET Qté1 = 0.5, Qté2 = 1.5, Qté3 = 0.5;"
             "UPDATE Matériaux_Classique SET Prix = 0.0003 WHERE Num IN (101, 102);"
             "UPDATE Matériaux_Classique SET Prix = 0.0001 WHERE Num = 103");
    OuvrirArcherie();
    Compter("3");
    ChoisirCarquois("Flèches", "simple"); // 0,00015 and 0,00045 and 0,00005
    EXPECT_EQ(Matériaux(), "hampe x 0,5 = 0,0002 | plume x 1,5 = 0,0004 | pointe x 0,5 = 0");
    EXPECT_EQ(Prix(), "0,0018 | 0,00252");
}

TEST_F(Carquois, ATypedLinePriceCountsAtTheNextCalculation)
{
    OuvrirArcherie();
    ChoisirCarquois("Flèches", "simple");
    Door.Type(Archerie().txt_PrixMat[1], "10");
    Door.Type(Archerie().txt_MatériauxQté[2], "50");
    EXPECT_EQ(Prix(), "3,75 | 5,25");
    Compter("2"); // 10 + 2 + 0,25
    EXPECT_EQ(Prix(), "24,5 | 34,3");
    Door.Type(Archerie().txt_PrixMat[1], "dix");
    Compter("3");
    EXPECT_TRUE(Archerie().txt_PrixMat[1].Marked);
    EXPECT_EQ(Prix(), "24,5 | 34,3 ?");
    Door.Pick(Archerie().cbo_Objet, "simple"); // overwrites
    EXPECT_FALSE(Archerie().txt_PrixMat[1].Marked);
    EXPECT_EQ(Prix(), "11,25 | 15,75");
}

TEST_F(Carquois, LinePricesEmptiedByHandLeaveStalePrices)
{
    OuvrirArcherie();
    ChoisirCarquois("Flèches", "simple");
    for (int i = 1; i <= 3; ++i)
        Door.Type(Archerie().txt_PrixMat[i], "");
    Compter("3");
    EXPECT_EQ(Prix(), "3,75 | 5,25 ?");
}

TEST_F(Carquois, AnotherActivationEmptiesTheKindAndKeepsTheLastQuiver)
{
    Door.Click(Atelier().cmd_Retour);
    OuvrirRéglagesEtAtelier();
    OuvrirArcherie();
    ChoisirCarquois("Flèches", "simple");
    Compter("2");
    Door.Click(Archerie().cmd_AjouterPanier);
    Door.Click(Archerie().cmd_Retour);
    Door.Type(Réglages().txt_MargeEmpennage, "100");
    Door.Type(Réglages().txt_NiveauEmpennage, "341");
    OuvrirArcherie("Carreaux");
    EXPECT_EQ(Archerie().cbo_Type.Text(), "");
    EXPECT_EQ(Archerie().cbo_Type.ListCount(), 3) << "filled afresh";
    EXPECT_EQ(Archerie().cbo_Objet.Text(), "simple");
    EXPECT_EQ(Jointes(Archerie().cbo_Objet.Items()), "barbelé | simple");
    EXPECT_EQ(Archerie().txt_NbObjet.Text(), "2");
    EXPECT_EQ(Prix(), "7,5 | 10,5");
    Door.Click(Archerie().cmd_AjouterPanier);
    EXPECT_EQ(Stockées("Nom|Nb|PrixCoûtant|PrixVente|Royaume|Acheteur"),
              "Carquois de Flèches - simple | 2 | 7,5 | 10,5 | Valdren | Nouvelle commande / "
              "Carquois de  - simple | 2 | 7,5 | 10,5 | Valdren | Nouvelle commande");
    ChoisirCarquois("Flèches", "simple"); // level and margin are fresh
    EXPECT_EQ(Prix(), "7,5 | 15");
    EXPECT_EQ(Archerie().img_Niveau.Picture().File.stem(), "CouleurCraft1"); // 31 below
}

TEST_F(Carquois, APickWithoutAKindIsToldAndLeavesPricesThatTheBasketRefuses)
{
    OuvrirArcherie();
    ChoisirCarquois("Flèches", "simple");
    Door.Click(Archerie().cmd_Retour);
    OuvrirArcherie();
    Boîtes.ExpectMsgBoxBeginning("Il faut d’abord faire le choix précédent");
    Door.Pick(Archerie().cbo_Objet, "barbelé");
    EXPECT_EQ(Matériaux(), "hampe x 3 = 1,5 | plume x 2 = 2 | pointe x 1 = 0,25");
    EXPECT_EQ(Prix(), "3,75 | 5,25 ?");
    Boîtes.ExpectMsgBoxBeginning("Les prix affichés ne sont pas à jour");
    Door.Click(Archerie().cmd_AjouterPanier);
    EXPECT_EQ(Stockées(), "");
    ChoisirCarquois("Flèches", "barbelé"); // 3 × 0,5, × 1,4
    EXPECT_EQ(Prix(), "1,5 | 2,1");
}

} // namespace orvane
