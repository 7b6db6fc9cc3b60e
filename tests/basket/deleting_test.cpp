#include "basket/panier_garni.h"

namespace orvane {

class Supprimer : public PanierGarni
{
  protected:
    void SetUp() override
    {
        Garnir({"'Cape', 1, 10, 12, 'Valdren', 'Nouvelle commande'",
                "'Arc', 2, 20, 24, 'Valdren', 'Nouvelle commande'",
                "'Arc', 3, 30, 36, 'Valdren', 'Nouvelle commande'",
                "'Bâton', 4, 40, 48, 'Corvane', 'Nouvelle commande'",
                "'Dague', 5, 50, 60, 'Valdren', 'Zoé'", "'Épée', 6, 60, 72, 'Corvane', 'Zoé'"});
    }
};

TEST_F(Supprimer, TheSelectedRowAloneGoes)
{
    Door.Click(Panier().cmd_SupprimerObjet);
    EXPECT_EQ(Montrées(), "Arc 2 20 24 | Arc 3 30 36 | Cape 1 10 12") << "none selected";
    Door.Pick(Panier().lst_PrixVente, 1); // the second of two rows of one name
    Door.Click(Panier().cmd_SupprimerObjet);
    EXPECT_EQ(Montrées(), "Arc 2 20 24 | Cape 1 10 12");
    EXPECT_EQ(Sommes(), "180 | 216") << "of the whole table";
    EXPECT_EQ(Panier().lst_Objet.ListIndex, -1) << "the selection is gone";
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible);
    Door.Pick(Panier().cbo_Commandes, "Zoé");
    Door.Click(Panier().cmd_SupprimerObjet);
    EXPECT_EQ(Sommes(), "0 | 0") << "nothing selected: not even the totals";
    Door.Pick(Panier().lst_Objet, 0);
    Perdre("Panier.mdb");
    Door.Click(Panier().cmd_SupprimerObjet);
    EXPECT_EQ(Montrées(), "Dague 5 50 60");
}

TEST_F(Supprimer, AnOrderGoesInAllRealms)
{
    Door.Pick(Panier().cbo_Commandes, "Zoé");
    Door.Click(Panier().cmd_SupprimerCommande);
    EXPECT_EQ(Stockées("Nom"), "Cape / Arc / Arc / Bâton");
    EXPECT_EQ(Commandes(), "Nouvelle commande");
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Nouvelle commande");
    EXPECT_EQ(Montrées(), "") << "empty until the next activation or pick";
    EXPECT_EQ(Sommes(), "0 | 0") << "whatever other orders remain";
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible) << "keeps its state";
    Rouvrir();
    EXPECT_EQ(Montrées(), "Arc 2 20 24 | Arc 3 30 36 | Cape 1 10 12");
    EXPECT_EQ(Sommes(), "100 | 120");
    Door.Click(Panier().cmd_SupprimerCommande);
    EXPECT_EQ(Stockées(), "");
    EXPECT_EQ(Commandes(), "Nouvelle commande") << "its name stays";
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible) << "keeps its state";
}

} // namespace orvane
