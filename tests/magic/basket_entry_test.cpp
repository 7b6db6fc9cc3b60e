#include "magic/magique.h"

namespace orvane {

class AjoutMagique : public Magique
{
  protected:
    void Ajouter() { Door.Click(Magie().cmd_AjouterPanier); }

    std::string Rangées() { return Stockées("Num|Nom|Nb|PrixCoûtant|PrixVente|Royaume|Acheteur"); }
};

TEST_F(AjoutMagique, AnAlchemyObjectBearsItsDetailOnlyAmongTheDyes)
{
    Rouvrir("65", "1", "1");
    Fabriquer(Bleu); // 37,5, × 1,65
    Taper(Magie().txt_NbObjetAlchimie, "3,5");
    Ajouter();
    Ajouter();
    Fabriquer("Teintures/Étoffes/Gris cendre"); // 2,036925, kept to four decimals
    Ajouter();
    EXPECT_EQ(Magie().cbo_Objet.Text(), "Gris cendre") << "the screen doesn't change";
    Prendre("OuvrirPanier");
    Door.Type(Panier().cbo_Commandes, "Maël");
    Door.Click(Panier().cmd_Retour);
    Fabriquer("Effets à déclenchement/Effets d'arme/Lame à épine");
    Ajouter();
    EXPECT_EQ(Rangées(), "1 | Étoffes : Bleu roi | 4 | 150 | 247,5 | Valdren | Nouvelle commande / "
                         "2 | Étoffes : Bleu roi | 4 | 150 | 247,5 | Valdren | Nouvelle commande / "
                         "3 | Étoffes : Gris cendre | 1 | 1,2345 | 2,0369 | Valdren | "
                         "Nouvelle commande / 4 | Lame à épine | 1 | 3 | 4,95 | Valdren | Maël");
}

TEST_F(AjoutMagique, AGemGoesInWithItsTotalsAndItsDegreeOutlivesAnActivation)
{
    Tailler(Simple);
    Taper(Magie().txt_ArcanesNbEssais, "3");
    Taper(Magie().txt_ArcanesNbObjet, "2");
    Ajouter();
    Ajouter();
    Door.Click(Magie().cmd_Retour);
    Door.Click(Accueil().img_Corvane);
    OuvrirMagie();
    Prendre("Arcanes");
    Ajouter(); // the figures of the other realm, in the one in hand
    EXPECT_EQ(Rangées(),
              "1 | Gemmes de veille Simple taillée | 2 | 660 | 756 | Valdren | Nouvelle commande / "
              "2 | Gemmes de veille Simple taillée | 2 | 660 | 756 | Valdren | Nouvelle commande / "
              "3 |   taillée | 2 | 660 | 756 | Corvane | Nouvelle commande");
}

TEST_F(AjoutMagique, EachCraftLooksAtOneTextOfItsOwn)
{
    Fabriquer("Teintures/Étoffes");
    Boîtes.ExpectMsgBox("Aucun objet sélectionné.");
    Ajouter();
    Tailler("Gemmes de veille/Simple");
    Boîtes.ExpectMsgBox("Aucune gemme sélectionnée.");
    Ajouter();
    Door.Pick(Magie().cbo_DegréGemmes, "brute");
    Prendre("Alchimie");
    Boîtes.ExpectMsgBox("Aucun objet sélectionné.");
    Ajouter();
    EXPECT_EQ(Rangées(), "");
    Door.Type(Magie().cbo_Objet, "Ocre"); // typed, never made
    Ajouter();
    EXPECT_EQ(Stockées("Nom|Nb|PrixCoûtant|PrixVente"), "Étoffes : Ocre | 1 | 0 | 0");
}

} // namespace orvane
