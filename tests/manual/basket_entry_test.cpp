#include "support/petit_dossier.h"

namespace orvane {

namespace {

class AjoutAuPanier : public DansLAtelier
{
  protected:
    std::vector<std::string> Stockées()
    {
        return Rangées("Panier.mdb", "SELECT * FROM PanierGlobal",
                       {"Nom", "Nb", "PrixCoûtant", "PrixVente", "Royaume", "Acheteur"});
    }

    void Ajouter() { Door().Click(Atelier().cmd_AjouterPanier); }
};

} // namespace

TEST_F(AjoutAuPanier, TheRowTakesTheTextsOnScreen)
{
    ChoisirBéret();
    Door().Type(Atelier().txt_NbObjet, "3");
    Door().Type(Atelier().txt_NbEssais, "2");
    Ajouter();
    Door().Type(Atelier().txt_NbObjet, "1");
    Door().Type(Atelier().txt_NbEssais, "0");
    Ajouter();
    EXPECT_EQ(Stockées(), (std::vector<std::string>{
                              "Béret brut | 3 | 54,5 | 63,7 | Valdren | Nouvelle commande",
                              "Béret brut | 1 | 12,5 | 15 | Valdren | Nouvelle commande"}));
    EXPECT_EQ(Atelier().cbo_Degré.Text(), "brut") << "the screen doesn't change";
    EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels");
    EXPECT_EQ(Panier().lst_Objet.ListCount(), 0) << "nor is the basket refreshed";
}

TEST_F(AjoutAuPanier, NothingWithoutADegree)
{
    Choisir("Couture", "Tissu", "Chapeaux", "Béret");
    Boîtes.ExpectMsgBox("Aucun objet sélectionné.");
    Ajouter();
    EXPECT_TRUE(Stockées().empty());
}

TEST_F(AjoutAuPanier, TheTypeStandsInTheNameWhenItsListIsVisible)
{
    Choisir("Empennage", "Arcs", "Arcs longs", "Arc durable", "brut");
    Ajouter();
    Door().Type(Atelier().cbo_TypeDégats, "de feu");
    Ajouter();
    Door().Pick(Atelier().cbo_Objet, "Arc");
    Door().Pick(Atelier().cbo_Degré, "brut");
    Ajouter();
    // 10 × 1,4; no type chosen leaves two blanks
    EXPECT_EQ(Stockées(), (std::vector<std::string>{
                              "Arc durable  brut | 1 | 10 | 14 | Valdren | Nouvelle commande",
                              "Arc durable de feu brut | 1 | 10 | 14 | Valdren | Nouvelle commande",
                              "Arc brut | 1 | 10 | 14 | Valdren | Nouvelle commande"}));
}

TEST_F(AjoutAuPanier, ATypedDegreeCountsAndThePricesOnScreenAreTaken)
{
    Choisir("Couture", "Tissu", "Chapeaux", "Béret");
    Door().Type(Atelier().cbo_Degré, "céleste");
    Ajouter();
    EXPECT_EQ(Stockées(),
              std::vector<std::string>{"Béret céleste | 1 | 0 | 0 | Valdren | Nouvelle commande"});
}

TEST_F(AjoutAuPanier, TheTableConvertsTheTexts)
{
    Choisir("Couture", "Tissu", "Robes", "Robe nue", "brut");
    Door().Type(Atelier().txt_PrixMat[1], "0,0333");
    Door().Type(Atelier().txt_NbObjet, "2,5");
    Ajouter();
    // 2 objects; 0,0666 × 1,2 = 0,07992 is kept to four decimals
    EXPECT_EQ(Stockées(), std::vector<std::string>{
                              "Robe nue brut | 2 | 0,0666 | 0,0799 | Valdren | Nouvelle commande"});
}

TEST_F(AjoutAuPanier, RealmAndOrderInHandGoIntoTheRow)
{
    OuvrirPanier();
    Door().Type(Panier().cbo_Commandes, "Maël \"le Fort\"");
    Door().Click(Panier().cmd_Retour);
    Door().Click(Atelier().cmd_Retour);
    Door().Click(Accueil().img_Brenmoor);
    OuvrirAtelier();
    Choisir("Couture", "Tissu", "Robes", "Robe 0", "brut"); // 2 × 7 × 1,22
    Ajouter();
    EXPECT_EQ(Stockées(), std::vector<std::string>{
                              "Robe 0 brut | 1 | 14 | 17,08 | Brenmoor | Maël \"le Fort\""});
}

TEST_F(AjoutAuPanier, ABasketThatIsGoneIsToldByItsName)
{
    ChoisirBéret();
    std::filesystem::remove(Dossier / "Panier.mdb");
    Boîtes.ExpectMsgBox("La base de données «\u00A0Panier.mdb\u00A0» est introuvable.\nReplacez "
                        "le fichier à côté du programme.");
    Ajouter();
    EXPECT_TRUE(App.Globals.BaseDonnées2.IsEmpty());
    EXPECT_EQ(Totaux(), "12,5 | 12,5 | 15");
}

} // namespace orvane
