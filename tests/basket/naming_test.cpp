#include "basket/panier_garni.h"

namespace orvane {

namespace {

const std::string Question = "Nom de l'acheteur ?\n30 caractères max.";

class Nommer : public PanierGarni
{
  protected:
    void Nom(const std::string& Réponse)
    {
        Boîtes.AnswerInputBox(Question, Réponse);
        Door().Click(Panier().cmd_Enregistrer);
    }

    static std::string Répété(const std::string& Lettre, int Fois)
    {
        std::string Texte;
        for (int i = 0; i < Fois; ++i)
            Texte += Lettre;
        return Texte;
    }
};

} // namespace

TEST_F(Nommer, AllRealmsRowsTakeTheName)
{
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'",
            "'Bâton', 2, 20, 24, 'Corvane', 'Nouvelle commande'",
            "'Cape', 3, 30, 36, 'Brenmoor', 'Nouvelle commande'",
            "'Dague', 4, 40, 48, 'Valdren', 'Zoé'"});
    EXPECT_EQ(TotauxDuPanier(), "100 | 120");
    Nom("Maël");
    EXPECT_EQ(Boîtes.LastTitle, "Panier");
    EXPECT_EQ(Stockées(), "Arc | Maël | Bâton | Maël | Cape | Maël | Dague | Zoé");
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Maël") << "the order in hand";
    EXPECT_EQ(Commandes(), "Maël | Nouvelle commande | Zoé");
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible);
    EXPECT_EQ(TotauxDuPanier(), "0 | 0") << "until the next activation";
    Fermer();
    Ouvrir();
    EXPECT_EQ(TotauxDuPanier(), "100 | 120");
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
    Door().Pick(Panier().cbo_Commandes, "Nouvelle commande");
    EXPECT_EQ(Montrées(), "") << "back in the list, empty";
}

TEST_F(Nommer, LaterRowsGoToTheNamedOrder)
{
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'"});
    Nom("Maël");
    Fermer();
    ChoisirBéret();
    Door().Click(Atelier().cmd_AjouterPanier);
    EXPECT_EQ(Stockées(), "Arc | Maël | Béret brut | Maël");
}

TEST_F(Nommer, ThirtyCharactersPassAndThirtyOneDoNot)
{
    const std::string Composé = "é";
    const std::string Décomposé = "e\u0301";
    for (const std::string& Lettre : {std::string("a"), Composé, Décomposé}) {
        SCOPED_TRACE(Lettre);
        if (App.Feuilles.Count() == 0)
            Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'"});
        for (const std::string& Refusé : {Répété(Lettre, 31), std::string()}) {
            Boîtes.AnswerInputBox(Question, Refusé);
            Boîtes.ExpectMsgBox("Le nom saisi ne répond pas aux critères");
            Door().Click(Panier().cmd_Enregistrer);
            EXPECT_EQ(Stockées(), "Arc | Nouvelle commande");
            EXPECT_TRUE(Panier().cmd_Enregistrer.Visible) << "one can try again";
            EXPECT_EQ(TotauxDuPanier(), "10 | 12");
        }
        const std::string Trente = Répété(Lettre, 30);
        Nom(Trente);
        EXPECT_EQ(Stockées(), "Arc | " + Trente);
        Modifier("Panier.mdb", "UPDATE PanierGlobal SET Acheteur = 'Nouvelle commande'");
        Door().Pick(Panier().cbo_Commandes, "Nouvelle commande");
        Fermer();
        Ouvrir();
    }
}

TEST_F(Nommer, ADoubleQuoteInANameIsAnyCharacter)
{
    const std::string Acheteur = "Maël \"le Fort\" \" OR \"1\"=\"1";
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'",
            "'Bâton', 2, 20, 24, 'Valdren', 'Zoé'"});
    Nom(Acheteur);
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
    Door().Pick(Panier().cbo_Commandes, "Zoé");
    Door().Pick(Panier().cbo_Commandes, Acheteur);
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
    Door().Click(Panier().cmd_SupprimerCommande);
    EXPECT_EQ(Stockées(), "Bâton | Zoé");
}

TEST_F(Nommer, TheNameOfAnOrderThatExistsJoinsIt)
{
    Garnir({"'Bâton', 2, 20, 24, 'Valdren', 'Zoé'",
            "'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'"});
    Nom("Zoé");
    EXPECT_EQ(Montrées(), "Arc 1 10 12 | Bâton 2 20 24");
    EXPECT_EQ(Commandes(), "Nouvelle commande | Zoé");
}

TEST_F(Nommer, NamedAsItIsTheButtonIsHiddenUntilTheNextActivation)
{
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'"});
    Nom("Nouvelle commande");
    EXPECT_EQ(Stockées(), "Arc | Nouvelle commande");
    EXPECT_EQ(Commandes(), "Nouvelle commande");
    EXPECT_EQ(Montrées(), "Arc 1 10 12");
    EXPECT_FALSE(Panier().cmd_Enregistrer.Visible);
    Fermer();
    Ouvrir();
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible);
}

TEST_F(Nommer, WithNoRowLeftOneBoxSaysSoAndNothingChanges)
{
    Garnir({"'Arc', 1, 10, 12, 'Valdren', 'Nouvelle commande'"});
    Door().Pick(Panier().lst_Objet, 0);
    Door().Click(Panier().cmd_SupprimerObjet);
    EXPECT_TRUE(Panier().cmd_Enregistrer.Visible) << "keeps its state";
    Boîtes.AnswerInputBox(Question, "Maël");
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «\u00A0Nouvelle commande");
    Door().Click(Panier().cmd_Enregistrer);
    EXPECT_EQ(Panier().cbo_Commandes.Text(), "Nouvelle commande");
    EXPECT_EQ(Commandes(), "Nouvelle commande");
    EXPECT_EQ(Stockées(), "");
}

} // namespace orvane
