#include "basket/panier_garni.h"

namespace orvane {

namespace {

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

} // namespace

TEST_F(Supprimer, TheSelectedRowAloneGoes)
{
    EXPECT_EQ(Montrées(), "Arc 2 20 24 | Arc 3 30 36 | Cape 1 10 12");
    Door().Pick(Panier().lst_PrixVente, 1); // the second of two rows of one name
    Door().Click(Panier().cmd_SupprimerObjet);
    EXPECT_EQ(Montrées(), "Arc 2 20 24 | Cape 1 10 12");
    EXPECT_EQ(TotauxDuPanier(), "180 | 216") << "of the whole table";
    EXPECT_EQ(Panier().lst_Objet.ListIndex, -1) << "the selection is gone";
    EXPECT_EQ(Panier().lst_Num.ListIndex, -1);
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible);
}

TEST_F(Supprimer, WithNothingSelectedNothingChanges)
{
    const std::string Avant = Stockées();
    Door().Click(Panier().cmd_SupprimerObjet);
    EXPECT_EQ(Stockées(), Avant);
    EXPECT_EQ(TotauxDuPanier(), "210 | 252");
    Door().Pick(Panier().cbo_Commandes, "Zoé");
    Door().Click(Panier().cmd_SupprimerObjet);
    EXPECT_EQ(TotauxDuPanier(), "0 | 0") << "not even the totals";
}

TEST_F(Supprimer, AnOrderGoesInAllRealms)
{
    Door().Pick(Panier().cbo_Commandes, "Zoé");
    Door().Click(Panier().cmd_SupprimerCommande);
    EXPECT_EQ(Stockées(), "Cape | Nouvelle commande | Arc | Nouvelle commande | "
                          "Arc | Nouvelle commande | Bâton | Nouvelle commande");
    EXPECT_EQ(Commandes(), "Nouvelle commande");
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Nouvelle commande");
    EXPECT_EQ(Montrées(), "") << "empty until the next activation or pick";
    EXPECT_EQ(TotauxDuPanier(), "0 | 0") << "whatever other orders remain";
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible) << "keeps its state";
    Door().Pick(Panier().cbo_Commandes, "Nouvelle commande");
    EXPECT_EQ(Montrées(), "Arc 2 20 24 | Arc 3 30 36 | Cape 1 10 12");
    EXPECT_EQ(TotauxDuPanier(), "0 | 0");
    Fermer();
    Ouvrir();
    EXPECT_EQ(TotauxDuPanier(), "100 | 120");
}

TEST_F(Supprimer, TheNewOrderGoesAndItsNameStays)
{
    Door().Click(Panier().cmd_SupprimerCommande);
    EXPECT_EQ(Stockées(), "Dague | Zoé | Épée | Zoé");
    EXPECT_EQ(Commandes(), "Nouvelle commande | Zoé");
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible) << "keeps its state";
}

TEST_F(Supprimer, ABasketThatIsGoneIsTold)
{
    std::filesystem::remove(Dossier / "Panier.mdb");
    Door().Pick(Panier().lst_Objet, 0);
    Boîtes.ExpectMsgBox("La base de données «\u00A0Panier.mdb\u00A0» est introuvable.\nReplacez "
                        "le fichier à côté du programme.");
    Door().Click(Panier().cmd_SupprimerObjet);
    EXPECT_EQ(Montrées(), "Arc 2 20 24 | Arc 3 30 36 | Cape 1 10 12");
    Fermer();
    EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels") << "the program goes on";
}

} // namespace orvane
