#include "support/petit_dossier.h"

// The menu, and the walk down the lists.
namespace orvane {

using Sélection = DansLAtelier;

TEST_F(Sélection, TheMenuAsItIsBuilt)
{
    std::string Entrées;
    for (const SideMenu::Bar& Groupe : Atelier().Bar_Menus.Bars()) {
        Entrées += Jointes({Groupe.Key, Groupe.Title, Groupe.Tip}) + "\n";
        for (const SideMenu::Item& Each : Groupe.Items)
            Entrées += Jointes({Each.Text, Each.Key, std::to_string(Each.Icon), Each.Tip}) + "\n";
    }
    EXPECT_EQ(Entrées, "Artisanats | Liste des artisanats | Sélection d'un artisanat manuel.\n"
                       "Armurerie | Armurerie | 7 | Fabrication des armures en métal.\n"
                       "Couture | Couture | 6 | Fabrication des armures en tissu et en cuir.\n"
                       "Empennage | Empennage | 5 | Fabrication des armes en bois.\n"
                       "Forge | Forge | 4 | Fabrication des armes en métal.\n"
                       "Panier | Panier | Gestion du panier.\n"
                       "Voir le panier | OuvrirPanier | 10 | \n");
    EXPECT_EQ(Atelier().Bar_Menus.SmallIcons(), &Réglages().imglst_CraftPetit);
    EXPECT_EQ(Atelier().Bar_Menus.Bars()[0].Picture, Réglages().pct_Logo.Picture());
}

TEST_F(Sélection, EachTradeListsItsProductsOnceInFrenchOrder)
{
    EXPECT_EQ(Jointes(Atelier().cbo_Produit.Items()), "Cuir | Tissu") << "Couture to begin with";
    const std::pair<const char*, const char*> Produits[] = {{"Armurerie", "Mailles"},
                                                            {"Couture", "Cuir | Tissu"},
                                                            {"Empennage", "Arcs | Munitions"},
                                                            {"Forge", "Armes légendaires | Épées"}};
    for (const auto& [Métier, Liste] : Produits) {
        Door.ClickItem(Atelier().Bar_Menus, Métier);
        EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), Métier);
        EXPECT_EQ(Jointes(Atelier().cbo_Produit.Items()), Liste) << Métier;
    }
}

TEST_F(Sélection, EachPickFillsTheListBelowAndClearsWhatLiesUnderIt)
{
    ChoisirBéret();
    EXPECT_EQ(Jointes(Atelier().cbo_ProduitDétaillé.Items()), "Chapeaux | Robes");
    EXPECT_EQ(Jointes(Atelier().cbo_Objet.Items()),
              "Béret | Chapeau | Chapeau à couronne | COURONNE | Couronne d'osier");
    Door.Pick(Atelier().cbo_ProduitDétaillé, "Robes");
    EXPECT_EQ(Atelier().cbo_Objet.Text(), "");
    EXPECT_EQ(Atelier().cbo_Objet.Items().front(), "Robe 0");
    EXPECT_EQ(Atelier().cbo_Degré.ListCount(), 0);
    EXPECT_FALSE(Atelier().cbo_Degré.Visible);
    Door.Pick(Atelier().cbo_Produit, "Cuir");
    EXPECT_EQ(Jointes(Atelier().cbo_ProduitDétaillé.Items()), "Bottes");
    EXPECT_EQ(Atelier().cbo_ProduitDétaillé.Text(), "");
    EXPECT_EQ(Atelier().cbo_Objet.ListCount(), 0);
}

TEST_F(Sélection, TheLetterOfTheObjectDecidesTheDegrees)
{
    const std::pair<const char*, const char*> Lettres[] = {
        // in the product's own column
        {"Cuir/Bottes/Bottes N", "terne | poli | clair | vif | doré | brillant | étincelant"},
        {"Cuir/Bottes/Bottes O", "vif | doré | brillant | étincelant"},
        {"Cuir/Bottes/Bottes S", "terne"},
        {"Cuir/Bottes/Bottes E", "étincelant"},
        {"Cuir/Bottes/Bottes A", "brillant | étincelant"},
        {"Cuir/Bottes/Bottes X", ""},
        {"Tissu/Robes/Robe 0", "brut | simple | fin | rare | royal | noble | parfait"},
    };
    for (const auto& [Objet, Degrés] : Lettres) {
        Choisir(std::string("Couture/") + Objet);
        EXPECT_EQ(Jointes(Atelier().cbo_Degré.Items()), Degrés) << Objet;
        EXPECT_EQ(Atelier().cbo_Degré.Visible(), *Degrés != '\0') << Objet;
        EXPECT_EQ(Atelier().lbl_Degré.Visible(), *Degrés != '\0') << Objet;
        EXPECT_EQ(Atelier().cbo_Degré.Text(), "") << "none chosen";
        EXPECT_EQ(Lignes(), "0 | 0 | 0 | 0 | 0 | 0") << "no price before a degree";
    }
}

