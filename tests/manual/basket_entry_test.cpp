#include "support/petit_dossier.h"

namespace orvane {

class AjoutAuPanier : public DansLAtelier
{
  protected:
    void Ajouter() { Door.Click(Atelier().cmd_AjouterPanier); }
};

TEST_F(AjoutAuPanier, EachRowTakesTheTextsOnScreenTheRealmAndTheOrderInHand)
{
    ChoisirBéret();
    Door.Type(Atelier().txt_NbObjet, "3");
    Door.Type(Atelier().txt_NbEssais, "2");
    Ajouter();
    Door.Type(Atelier().txt_NbObjet, "1");
    Door.Type(Atelier().txt_NbEssais, "0");
    Ajouter();
    EXPECT_EQ(Atelier().cbo_Degré.Text(), "brut") << "the screen doesn't change";
    EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels");
    EXPECT_EQ(Panier().lst_Objet.ListCount(), 0) << "nor is the basket refreshed";

    OuvrirPanier();
    Door.Type(Panier().cbo_Commandes, "Maël \"le Fort\"");
    Door.Click(Panier().cmd_Retour);
    Door.Click(Atelier().cmd_Retour);
    Door.Click(Accueil().img_Brenmoor);
    OuvrirAtelier();
    Choisir("Couture/Tissu/Robes/Robe 0/brut"); // 2 × 7, × 1,22
    Ajouter();
    Choisir("Couture/Tissu/Robes/Robe nue/brut");
    Door.Type(Atelier().txt_PrixMat[1], "0,0333");
    Door.Type(Atelier().txt_NbObjet, "2,5");
    Ajouter(); // two; 0,0666 × 1,22 = 0,081252, kept to four decimals
    EXPECT_EQ(Stockées("Nom|Nb|PrixCoûtant|PrixVente|Royaume|Acheteur"),
              "Béret brut | 3 | 54,5 | 63,7 | Valdren | Nouvelle commande / "
              "Béret brut | 1 | 12,5 | 15 | Valdren | Nouvelle commande / "
              "Robe 0 brut | 1 | 14 | 17,08 | Brenmoor | Maël \"le Fort\" / "
              "Robe nue brut | 2 | 0,0666 | 0,0813 | Brenmoor | Maël \"le Fort\"");
}

TEST_F(AjoutAuPanier, TheTypeStandsInTheNameWhenItsListIsVisible)
{
    Choisir("Empennage/Arcs/Arcs longs/Arc durable/brut");
    Ajouter(); // no type chosen leaves two blanks
    Door.Type(Atelier().cbo_TypeDégats, "de feu");
    Ajouter();
    Door.Pick(Atelier().cbo_Objet, "Arc");
    Door.Pick(Atelier().cbo_Degré, "brut");
    Ajouter();
    EXPECT_EQ(Stockées("Nom"), "Arc durable  brut / Arc durable de feu brut / Arc brut");
}

TEST_F(AjoutAuPanier, TheCheckIsMadeOnTheDegreeTyped)
{
    for (const char* Objet : {"Bottes N", "Bottes X"}) {
        Choisir(std::string("Couture/Cuir/Bottes/") + Objet);
        Boîtes.ExpectMsgBox("Aucun objet sélectionné.");
        Ajouter();
    }
    Door.Pick(Atelier().cbo_Objet, "Bottes N");
    Door.Type(Atelier().cbo_Degré, "céleste");
    Ajouter();
    EXPECT_EQ(Stockées("Nom|PrixVente"), "Bottes N céleste | 0") << "the prices on screen";
    Perdre("Panier.mdb");
    Ajouter();
    EXPECT_TRUE(App.Globals.BaseDonnées2.IsEmpty());
}

} // namespace orvane
