#include "basket/panier_garni.h"

namespace orvane {

class Nommer : public PanierGarni
{
  protected:
    void Nom(const std::string& Réponse)
    {
        Boîtes.AnswerInputBox("Nom de l'acheteur ?\n30 caractères max.", Réponse);
        Door.Click(Panier().cmd_Enregistrer);
    }
};

TEST_F(Nommer, AllRealmsRowsTakeTheName)
{
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'",
            "'Bâton', 2, 20, 24, 'Corvane', 'Nouvelle commande'",
            "'Dague', 4, 40, 48, 'Valdren', 'Zoé'"});
    Nom("Maël");
    EXPECT_EQ(Boîtes.LastTitle, "Panier");
    EXPECT_EQ(Stockées(), "Arc | Maël / Bâton | Maël / Dague | Zoé");
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Maël") << "the order in hand";
    EXPECT_EQ(Commandes(), "Maël | Nouvelle commande | Zoé");
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible);
    EXPECT_EQ(Sommes(), "0 | 0") << "until the next activation";
    Rouvrir();
    EXPECT_EQ(Sommes(), "70 | 84");
    Door.Pick(Panier().cbo_Commandes, "Nouvelle commande");
    EXPECT_EQ(Montrées(), "") << "back in the list, empty";
    AjouterUnBéret();
    OuvrirPanier();
    Nom("Zoé");
    EXPECT_EQ(Montrées(), "Béret brut 1 12,5 15 | Dague 4 40 48") << "joins the order of that name";
}

TEST_F(Nommer, ThirtyCharactersPassAndThirtyOneDoNot)
{
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'"});
    for (const std::string Lettre : {"a", "é", "e\u0301"}) { // composed and decomposed
        SCOPED_TRACE(Lettre);
        std::string Trente;
        for (int i = 0; i < 30; ++i)
            Trente += Lettre;
        for (const std::string& Refusé : {Trente + "a", std::string()}) {
            Boîtes.ExpectMsgBoxBeginning("Le nom saisi ne répond pas aux critères");
            Nom(Refusé);
            EXPECT_EQ(Stockées(), "Arc | Nouvelle commande");
            EXPECT_TRUE(Panier().cmd_Enregistrer.Visible) << "one can try again";
        }
        Nom(Trente);
        EXPECT_EQ(Stockées(), "Arc | " + Trente);
        Modifier("Panier.mdb", "UPDATE PanierGlobal SET Acheteur = 'Nouvelle commande'");
        Door.Pick(Panier().cbo_Commandes, "Nouvelle commande");
    }
}

TEST_F(Nommer, ADoubleQuoteInANameIsAnyCharacter)
{
    const std::string Acheteur = "Maël \"le Fort\" \" OR \"1\"=\"1";
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'",
            "'Bâton', 2, 20, 24, 'Valdren', 'Zoé'"});
    Nom(Acheteur);
    Door.Pick(Panier().cbo_Commandes, "Zoé");
    EXPECT_EQ(Montrées(), "Bâton 2 20 24");
    Door.Pick(Panier().cbo_Commandes, Acheteur);
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
    Door.Click(Panier().cmd_SupprimerCommande);
    EXPECT_EQ(Stockées(), "Bâton | Zoé");
}

TEST_F(Nommer, NamedAsItIsAndWithNoRowLeft)
{
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'"});
    Nom("Nouvelle commande");
    EXPECT_EQ(Stockées(), "Arc | Nouvelle commande");
    EXPECT_EQ(Commandes(), "Nouvelle commande");
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible) << "until the next activation";
    Rouvrir();
    Door.Pick(Panier().lst_Objet, 0);
    Door.Click(Panier().cmd_SupprimerObjet);
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible) << "keeps its state";
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «\u00A0Nouvelle commande");
    Nom("Maël");
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Nouvelle commande") << "the answer isn't kept";
    EXPECT_EQ(Commandes(), "Nouvelle commande");
}

} // namespace orvane
