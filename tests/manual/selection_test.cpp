#include "support/petit_dossier.h"

// The walk down the lists.
namespace orvane {

namespace {

class Sélection : public DansLAtelier
{
};

} // namespace

TEST_F(Sélection, EachTradeListsItsProductsOnceInFrenchOrder)
{
    const std::pair<const char*, const char*> Produits[] = {{"Armurerie", "Mailles"},
                                                            {"Couture", "Cuir | Tissu"},
                                                            {"Empennage", "Arcs | Munitions"},
                                                            {"Forge", "Armes légendaires | Épées"}};
    EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), "Couture");
    EXPECT_EQ(Jointes(Atelier().cbo_Produit.Items()), "Cuir | Tissu");
    for (const auto& [Métier, Liste] : Produits) {
        Door().ClickItem(Atelier().Bar_Menus, Métier);
        EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), Métier);
        EXPECT_EQ(Jointes(Atelier().cbo_Produit.Items()), Liste) << Métier;
        EXPECT_EQ(Atelier().cbo_Produit.Text(), "");
    }
}

TEST_F(Sélection, EachPickFillsTheListBelowAndClearsWhatLiesUnderIt)
{
    ChoisirBéret();
    EXPECT_EQ(Jointes(Atelier().cbo_ProduitDétaillé.Items()), "Chapeaux | Robes");
    EXPECT_EQ(Jointes(Atelier().cbo_Objet.Items()),
              "Béret | Chapeau | Chapeau à couronne | COURONNE | Couronne d'osier");
    Door().Pick(Atelier().cbo_ProduitDétaillé, "Robes");
    EXPECT_EQ(Atelier().cbo_Objet.Text(), "");
    EXPECT_EQ(Atelier().cbo_Objet.ListIndex, -1);
    EXPECT_EQ(Atelier().cbo_Objet.Items().front(), "Robe 0");
    EXPECT_EQ(Atelier().cbo_Degré.ListCount(), 0);
    EXPECT_FALSE(Atelier().cbo_Degré.Visible);
    Door().Pick(Atelier().cbo_Produit, "Cuir");
    EXPECT_EQ(Jointes(Atelier().cbo_ProduitDétaillé.Items()), "Bottes");
    EXPECT_EQ(Atelier().cbo_ProduitDétaillé.Text(), "");
    EXPECT_EQ(Atelier().cbo_Objet.ListCount(), 0);
}

TEST_F(Sélection, TheLetterOfTheObjectDecidesTheDegrees)
{
    const std::pair<const char*, const char*> Lettres[] = {
        {"N", "terne | poli | clair | vif | doré | brillant | étincelant"},
        {"O", "vif | doré | brillant | étincelant"}, // above 3
        {"S", "terne"},
        {"E", "étincelant"},
        {"A", "brillant | étincelant"}, // above 7
    };
    for (const auto& [Lettre, Degrés] : Lettres) {
        Choisir("Couture", "Cuir", "Bottes", std::string("Bottes ") + Lettre);
        EXPECT_EQ(Jointes(Atelier().cbo_Degré.Items()), Degrés)
            << Lettre << ", in the second column, as the product's Degré says";
        EXPECT_TRUE(Atelier().cbo_Degré.Visible && Atelier().lbl_Degré.Visible) << Lettre;
        EXPECT_EQ(Atelier().cbo_Degré.ListIndex, -1) << "none chosen";
        EXPECT_EQ(Lignes(), "0 | 0 | 0 | 0 | 0 | 0") << "no price before a degree";
    }
    Choisir("Couture", "Tissu", "Robes", "Robe 0");
    EXPECT_EQ(Jointes(Atelier().cbo_Degré.Items()),
              "brut | simple | fin | rare | royal | noble | parfait");
}

TEST_F(Sélection, AnotherLetterHasNoDegreeAndTheBasketRefuses)
{
    Choisir("Couture", "Cuir", "Bottes", "Bottes N");
    Door().Pick(Atelier().cbo_Objet, "Bottes X");
    EXPECT_FALSE(Atelier().cbo_Degré.Visible || Atelier().lbl_Degré.Visible);
    EXPECT_EQ(Atelier().cbo_Degré.ListCount(), 0);
    EXPECT_EQ(Atelier().txt_MatériauxQté[1].Text(), "1") << "its codes and counts are read";
    Boîtes.ExpectMsgBox("Aucun objet sélectionné.");
    Door().Click(Atelier().cmd_AjouterPanier);
}

