#include "support/petit_dossier.h"

// The screen as it is first seen.
namespace orvane {

namespace {

class Définition : public DansLAtelier
{
  protected:
    template <class Kind>
    Kind& Trouver(const std::string& Nom)
    {
        return dynamic_cast<Kind&>(Atelier().Find(Nom));
    }
};

} // namespace

TEST_F(Définition, TheMenuHasTwoGroups)
{
    std::vector<std::string> Entrées;
    const SideMenu::Colours Couleurs{RGB(0, 0, 0), RGB(255, 255, 255), RGB(255, 255, 255),
                                     RGB(100, 100, 100)};
    for (const SideMenu::Bar& Groupe : Atelier().Bar_Menus.Bars()) {
        Entrées.push_back(Jointes({Groupe.Key, Groupe.Title, Groupe.Tip}));
        EXPECT_EQ(Groupe.TheColours, Couleurs) << Groupe.Key;
        for (const SideMenu::Item& Each : Groupe.Items)
            Entrées.push_back(Jointes({Each.Text, Each.Key, std::to_string(Each.Icon), Each.Tip}));
    }
    EXPECT_EQ(Entrées, (std::vector<std::string>{
                           "Artisanats | Liste des artisanats | Sélection d'un artisanat manuel.",
                           "Armurerie | Armurerie | 7 | Fabrication des armures en métal.",
                           "Couture | Couture | 6 | Fabrication des armures en tissu et en cuir.",
                           "Empennage | Empennage | 5 | Fabrication des armes en bois.",
                           "Forge | Forge | 4 | Fabrication des armes en métal.",
                           "Panier | Panier | Gestion du panier.",
                           "Voir le panier | OuvrirPanier | 10 | "}));
    EXPECT_EQ(Atelier().Bar_Menus.SmallIcons(), &Réglages().imglst_CraftPetit);
    EXPECT_EQ(Atelier().Bar_Menus.Bars()[0].Picture, Réglages().pct_Logo.Picture());
}

TEST_F(Définition, Captions)
{
    const std::pair<const char*, const char*> Titres[] = {
        {"lbl11", "Choix de l'objet à fabriquer"},
        {"lbl14", "Produit :"},
        {"lbl15", "Produit détaillé :"},
        {"lbl16", "Objet :"},
        {"lbl_Degré", "Degré :"},
        {"lbl_TypeDégats", "Type :"},
        {"lbl12", "Niveau"},
        {"lbl31", "Informations sur l'objet"},
        {"lbl32", "Niveau :"},
        {"lbl_AF", "AF :"},
        {"lbl_Dps", "Dps : "},
        {"lbl_Vit", "Vit. :"},
        {"lbl_BonusSpécial", "Bonus spécial : "},
        {"lbl21", "Matériaux"},
        {"lbl_MatX6", "x"},
        {"lbl_Mat6", "="},
        {"lbl23", "Prix coûtant :"},
        {"lbl22", "Prix de revente à un PNJ :"},
        {"lbl_InfosVente", "Informations de vente"},
        {"lbl411", "Nb d'objets :"},
        {"lbl44", "Nb d'essais suppl. :"},
        {"lbl48", "Prix coûtant :"},
        {"lbl42", "Prix de vente :"},
        {"lbl_ObjetSup", "Objet nécessaire"},
        {"lbl_NbObjetSup", "Nb :"},
        {"lbl_ObjetSupNiveau", "Niveau :"},
        {"lbl_ObjetSUpPrixCoûtant", "Prix :"},
    };
    for (const auto& [Nom, Titre] : Titres)
        EXPECT_EQ(Trouver<Label>(Nom).Caption(), Titre) << Nom;
    EXPECT_EQ(Atelier().Caption(), "Artisanats Manuels");
}

TEST_F(Définition, WhatIsHidden)
{
    std::string Cachés;
    for (const Control* Each : Atelier().Controls())
        if (!Each->Visible)
            Cachés += " " + Each->Name();
    Cachés += " ";
    for (const std::string Nom : {"lbl_Degré",
                                  "cbo_Degré",
                                  "lbl_TypeDégats",
                                  "cbo_TypeDégats",
                                  "txt_AF",
                                  "lbl_AF",
                                  "txt_Dps",
                                  "lbl_Dps",
                                  "txt_Vit",
                                  "lbl_Vit",
                                  "txt_BonusSpécial",
                                  "lbl_BonusSpécial",
                                  "shp_ObjetSup",
                                  "lbl_ObjetSup",
                                  "txt_ObjetSup",
                                  "txt_NbObjetSup",
                                  "lbl_NbObjetSup",
                                  "lbl_ObjetSupNiveau",
                                  "lbl_ObjetSupNiveauCraft",
                                  "img_ObjetSupNiveau",
                                  "img_ObjetSup",
                                  "txt_ObjetSUpPrixCoûtant",
                                  "lbl_ObjetSUpPrixCoûtant",
                                  "txt_MatSup1",
                                  "lbl_MatSupX2",
                                  "txt_MatSupQté3",
                                  "lbl_MatSup4",
                                  "txt_PrixMatSup4",
                                  "txt_MatériauxBruts1",
                                  "txt_PrixMatUnitaire6",
                                  "txt_PrixMatSuptUnitaire4",
                                  "txt_Sup",
                                  "txt_Image",
                                  "txt_Icône",
                                  "txt_IconeObjetSup",
                                  "txt_ObjetSupBis"})
        EXPECT_NE(Cachés.find(" " + Nom + " "), std::string::npos) << Nom;
    for (const std::string Nom :
         {"txt_Niveau", "lbl32", "img_Icône", "img_Objet", "txt_PrixMat6", "cmd_AjouterPanier"})
        EXPECT_EQ(Cachés.find(" " + Nom + " "), std::string::npos) << Nom;
}

TEST_F(Définition, OnlyTheCountsAreOpenToTyping)
{
    for (Control* Each : Atelier().Controls())
        if (Each->Kind() == ControlKind::TextBox) {
            const auto& Case = dynamic_cast<TextBox&>(*Each);
            const bool Libre = Case.Name() == "txt_NbObjet" || Case.Name() == "txt_NbEssais";
            if (Case.Visible) {
                EXPECT_EQ(Case.Locked(), !Libre) << Case.Name();
                EXPECT_EQ(Case.BackColor(), Libre ? InputGrey : White) << Case.Name();
            }
        }
    EXPECT_FALSE(Atelier().txt_ObjetSup.Locked || Atelier().txt_ObjetSUpPrixCoûtant.Locked);
    EXPECT_EQ(Atelier().txt_ObjetSUpPrixCoûtant.BackColor(), InputGrey);
}

TEST_F(Définition, InitialTexts)
{
    EXPECT_EQ(Atelier().txt_NbObjet.Text(), "1");
    EXPECT_EQ(Atelier().txt_NbEssais.Text(), "0");
    EXPECT_EQ(Atelier().txt_NbObjetSup.Text(), "1");
    EXPECT_EQ(Totaux(), "0 | 0 | 0");
    EXPECT_EQ(Lignes(), "0 | 0 | 0 | 0 | 0 | 0");
    Door().Type(Atelier().txt_PrixVente, "5");
    EXPECT_EQ(Totaux(), "0 | 0 | 0") << "a locked box takes no typing";
}

} // namespace orvane
