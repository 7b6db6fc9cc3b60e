#include "magic/magique.h"

// One screen, two crafts: the menu, what each craft shows, what an activation starts over.
namespace orvane {

class ÉcranMagique : public Magique
{
  protected:
    std::vector<bool> Montrés()
    {
        std::vector<bool> Tous;
        for (const Control* Each : Magie().Controls())
            Tous.push_back(Each->Visible);
        return Tous;
    }

    std::string Artisanat()
    {
        return Magie().lbl_Artisanat.Caption() + " " + Dessin(Magie().pct_Artisanat);
    }

    std::string Remplies() // by each activation
    {
        std::string Listes;
        for (const ComboBox* Each : {&Magie().cbo_Produit, &Magie().cbo_TypeGemmes,
                                     &Magie().cbo_TypeBonus, &Magie().cbo_DegréGemmes})
            Listes += Jointes(Each->Items()) + "\n";
        return Listes;
    }

    static constexpr auto Listes = "Effets à déclenchement | Essences | Teintures\n"
                                   "Gemmes de veille | Gemmes de zèle | Gemmes pour trophés\n"
                                   "Atouts | Exploits | Résistances\nbrute | taillée | polie\n";
};

TEST_F(ÉcranMagique, TheMenuNamesTheTwoCraftsAboveTheBasket)
{
    const auto& Groupes = Magie().Bar_Menus.Bars();
    std::string Entrées = Jointes({Groupes[0].Key, Groupes[0].Title, Groupes[0].Tip}) + "\n";
    for (const SideMenu::Item& Each : Groupes[0].Items)
        Entrées += Jointes({Each.Text, Each.Key, std::to_string(Each.Icon), Each.Tip}) + "\n";
    EXPECT_EQ(Entrées + Groupes.at(1).Title + std::to_string(Groupes.size()),
              "Artisanats | Liste des artisanats | Sélection d'un artisanat magique.\n"
              "Arcanes | Arcanes | 8 | Fabrication des gemmes.\n"
              "Alchimie | Alchimie | 9 | Fabrication de teintures, potions et poisons.\nPanier2");
}

TEST_F(ÉcranMagique, EachCraftShowsItsOwnControlsAndOnlyCountsAreOpenAtFirst)
{
    const auto EnAlchimie = Montrés();
    Prendre("Arcanes");
    EXPECT_EQ(Artisanat(), "Arcanes CraftGrand9");
    const auto EnArcanes = Montrés();
    std::string Communs;
    std::array<int, 2> Propres{};
    for (std::size_t i = 0; i < EnAlchimie.size(); ++i) {
        const Control& Each = *Magie().Controls()[i];
        if (EnAlchimie[i] != EnArcanes[i])
            ++Propres[EnArcanes[i]];
        else if (EnAlchimie[i] && Each.Name().find("Ingdt") == std::string::npos)
            Communs += Each.Name() + " ";
        if (const auto* Boîte = dynamic_cast<const TextBox*>(&Each)) {
            const bool Compte =
                Boîte->Name().find("txt_NbObjetA") == 0 || Boîte->Name().find("txt_ArcanesNb") == 0;
            EXPECT_EQ(Boîte->BackColor() == InputGrey, Compte) << Boîte->Name();
            EXPECT_EQ(Boîte->Locked(), !Compte && Boîte->Name() != "txt_AlchimieObjetSup");
        }
    }
    EXPECT_EQ(Communs, "img_Bannière shp_Artisanat pct_Artisanat lbl_Artisanat Bar_Menus "
                       "shp_AlchimieMatériaux lbl_AlchimieMatériaux shp_AlchimieArtisanat "
                       "lbl_ArtisanatObjet lbl_NiveauCraftAlchimie lbl_NiveauAlchimie "
                       "img_NiveauAlchimie img_NiveauArcanes cmd_AjouterPanier cmd_Retour ");
    EXPECT_EQ(Propres, (std::array{31, 37}));
    Prendre("Alchimie");
    EXPECT_EQ(Artisanat(), "Alchimie CraftGrand10");
    EXPECT_EQ(Montrés(), EnAlchimie);
}

TEST_F(ÉcranMagique, AnActivationStartsOverOnAlchemyAndKeepsTheFigures)
{
    Modifier("Artisanat_Corvane.mdb",
             "UPDATE Arcanes_Produits SET Nom = 'Gemmes obscures' WHERE Num = 1;"
             "UPDATE Arcanes_Bonus SET Nom = 'Dons' WHERE Num = 1;"
             "UPDATE Degrés_Arcanes SET DegréType1 = 'fendue' WHERE NuméroDegré = 3");
    auto& M = Magie();
    EXPECT_EQ(Remplies(), Listes);
    Fabriquer("Effets à déclenchement/Effets d'arme");
    Door.Pick(M.cbo_Type, "feu");
    Tailler(Simple);
    Taper(M.txt_ArcanesNbEssais, "3");
    const std::string Avant = Matériaux() + Arcanes() + Niveau();
    Prendre("OuvrirPanier");
    EXPECT_EQ(Artisanat(), "Arcanes CraftGrand9") << "the basket's entry is no craft";
    Door.Click(Panier().cmd_Retour);
    EXPECT_EQ(Artisanat(), "Alchimie CraftGrand10");
    EXPECT_EQ(Remplies(), Listes) << "once each";
    for (const ComboBox* Liste :
         {&M.cbo_ProduitDétaillé, &M.cbo_Objet, &M.cbo_SousTypeGemmes, &M.cbo_SousTypeBonus})
        EXPECT_EQ(Liste->Text() + Jointes(Liste->Items()), "") << Liste->Name();
    for (const ComboBox* Liste : {&M.cbo_Produit, &M.cbo_Type, &M.cbo_TypeGemmes, &M.cbo_TypeBonus})
        EXPECT_EQ(Liste->Text(), "") << Liste->Name();
    EXPECT_EQ(M.cbo_Type.ListCount(), 11) << "the words stay, hidden";
    EXPECT_FALSE(M.cbo_Type.Visible);
    Door.Click(M.cmd_Retour);
    Door.Click(Accueil().img_Corvane);
    OuvrirMagie();
    EXPECT_EQ(Remplies(), "Effets à déclenchement | Essences | Teintures\n"
                          "Gemmes de zèle | Gemmes obscures | Gemmes pour trophés\n"
                          "Dons | Exploits | Résistances\nbrute | fendue | polie\n");
    Prendre("Arcanes");
    EXPECT_EQ(Matériaux() + Arcanes() + Niveau(), Avant) << "of the other realm";
    EXPECT_EQ(Jointes({M.cbo_DegréGemmes.Text(), M.cbo_DegréBonus.Text(), M.txt_Degré.Text(),
                       M.txt_ArcanesNbEssais.Text(), Jointes(M.cbo_DegréBonus.Items())}),
              "taillée | taillé | 2 | 3 | brut | taillé | poli");
    EXPECT_FALSE(M.cbo_DegréGemmes.Visible || M.lbl_ArcanesDegré.Visible);
}

TEST_F(ÉcranMagique, TheSettingsAreReadAtActivationAndCountFromTheNextRun)
{
    Fabriquer(Bleu); // level 516 against 505
    Door.Type(Réglages().txt_MargeAlchimie, "100");
    Door.Type(Réglages().txt_NiveauAlchimie, "516");
    Door.Type(Réglages().txt_NiveauArcanes, "270");
    Door.Activate(Magie());
    EXPECT_EQ(Alchimie() + " " + Niveau(), "37,5 45 516 CouleurCraft5 essence,") << "not yet";
    EXPECT_EQ(Taper(Magie().txt_NbObjetAlchimie, "2"), "2: 75 150");
    Fabriquer(Bleu);
    EXPECT_EQ(Niveau(), "516 CouleurCraft3 essence,");
    Tailler(Simple);
    EXPECT_EQ(Niveau(), "301 CouleurCraft6 essence,essence");
    Door.Type(Réglages().txt_MargeAlchimie, "beaucoup"); // the last good one stays
    Door.Activate(Magie());
    EXPECT_EQ(Fabriquer(Bleu), "37,5 75");
}

TEST_F(ÉcranMagique, AFlipClearsNothingAndHidesTheListsThatAPickHasShown)
{
    auto& M = Magie();
    Fabriquer(Lame);
    EXPECT_TRUE(M.cbo_Type.Visible && M.lbl_Type.Visible);
    const std::string Avant = Matériaux() + ObjetSup() + Niveau();
    Prendre("Arcanes");
    Prendre("Alchimie");
    EXPECT_EQ(Matériaux() + ObjetSup() + Niveau(), Avant);
    EXPECT_EQ(Alchimie() + M.cbo_Objet.Text(), "33 39,6Lame de feu");
    EXPECT_FALSE(M.cbo_Type.Visible || M.lbl_Type.Visible);
    Tailler(Simple);
    EXPECT_TRUE(M.cbo_DegréBonus.Visible && M.lbl_ArcanesDegré.Visible);
    Prendre("Alchimie");
    Prendre("Arcanes");
    EXPECT_EQ(Arcanes() + M.cbo_DegréGemmes.Text() + M.cbo_Objet.Text(),
              "150 180tailléeLame de feu");
    EXPECT_FALSE(M.cbo_DegréGemmes.Visible || M.cbo_DegréBonus.Visible);
}

} // namespace orvane