TEST_F(Sélection, TheTypeListGoesByTheObjectsName)
{
    struct Cas
    {
        const char* Objet;
        const char* Types; // empty: hidden
    };
    const Cas LesCas[] = {
        {"Arc", ""},
        {"Arc durable", "de feu | de glace | conducteur"},
        {"ARC durable", "de feu | de glace | conductrice"}, // this test minds the case
        {"Bâton SUPÉRIEUR", "de feu | de glace | conductrice"},
    };
    for (const Cas& Each : LesCas) {
        SCOPED_TRACE(Each.Objet);
        Choisir("Empennage", "Arcs", "Arcs longs", Each.Objet);
        const bool AvecType = *Each.Types != '\0';
        EXPECT_EQ(Atelier().cbo_TypeDégats.Visible(), AvecType);
        EXPECT_EQ(Atelier().lbl_TypeDégats.Visible(), AvecType);
        EXPECT_EQ(Atelier().cbo_Degré.Width(), AvecType ? 1215 : 3135);
        EXPECT_EQ(Atelier().cbo_TypeDégats.ListIndex, -1);
        if (AvecType) {
            EXPECT_EQ(Jointes(Atelier().cbo_TypeDégats.Items()), Each.Types);
        }
    }
    Door().Pick(Atelier().cbo_Objet, "Arc");
    EXPECT_FALSE(Atelier().cbo_TypeDégats.Visible);
    EXPECT_EQ(Atelier().cbo_TypeDégats.ListCount(), 3) << "the hidden list keeps its entries";
    Door().Pick(Atelier().cbo_Objet, "Arc durable");
    Door().Pick(Atelier().cbo_ProduitDétaillé, "Arcs longs");
    EXPECT_FALSE(Atelier().cbo_TypeDégats.Visible || Atelier().lbl_TypeDégats.Visible);
    EXPECT_EQ(Atelier().cbo_Degré.Width(), 3135);
}

TEST_F(Sélection, TypingChoosesNothingAndRunsNothing)
{
    Choisir("Couture", "Tissu", "Chapeaux", "Béret", "brut");
    Door().Type(Atelier().cbo_Objet, "Chapeau");
    EXPECT_EQ(Atelier().txt_MatériauxQté[2].Text(), "5") << "still the beret's";
    EXPECT_EQ(Totaux(), "12,5 | 12,5 | 15");
    Door().Type(Atelier().cbo_Produit, "Inconnu");
    Door().Pick(Atelier().cbo_ProduitDétaillé, "Robes");
    EXPECT_EQ(Atelier().cbo_Objet.ListCount(), 0) << "a list without rows is empty, and no box";
}

TEST_F(Sélection, PicturesFollowTheObject)
{
    const auto Objets = Dossier / "Objets";
    EXPECT_EQ(Atelier().img_Objet.Picture().File, Objets / "Commun/PasImage.gif");
    ChoisirBéret();
    EXPECT_EQ(Atelier().img_Objet.Picture().File, Objets / "Valdren/béret.gif");
    EXPECT_EQ(Atelier().img_Icône.Picture().File, Objets / "Valdren/Icônes/béret.gif");
    Door().Pick(Atelier().cbo_Objet, "Chapeau"); // nulls in both columns
    EXPECT_EQ(Atelier().img_Objet.Picture().File, Objets / "Commun/PasImage.gif");
    EXPECT_TRUE(Atelier().img_Icône.Picture().IsEmpty());
    Door().Pick(Atelier().cbo_Objet, "Béret");
    Door().Pick(Atelier().cbo_Produit, "Cuir");
    EXPECT_EQ(Atelier().img_Objet.Picture().File, Objets / "Commun/PasImage.gif");
    EXPECT_TRUE(Atelier().img_Icône.Picture().IsEmpty());
}

TEST_F(Sélection, ClearingLeavesCountsAndLevelButFallingPricesRunTheSale)
{
    ChoisirBéret();
    Door().Type(Atelier().txt_NbObjet, "3");
    Door().Pick(Atelier().cbo_Produit, "Cuir");
    EXPECT_EQ(Totaux(), "0 | 0 | 0");
    EXPECT_EQ(Atelier().txt_NbObjet.Text(), "3");
    EXPECT_EQ(Atelier().lbl_Niveau.Caption(), "47");
    EXPECT_FALSE(Atelier().img_Niveau.Picture().IsEmpty());
    EXPECT_EQ(Atelier().txt_PrixRevente.Text(), "0");
    EXPECT_EQ(Atelier().txt_Niveau.Text(), "");
    EXPECT_EQ(Atelier().txt_Matériaux[1].Text(), "");
    EXPECT_EQ(Atelier().txt_MatériauxQté[1].Text(), "0");

    ChoisirBéret();
    Door().Type(Atelier().txt_NbEssais, "2");
    Door().Pick(Atelier().cbo_Objet, "Chapeau");
    // The last of two runs finds a cost of 2,5 and a resale of 4: 2 × -1,5, and × 1,1.
    EXPECT_EQ(Totaux(), "0 | -3 | -3,3");
    EXPECT_EQ(Atelier().txt_NbEssais.Text(), "2");
}

TEST_F(Sélection, OpeningTheBasketFromTheMenuEmptiesTheSelectionOfTheTradeInHand)
{
    Choisir("Forge", "Épées", "Épées courtes", "Glaive", "terne");
    OuvrirPanier();
    EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), "Forge");
    EXPECT_EQ(Atelier().cbo_Produit.Text(), "");
    EXPECT_EQ(Jointes(Atelier().cbo_Produit.Items()), "Armes légendaires | Épées");
    EXPECT_EQ(Atelier().cbo_Objet.ListCount(), 0);
}

} // namespace orvane
