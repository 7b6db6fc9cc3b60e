#include "secondary/secondaire.h"

// Objects for horses: the bill, the filter, the sale. Margin 69.
namespace orvane {

class SellerieDeBardes : public Secondaire
{
  protected:
    void SetUp() override
    {
        Secondaire::SetUp();
        Menu("Bardes");
    }

    void Compter(const std::string& Nombre) { Door.Type(Écran().txt_SellerieNbObjets, Nombre); }
    void Ajouter() { Door.Click(Écran().cmd_AjouterPanier); }

    void Refuser()
    {
        Boîtes.ExpectMsgBoxBeginning("Les prix affichés ne sont pas à jour");
        Ajouter();
        EXPECT_EQ(Stockées(), "");
    }
};

TEST_F(SellerieDeBardes, AnObjectHasTwoThreeOrFourMaterialsAndAHiddenRowCountsNothing)
{
    for (const auto& [Nom, Lignes, Quatrième, Prix, Revente] :
         {std::tuple{"Barde lourde", "fer x 10 = 25 | rivet x 20 = 5 | - | -", "0",
                     "30 | 30 | 50,7", "30"},
          {"Chanfrein alourdi", "fer x 2 = 5 | rivet x 4 = 1 | cuir x 1 = 4 | laiton x 3 = 0,0999",
           "0,0999", "10,0999 | 10,0999 | 17,068831", "5"},
          {"Barde légère", "fer x 4 = 10 | rivet x 4 = 1 | cuir x 2 = 8 | -", "0",
           "19 | 19 | 32,11", "40,5"}}) {
        Compter("3");
        Objet(Nom);
        EXPECT_EQ(Rangées(), Lignes);
        EXPECT_EQ(Écran().txt_PrixMat[4].Text(), Quatrième);
        EXPECT_EQ(Vente(), Prix) << "of one, and the resale takes no part";
        EXPECT_EQ(Écran().txt_PrixRevente.Text(), Revente);
    }
}

TEST_F(SellerieDeBardes, PicturesFollowTheObject)
{
    for (int Fois = 0; Fois < 2; ++Fois) {
        Objet("Barde légère"); // without any
        EXPECT_EQ(Écran().img_Objet.Picture().File, Dossier / "Objets/Commun/PasImage.gif");
        EXPECT_TRUE(Écran().img_Icône.Picture().IsEmpty());
        Objet("Barde lourde");
        EXPECT_EQ(Écran().img_Objet.Picture().File, Dossier / "Objets/Valdren/béret.gif");
        EXPECT_EQ(Écran().img_Icône.Picture().File, Dossier / "Objets/Valdren/Icônes/carquois.gif");
    }
    Menu("Bardes");
    EXPECT_TRUE(Écran().img_Icône.Picture().IsEmpty());
    Objet("Barde lourde"); // of the same file as before
    EXPECT_EQ(Écran().img_Icône.Picture().File, Dossier / "Objets/Valdren/Icônes/carquois.gif");
}

TEST_F(SellerieDeBardes, TheFilterFindsItsWordAnywhereWithoutRegardToCase)
{
    Objet("Barde légère");
    Degré("LOURD");
    EXPECT_EQ(Objets(), "Barde lourde | Chanfrein alourdi");
    EXPECT_EQ(Vente(), "19 | 19 | 32,11") << "the last bill stays";
    Boîtes.ExpectMsgBox("Aucun objet sélectionné.");
    Ajouter();
    Degré("barde"); // not the cloth of another trade
    EXPECT_EQ(Objets(), "Barde légère | Barde lourde");
    Objet("Barde lourde");
    Boîtes.ExpectMsgBox("Aucun objet ne porte «\u00A0selle\u00A0» dans son nom\u00A0: la liste "
                        "reste la même.");
    Degré("selle");
    EXPECT_EQ(Objets() + Écran().cbo_ObjetSecondaire.Text() + Vente(),
              "Barde légère | Barde lourdeBarde lourde30 | 30 | 50,7");
}

TEST_F(SellerieDeBardes, TheCountIsWholeAndOnlyAnEmptiedOneIsRepaired)
{
    Objet("Barde lourde");
    for (const auto& [Saisie, Prix] : {std::pair{"3", "30 | 90 | 152,1"},
                                       {"", "30 | 30 | 50,7"},
                                       {"0", "30 | 0 | 0"},
                                       {"2,5", "30 | 60 | 101,4"},
                                       {"3,5", "30 | 120 | 202,8"},
                                       {"-1", "30 | -30 | -50,7"},
                                       {"x", "30 | -30 | -50,7 ?"}}) {
        Compter(Saisie);
        EXPECT_EQ(Vente(), Prix) << Saisie;
        EXPECT_EQ(Écran().txt_SellerieNbObjets.Marked(), Écran().txt_SelleriePrixVente.Stale());
    }
    Refuser();
    Objet("Barde légère");
    Compter("2");
    Ajouter();
    EXPECT_EQ(Stockées("Nom|Nb|PrixCoûtant|PrixVente|Royaume|Acheteur"),
              "Barde légère | 2 | 38 | 64,22 | Valdren | Nouvelle commande");
}

TEST_F(SellerieDeBardes, ALookUpGivenUpIsToldAndThePricesWaitForTheNextPick)
{
    Modifier("Artisanat_Valdren.mdb", "DELETE FROM Sellerie_ListeObjets WHERE Nom LIKE 'Ch%'");
    for (const char* Nom : {"Chanfrein alourdi", "Mors"}) { // the whole row, a material
        SCOPED_TRACE(Nom);
        Objet("Barde lourde");
        EXPECT_EQ(Vente(), "30 | 30 | 50,7");
        Boîtes.ExpectMsgBoxBeginning(std::string("Aucune donnée pour «\u00A0") + Nom);
        Objet(Nom);
        EXPECT_TRUE(Vente().ends_with("?"));
        Compter("2");
        EXPECT_TRUE(Vente().ends_with("?")) << "a count mends nothing";
        Refuser();
    }
    Menu("OuvrirPanier");
    EXPECT_EQ(Vente(), "0 | 0 | 0") << "what is emptied is good";
}

} // namespace orvane
