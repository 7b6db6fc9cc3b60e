#include "secondary/secondaire.h"

// The menu, and what a click there makes of the screen.
namespace orvane {

class MenuSecondaire : public Secondaire
{
  protected:
    // S for the sale, R for recycling, + for the basket's button, F for the second list.
    std::string Montrés()
    {
        const auto Tous = [&](const std::string& Préfixe, const std::vector<std::string>& Noms) {
            const bool Premier = Écran().Find(Noms[0]).Visible();
            for (const std::string& Nom : Noms)
                EXPECT_EQ(Écran().Find(Nom).Visible(), Premier) << Nom;
            return Premier ? Préfixe : "";
        };
        return Tous("S",
                    {"shp_InfosVente", "lbl_InfosVente", "lbl_SellerieNbObjets",
                     "txt_SellerieNbObjets", "lbl_SelleriePrixCoûtant", "img_Objet",
                     "txt_SelleriePrixCoûtant", "lbl_SelleriePrixVente", "txt_SelleriePrixVente"}) +
               Tous("R", {"shp_Recyclage", "lbl_Recyclage", "lbl_RecyclageMatPremière",
                          "lbl_RecyclageNbObjets", "lbl__RecyclageGain", "txt_CoûtSuppl",
                          "txt_NbObjet", "txt_Gain"}) +
               Tous("+", {"cmd_AjouterPanier"}) + Tous("F", {"cbo_Degré", "lbl_Zone2"});
    }
};

TEST_F(MenuSecondaire, TheMenuAsItIsBuilt)
{
    std::string Entrées;
    for (const SideMenu::Bar& Groupe : Écran().Bar_Menus.Bars()) {
        Entrées += Groupe.Key + ", " + Groupe.Title + ", " + Groupe.Tip + "\n";
        for (const SideMenu::Item& Each : Groupe.Items)
            Entrées += Each.Text + ", " + Each.Key + std::to_string(Each.Icon) + Each.Tip + "\n";
    }
    EXPECT_EQ(Entrées, "Recyclage, Recyclage, Sélection d'un artisanat secondaire pour recycler "
                       "des matériaux.\n"
                       "Maroquinerie, Maroquinerie3Travail du cuir.\n"
                       "Menuiserie, Menuiserie2Travail du bois.\n"
                       "Métallurgie, Métallurgie1Travail du métal.\n"
                       "Tissage, Tissage0Travail du tissu.\n"
                       "Sellerie, Sellerie, Fabrication des objets pour équiper les chevaux.\n"
                       "Bardes, Bardes1Métallurgie.\n"
                       "Carapaçons, Carapaçons0Tissage.\n"
                       "Sacoches, Sacoches3Maroquinerie.\n"
                       "Panier, Panier, Gestion du panier.\n"
                       "Voir le panier, OuvrirPanier10\n");
}

TEST_F(MenuSecondaire, BeforeTheFirstClickThereIsNoModeAndNothingFails)
{
    EXPECT_EQ(Montrés(), "+F");
    EXPECT_EQ(Écran().lbl_Artisanat.Caption() + Écran().lbl_Zone2.Caption(), "");
    EXPECT_EQ(Objets() + Degrés(), "");
    for (TextBox* Case :
         {&Écran().txt_SellerieNbObjets, &Écran().txt_NbObjet, &Écran().txt_CoûtSuppl}) {
        Door.Type(*Case, "9");
        EXPECT_TRUE(Case->Text() != "9" && Case->BackColor() == InputGrey) << Case->Name();
    }
    Boîtes.ExpectMsgBox("Aucun objet sélectionné.");
    Door.Click(Écran().cmd_AjouterPanier);
    Menu("OuvrirPanier");
    EXPECT_EQ(Visibles(), "frm_Configuration | frm_ArtisanatsSecondaires | frm_Panier");
    EXPECT_EQ(Rangées(), Vides);
}

// The four levels lie in four bands around 50, the level of the objects.
TEST_F(MenuSecondaire, EachEntryTakesItsTradeLevelAndMode)
{
    Door.Type(Réglages().txt_NiveauMaroquinerie, "81");
    Door.Type(Réglages().txt_NiveauMenuiserie, "60");
    Door.Type(Réglages().txt_NiveauMétallurgie, "50");
    Door.Type(Réglages().txt_NiveauTissage, "40");
    // What is shown, the objects, the filters; then an object, its degree and its level.
    for (const auto& [Clé, Métier, Image, Montrées, Liste, Filtres, Choix, LeDegré, Bande] :
         {std::tuple{"Maroquinerie", "Maroquinerie", 4, "RF", "Sangles", "", "Sangles", "terne",
                     "1"},
          {"Sacoches", "Maroquinerie", 4, "S+F", "Sacoche", "sac", "Sacoche", "", "1"},
          {"Carapaçons", "Tissage", 1, "S+", "Drap de barde", "", "Drap de barde", "", "4"},
          {"Menuiserie", "Menuiserie", 3, "RF", "Planches", "", "Planches", "brut", "2"},
          {"Bardes", "Métallurgie", 2, "S+F",
           "Barde légère | Barde lourde | Chanfrein alourdi | Mors", "LOURD | barde | selle",
           "Barde lourde", "", "3"},
          {"Métallurgie", "Métallurgie", 2, "RF", "Clous", "", "Clous", "brut", "3"},
          {"Tissage", "Tissage", 1, "RF", "Coiffe à couronne | Couronne tressée | Étoles", "",
           "Étoles", "brut", "4"}}) {
        SCOPED_TRACE(Clé);
        Menu(Clé);
        EXPECT_EQ(Écran().lbl_Artisanat.Caption(), Métier);
        EXPECT_EQ(Écran().pct_Artisanat.Picture(), Réglages().imglst_CraftGrand.Picture(Image));
        EXPECT_EQ(Montrés(), Montrées);
        EXPECT_EQ(Écran().lbl_Zone1.Caption() + Écran().lbl_Zone2.Caption(),
                  *Montrées == 'R' ? "Objet :Degré :" : "Objet :Tri :");
        EXPECT_EQ(Objets() + "; " + Degrés(), std::string(Liste) + "; " + Filtres);
        EXPECT_EQ(Niveau() + Écran().cbo_ObjetSecondaire.Text(), " -");
        EXPECT_TRUE(Écran().img_Icône.Picture().IsEmpty());
        Objet(Choix);
        Degré(LeDegré);
        EXPECT_EQ(Niveau(), std::string("50 ") + Bande);
    }
}

// A bard of 30, others of 100. Nothing shows that Menuiserie leaves the margin: every entry of
// saddlery takes its own.
TEST_F(MenuSecondaire, MarginAndLevelAreThoseOfTheLastClickInTheMenu)
{
    const auto Vendre = [&](const char* Entrée, const char* Nom) {
        Menu(Entrée);
        Objet(Nom);
        return Vente() + " " + Niveau();
    };
    EXPECT_EQ(Vendre("Bardes", "Barde lourde"), "30 | 30 | 50,7 50 1");
    Door.Type(Réglages().txt_MargeMétallurgie, "0");
    Door.Type(Réglages().txt_NiveauMétallurgie, "0");
    Objet("Barde lourde");
    EXPECT_EQ(Vente() + " " + Niveau(), "30 | 30 | 50,7 50 1");
    EXPECT_EQ(Vendre("Bardes", "Barde lourde"), "30 | 30 | 30 50 6");
    Door.Type(Réglages().txt_MargeMétallurgie, "x"); // a wrong one leaves the last
    EXPECT_EQ(Vendre("Sacoches", "Sacoche"), "100 | 100 | 167 50 1");
    EXPECT_EQ(Vendre("Carapaçons", "Drap de barde"), "100 | 100 | 170 50 1");
    EXPECT_EQ(Vendre("Bardes", "Barde lourde"), "30 | 30 | 51 50 6");
}

TEST_F(MenuSecondaire, AllOutlastsAVisitHomeAndAnotherRealmUntilTheNextClick)
{
    Modifier("Artisanat_Corvane.mdb", RangéesSecondaires);
    Modifier("Artisanat_Corvane.mdb", "DELETE FROM Sellerie_ListeObjets WHERE Nom = 'Barde lourde';"
                                      "UPDATE Matériaux_Classique SET Prix = 3 WHERE Nom = 'cuir'");
    Menu("Bardes");
    Objet("Barde lourde");
    Door.Type(Écran().txt_SellerieNbObjets, "2");
    const std::string Avant = Rangées() + Vente() + Niveau() + Objets();
    Door.Click(Écran().cmd_Retour);
    EXPECT_EQ(Visibles(), "frm_Configuration | frm_Accueil");
    Door.Click(Accueil().img_Corvane);
    Ouvrir();
    EXPECT_EQ(Rangées() + Vente() + Niveau() + Objets(), Avant);
    EXPECT_EQ(Écran().cbo_ObjetSecondaire.Text(), "Barde lourde");
    Objet("Barde légère"); // of the realm in force, with the margin of the former
    EXPECT_EQ(Vente(), "17 | 17 | 28,73");
    Menu("Bardes");
    EXPECT_EQ(Objets(), "Barde légère | Chanfrein alourdi | Mors");
}

TEST_F(MenuSecondaire, TheBasketEmptiesTheBillAndAnObjectLeftInItsListIsAddedAtZero)
{
    Menu("Bardes");
    Degré("LOURD");
    Objet("Barde lourde");
    Door.Type(Écran().txt_SellerieNbObjets, "2");
    Menu("OuvrirPanier");
    Door.Click(Panier().cmd_Retour);
    EXPECT_EQ(Rangées(), Vides) << "rows that were hidden too";
    EXPECT_EQ(Vente() + Écran().txt_PrixRevente.Text(), "0 | 0 | 00");
    EXPECT_EQ(Objets(), "Barde lourde | Chanfrein alourdi");
    EXPECT_EQ(Écran().cbo_ObjetSecondaire.Text() + Écran().cbo_Degré.Text(), "Barde lourdeLOURD");
    EXPECT_EQ(Niveau(), "50 1");
    EXPECT_FALSE(Écran().img_Icône.Picture().IsEmpty());
    Door.Click(Écran().cmd_AjouterPanier);
    EXPECT_EQ(Stockées("Nom|Nb|PrixCoûtant|PrixVente"), "Barde lourde | 1 | 0 | 0");
}

} // namespace orvane
