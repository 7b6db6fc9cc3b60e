#include "basket/panier_garni.h"

// What the basket shows, and of which order.
namespace orvane {

namespace {

class ListeDesCommandes : public PanierGarni
{
};

} // namespace

TEST_F(ListeDesCommandes, AnEmptyTableOffersTheNewOrderAlone)
{
    Garnir({});
    EXPECT_EQ(Commandes(), "Nouvelle commande");
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Nouvelle commande");
    EXPECT_EQ(Montrées(), "");
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible);
    EXPECT_EQ(TotauxDuPanier(), "0 | 0");
}

TEST_F(ListeDesCommandes, RowsOfTheOrderInTheRealmByName)
{
    Garnir({"'Robe', 1, 10, 12, 'Valdren', 'Nouvelle commande'",
            "'Épée', 2, 20.5, 25, 'Valdren', 'Nouvelle commande'",
            "'Arc', 3, 30, 36, 'Valdren', 'Nouvelle commande'",
            "'Arc', 4, 40, 48, 'Valdren', 'Nouvelle commande'",
            "'Casque', 5, 50, 60, 'Corvane', 'Nouvelle commande'",
            "'Flèche', 6, 60, 72, 'Valdren', 'Zoé'"});
    EXPECT_EQ(Commandes(), "Nouvelle commande | Zoé") << "listed once";
    EXPECT_EQ(Montrées(), "Arc 3 30 36 | Arc 4 40 48 | Épée 2 20,5 25 | Robe 1 10 12");
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible);
    Door().Pick(Panier().cbo_Commandes, "Zoé");
    EXPECT_EQ(Montrées(), "Flèche 6 60 72");
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible) << "only the new order can be named";
    Door().Pick(Panier().cbo_Commandes, "Zoé");
    EXPECT_EQ(Montrées(), "Flèche 6 60 72") << "filled afresh, not twice";
}

TEST_F(ListeDesCommandes, AnOrderOfAnotherRealmIsListedButEmpty)
{
    Garnir({"'Robe', 1, 10, 12, 'Corvane', 'Nouvelle commande'",
            "'Arc', 1, 10, 12, 'Corvane', 'Zoé'"});
    EXPECT_EQ(Montrées(), "");
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible);
    Door().Pick(Panier().cbo_Commandes, "Zoé");
    EXPECT_EQ(Montrées(), "");
    ChangerDeRoyaume(Accueil().img_Corvane);
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Zoé") << "the order in hand outlives a realm change";
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
}

TEST_F(ListeDesCommandes, AClickInAnyListSelectsTheRowInAllFive)
{
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'",
            "'Bâton', 2, 20, 24, 'Valdren', 'Nouvelle commande'",
            "'Cape', 3, 30, 36, 'Valdren', 'Nouvelle commande'"});
    ListBox* const Listes[] = {&Panier().lst_Objet, &Panier().lst_Nb, &Panier().lst_PrixCoûtant,
                               &Panier().lst_PrixVente};
    int Rang = 0;
    for (ListBox* Cliquée : Listes) {
        Rang = (Rang + 2) % 3;
        Door().Pick(*Cliquée, Rang);
        for (const ListBox* Each : Listes)
            EXPECT_EQ(Each->ListIndex, Rang) << Cliquée->Name() << ", " << Each->Name();
        EXPECT_EQ(Panier().lst_Num.ListIndex, Rang) << Cliquée->Name();
        EXPECT_EQ(Panier().lst_Num.Text(), std::to_string(Rang + 1));
    }
    EXPECT_FALSE(Panier().lst_Num.Visible);
}

TEST_F(ListeDesCommandes, RowsAddedFromACraftScreenShowAtTheNextActivation)
{
    Garnir({});
    Fermer();
    ChoisirBéret();
    Door().Click(Atelier().cmd_AjouterPanier);
    EXPECT_EQ(Montrées(), "");
    Ouvrir();
    EXPECT_EQ(Montrées(), "Béret brut 1 12,5 15");
    EXPECT_EQ(TotauxDuPanier(), "12,5 | 15");
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible);
}

TEST_F(ListeDesCommandes, ATypedNameRefreshesNothingAndNamesTheNextRows)
{
    const std::string Long = "Une acheteuse dont le nom passe trente signes";
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'"});
    Door().Type(Panier().cbo_Commandes, Long);
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
    Fermer();
    ChoisirBéret();
    Door().Click(Atelier().cmd_AjouterPanier);
    Ouvrir();
    EXPECT_EQ(Montrées(), "Béret brut 1 12,5 15") << "the activation reads the text in hand";
    EXPECT_EQ(Commandes(), "Nouvelle commande") << "the list isn't rebuilt at activation";
    EXPECT_EQ(Stockées(), "Arc | Nouvelle commande | Béret brut | " + Long);
    Door().Click(Panier().cmd_SupprimerCommande);
    EXPECT_EQ(Stockées(), "Arc | Nouvelle commande");
}

TEST_F(ListeDesCommandes, EachStartBeginsWithTheNewOrder)
{
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Zoé'"});
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Nouvelle commande");
    EXPECT_EQ(Commandes(), "Nouvelle commande | Zoé");
    EXPECT_EQ(TotauxDuPanier(), "10 | 12") << "of the whole table";
}

} // namespace orvane
