#include "basket/panier_garni.h"

// What the basket shows, and the totals.
namespace orvane {

using ListeDesCommandes = PanierGarni;

TEST_F(ListeDesCommandes, AnEmptyTableOffersTheNewOrderAlone)
{
    Garnir({});
    EXPECT_EQ(Commandes(), "Nouvelle commande");
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Nouvelle commande");
    EXPECT_EQ(Montrées(), "");
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible);
    EXPECT_EQ(Sommes(), "0 | 0");
    AjouterUnBéret();
    EXPECT_EQ(Montrées(), "") << "not before the next activation";
    OuvrirPanier();
    EXPECT_EQ(Montrées(), "Béret brut 1 12,5 15");
    EXPECT_EQ(Sommes(), "12,5 | 15");
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible);
}

TEST_F(ListeDesCommandes, RowsOfTheOrderInTheRealmByNameAndTotalsOfTheTable)
{
    Garnir({"'Robe', 1, 10, 12, 'Valdren', 'Nouvelle commande'",
            "'Épée', 2, 20.5, -25, 'Valdren', 'Nouvelle commande'",
            "'Arc', 3, 30, 36, 'Valdren', 'Nouvelle commande'",
            "'Arc', 4, 40, 48, 'Valdren', 'Nouvelle commande'",
            "'Casque', 5, 50, 60, 'Corvane', 'Nouvelle commande'",
            "'Flèche', 6, 60, 72, 'Valdren', 'Zoé'"});
    EXPECT_EQ(Commandes(), "Nouvelle commande | Zoé");
    EXPECT_EQ(Montrées(), "Arc 3 30 36 | Arc 4 40 48 | Épée 2 20,5 -25 | Robe 1 10 12");
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible);
    EXPECT_EQ(Sommes(), "210,5 | 203") << "no multiplication by the count";
    for (int i = 0; i < 2; ++i) { // the second time it is chosen already
        Door.Pick(Panier().cbo_Commandes, "Zoé");
        EXPECT_EQ(Montrées(), "Flèche 6 60 72");
        EXPECT_EQ(Sommes(), "0 | 0") << "a pick works no total out";
        EXPECT_FALSE(Panier().cmd_Enregistrer.Visible) << "only the new order can be named";
    }
    ChangerDeRoyaume(Accueil().img_Corvane);
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Zoé") << "it outlives a realm change";
    EXPECT_EQ(Montrées(), "");
    EXPECT_EQ(Sommes(), "210,5 | 203");
    Door.Pick(Panier().cbo_Commandes, "Nouvelle commande");
    EXPECT_EQ(Montrées(), "Casque 5 50 60");
    ChangerDeRoyaume(Accueil().img_Brenmoor);
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible) << "no row in this realm";
}

TEST_F(ListeDesCommandes, TotalsAreExactAndARowWithoutAPriceCountsNothing)
{
    Garnir({"'Arc', 1, 0.005, 0.1, 'Valdren', 'Zoé'", "'Arc', 1, 0.005, 0.2, 'Corvane', 'Zoé'",
            "'Arc', 1, 900000000000, NULL, 'Valdren', 'Zoé'",
            "'Arc', 1, 0.0001, 0, 'Valdren', 'Zoé'"});
    EXPECT_EQ(Sommes(), "900000000000,0101 | 0,3");
}

TEST_F(ListeDesCommandes, AClickInAnyListSelectsTheRowInAllFive)
{
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'",
            "'Bâton', 2, 20, 24, 'Valdren', 'Nouvelle commande'",
            "'Cape', 3, 30, 36, 'Valdren', 'Nouvelle commande'"});
    ListBox* const Listes[] = {&Panier().lst_Objet, &Panier().lst_Nb, &Panier().lst_PrixCoûtant,
                               &Panier().lst_PrixVente, &Panier().lst_Num};
    for (int i = 0; i < 4; ++i) {
        const int Rang = (2 * i + 2) % 3;
        Door.Pick(*Listes[i], Rang);
        for (const ListBox* Each : Listes)
            EXPECT_EQ(Each->ListIndex, Rang) << Listes[i]->Name() << ", " << Each->Name();
    }
    EXPECT_FALSE(Panier().lst_Num.Visible);
}

TEST_F(ListeDesCommandes, ATypedNameRefreshesNothingAndNamesTheNextRows)
{
    const std::string Long = "Une acheteuse dont le nom passe trente signes";
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'"});
    Door.Type(Panier().cbo_Commandes, Long);
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
    AjouterUnBéret();
    OuvrirPanier();
    EXPECT_EQ(Montrées(), "Béret brut 1 12,5 15") << "the activation reads the text in hand";
    EXPECT_EQ(Commandes(), "Nouvelle commande") << "the list isn't rebuilt at activation";
    EXPECT_EQ(Stockées(), "Arc | Nouvelle commande / Béret brut | " + Long);
    Door.Click(Panier().cmd_SupprimerCommande);
    EXPECT_EQ(Stockées(), "Arc | Nouvelle commande");
}

} // namespace orvane