TEST_F(Sélection, TheTypeListGoesByTheObjectsName)
{
    const std::pair<const char*, const char*> Objets[] = {
        {"Arc", ""},
        {"Arc durable", "de feu | de glace | conducteur"},
        {"ARC durable", "de feu | de glace | conductrice"}, // here the case counts
        {"Bâton SUPÉRIEUR", "de feu | de glace | conductrice"},
    };
    for (const auto& [Objet, Types] : Objets) {
        SCOPED_TRACE(Objet);
        Choisir(std::string("Empennage/Arcs/Arcs longs/") + Objet);
        const bool AvecType = *Types != '\0';
        EXPECT_EQ(Atelier().cbo_TypeDégats.Visible(), AvecType);
        EXPECT_EQ(Atelier().lbl_TypeDégats.Visible(), AvecType);
        EXPECT_EQ(Atelier().cbo_Degré.Width(), AvecType ? 1215 : 3135);
        EXPECT_EQ(Jointes(Atelier().cbo_TypeDégats.Items()), Types);
    }
    Door.Pick(Atelier().cbo_Objet, "Arc");
    EXPECT_FALSE(Atelier().cbo_TypeDégats.Visible);
    EXPECT_EQ(Atelier().cbo_TypeDégats.ListCount(), 3) << "the hidden list keeps its entries";
    Door.Pick(Atelier().cbo_Objet, "Arc durable");
    Door.Pick(Atelier().cbo_ProduitDétaillé, "Arcs longs");
    EXPECT_FALSE(Atelier().cbo_TypeDégats.Visible || Atelier().lbl_TypeDégats.Visible);
    EXPECT_EQ(Atelier().cbo_Degré.Width(), 3135);
}

TEST_F(Sélection, TypingChoosesAndRunsNothing)
{
    ChoisirBéret();
    Door.Type(Atelier().cbo_Objet, "Chapeau");
    EXPECT_EQ(Atelier().txt_MatériauxQté[2].Text(), "5") << "still the beret's";
    Door.Type(Atelier().cbo_Produit, "Inconnu");
    Door.Pick(Atelier().cbo_ProduitDétaillé, "Robes");
    EXPECT_EQ(Atelier().cbo_Objet.ListCount(), 0) << "no row is an empty list, and no box";
}

TEST_F(Sélection, PicturesFollowTheObject)
{
    const auto Objets = Dossier / "Objets";
    for (const char* Suite : {"Chapeau", "Couronne d'osier"}) { // nulls; then by another product
        EXPECT_EQ(Atelier().img_Objet.Picture().File, Objets / "Commun/PasImage.gif");
        EXPECT_TRUE(Atelier().img_Icône.Picture().IsEmpty());
        ChoisirBéret();
        EXPECT_EQ(Atelier().img_Objet.Picture().File, Objets / "Valdren/béret.gif");
        EXPECT_EQ(Atelier().img_Icône.Picture().File, Objets / "Valdren/Icônes/béret.gif");
        Door.Pick(Atelier().cbo_Objet, Suite);
    }
}

TEST_F(Sélection, ClearingLeavesCountsAndLevelButFallingPricesRunTheSale)
{
    ChoisirBéret();
    Door.Type(Atelier().txt_NbObjet, "3");
    Door.Pick(Atelier().cbo_Produit, "Cuir");
    EXPECT_EQ(Totaux(), "0 | 0 | 0");
    EXPECT_EQ(Atelier().lbl_Niveau.Caption(), "47");
    EXPECT_FALSE(Atelier().img_Niveau.Picture().IsEmpty());
    for (const TextBox* Vidée : {&Atelier().txt_Niveau, &Atelier().txt_Matériaux[1]})
        EXPECT_EQ(Vidée->Text(), "") << Vidée->Name();
    for (const TextBox* Nulle : {&Atelier().txt_PrixRevente, &Atelier().txt_MatériauxQté[1]})
        EXPECT_EQ(Nulle->Text(), "0") << Nulle->Name();

    ChoisirBéret();
    Door.Type(Atelier().txt_NbEssais, "2");
    Door.Pick(Atelier().cbo_Objet, "Chapeau");
    // The last of two runs finds a cost of 2,5 and a resale of 4: 2 × -1,5, and × 1,1.
    EXPECT_EQ(Totaux(), "0 | -3 | -3,3");
    EXPECT_EQ(Atelier().txt_NbObjet.Text(), "3");
    EXPECT_EQ(Atelier().txt_NbEssais.Text(), "2");
    OuvrirPanier();
    EXPECT_EQ(Atelier().cbo_Produit.Text(), "") << "the basket empties the selection too";
    EXPECT_EQ(Jointes(Atelier().cbo_Produit.Items()), "Cuir | Tissu");
}

} // namespace orvane
