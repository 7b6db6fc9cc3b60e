#include "magic/magique.h"

// The walk from a product down to one object, and all that its row brings.
namespace orvane {

class SélectionAlchimie : public Magique
{
  protected:
    // Of the objects: the text, then the list.
    std::string Objets()
    {
        return Magie().cbo_Objet.Text() + ": " + Jointes(Magie().cbo_Objet.Items());
    }

    // Level, effect, duration, value, resistance, charges, "-" for one that is hidden; craft level.
    std::string Traits()
    {
        std::string Textes;
        for (const std::string Nom : {"Niveau", "Effet", "Durée", "Valeur", "Résist", "Charges"}) {
            const TextBox& Trait = Case("txt_" + Nom + "Objet");
            const Control& Titre =
                Magie().Find("lbl_" + (Nom == "Valeur" ? "valeur" : Nom) + "Objet");
            EXPECT_EQ(Trait.Visible(), Titre.Visible()) << Nom;
            Textes += (Trait.Visible ? Trait.Text() : "-") + " | ";
        }
        return Textes + Niveau();
    }
};

TEST_F(SélectionAlchimie, EachPickFillsTheListBelowAndClearsWhatLiesUnderIt)
{
    auto& M = Magie();
    EXPECT_EQ(M.cbo_ProduitDétaillé.Width(), 3855);
    Fabriquer(Lame);
    EXPECT_EQ(Jointes(M.cbo_ProduitDétaillé.Items()),
              "Bombes | Charges | Effets d'arme | Effets d'armure");
    EXPECT_EQ(Objets(), "Lame de feu: Lame à épine | Lame de feu | Lame de feu et de glace");
    EXPECT_EQ(M.cbo_ProduitDétaillé.Width(), 1815);
    Door.Pick(M.cbo_ProduitDétaillé, "Effets d'armure");
    EXPECT_EQ(Objets(), ": Huile ardente | Souffle");
    Door.Pick(M.cbo_Type, "feu");
    EXPECT_EQ(Fabriquer("Teintures"), "0 0");
    EXPECT_EQ(Jointes(M.cbo_ProduitDétaillé.Items()), "Étoffes");
    EXPECT_EQ(M.cbo_ProduitDétaillé.Text() + M.cbo_Type.Text() + Objets(), ": ");
    EXPECT_EQ(M.cbo_Type.ListCount(), 12) << "the words stay";
    EXPECT_FALSE(M.cbo_Type.Visible || M.lbl_Type.Visible);
    EXPECT_EQ(M.cbo_ProduitDétaillé.Width(), 3855);
    EXPECT_EQ(Matériaux(), Vides);
    EXPECT_EQ(Traits(), "20 | Brûlure | 5 s | 9 | - | 4 | 516 CouleurCraft5 essence,")
        << "till the next";
}

TEST_F(SélectionAlchimie, TheWordsToFilterByGoWithTheDetail)
{
    const std::pair<const char*, const char*> Détails[] = {
        {"Effets à déclenchement/Charges",
         "absorbante | aiguisante | célérité | changeante | énergie | épineuse | esprit | "
         "estropiante | feu | flétrissante | fusionnante | glace | illumination | neutralisante | "
         "renforçante | revigorante | transmission"},
        {"Effets à déclenchement/Effets d'arme",
         "célérité | diminution | énergie | épine | érosion | esprit | feu | fusionnante | glace | "
         "provocante | renforçante"},
        {"Effets à déclenchement/Effets d'armure",
         "célérité | diminution | drainante | énergie | épineuse | érosion | esprit | feu | "
         "fusionnante | glace | renforçante | volutes"},
        {"Teintures/Étoffes", "énergie | esprit | feu | glace"},
    };
    for (const auto& [Chemin, Mots] : Détails) {
        Fabriquer(Chemin);
        EXPECT_EQ(Jointes(Magie().cbo_Type.Items()), Mots) << Chemin;
    }
}

TEST_F(SélectionAlchimie, AWordFiltersTheWholeDetailAndOneWithoutObjectsLeavesTheList)
{
    Fabriquer(Lame);
    for (const auto& [Mot, Liste] :
         {std::pair{"feu", ": Lame de feu | Lame de feu et de glace"},
          std::pair{"épine", ": Lame à épine"}, std::pair{"glace", ": Lame de feu et de glace"}}) {
        Door.Pick(Magie().cbo_Type, Mot);
        EXPECT_EQ(Objets() + Alchimie(), Liste + std::string("0 0"));
    }
    Door.Pick(Magie().cbo_Objet, "Lame de feu et de glace");
    EXPECT_EQ(Alchimie(), "11,5 13,8"); // 3 + 8,5
    Door.Pick(Magie().cbo_Type, "énergie");
    EXPECT_EQ(Objets(), "Lame de feu et de glace: Lame de feu et de glace");
    EXPECT_EQ(Alchimie() + ObjetSup(), "0 0-");
}

TEST_F(SélectionAlchimie, AnObjectBringsItsLinesItsLevelAndItsCharacteristics)
{
    const std::array<const char*, 4> Tous[] = {
        {"Bleu roi", "cobalt x 1 = 12,5 | garance x 5 = 25 | - | - | - | -",
         "12 | Teinte | - | 12 | - | - | 516 CouleurCraft5 essence,", "7,5"}, // 11 above
        {"Vert d'eau",
         "cobalt x 1 = 12,5 | eau x 4 = 0 | garance x 2 = 10 | eau x 3 = 0 | suif x 2 = 5 | "
         "cendre fine x 10 = 12,345",
         "2 | Teinte | - | - | - | - | 510 CouleurCraft4 ,", "2"},
        {"Gris cendre", "cendre fine x 1 = 1,2345 | - | - | - | - | -",
         "1 | Brûlure | 1 h | - | feu | 3 | 495 CouleurCraft2 ,", "0"}, // 10 below
    };
    for (const auto& [Objet, Lignes, Lus, Revente] : Tous) {
        Fabriquer(std::string("Teintures/Étoffes/") + Objet);
        EXPECT_EQ(Matériaux(), Lignes);
        EXPECT_EQ(Traits(), Lus);
        EXPECT_EQ(Magie().txt_PrixReventeAlchimie.Text(), Revente);
        EXPECT_EQ(ObjetSup(), "-") << "it needs none";
    }
    Prendre("Alchimie"); // shows and hides by itself, until the next pick
    EXPECT_EQ(Traits(), "1 | Brûlure | 1 h | N/A | feu | - | 495 CouleurCraft2 ,");
    Fabriquer("Teintures/Étoffes/Gris cendre");
    EXPECT_EQ(Traits(), Tous[2][2]);
}

TEST_F(SélectionAlchimie, ANameThatEndsByRealmDoesSoInEffectsAndInBarsOfMetalOnly)
{
    const std::tuple<Image&, const char*, const char*> Royaumes[] = {
        // level 506, 507, 505
        {Accueil().img_Corvane, "brume du sud", "4 essence: Barres de métal trempé à l'obric"},
        {Accueil().img_Brenmoor, "brume de l'est", "4 essence: Barres de métal trempé au ferron"},
        {Accueil().img_Valdren, "brume du nord", "5 essence: Barres de métal trempé au dyr"},
    };
    Modifier("Artisanat_Alchimie.mdb", "UPDATE ListeObjets SET Mat1 = 11 WHERE Nom = 'Bleu roi'");
    for (const auto& [Écu, Brume, Barres] : Royaumes) {
        Door.Click(Magie().cmd_Retour);
        Door.Click(Écu);
        OuvrirMagie();
        Fabriquer(Lame);
        EXPECT_EQ(Matériaux(), std::string(Brume) + " x 1 = 3 | - | - | - | - | -");
        EXPECT_EQ(ObjetSup(), std::string("Huile ardente x 2 = 30, 516 CouleurCraft") + Barres +
                                  " x 1 = 10 | suif x 2 = 5 | - | -");
        Door.Pick(Magie().cbo_Objet, "Lame de feu et de glace");
        EXPECT_EQ(ObjetSup(), "Souffle x 1 = 8,5, 495 CouleurCraft2 : brume* x 1 = 3 | "
                              "sel x 4 = 2 | cire x 2 = 0,5 | ambre x 4 = 3");
        EXPECT_EQ(Niveau(), "510 CouleurCraft4 ,") << "the icon's file is missing";
        Fabriquer(Bleu);
        EXPECT_EQ(Magie().txt_Ingdt[1].Text(), "brume*") << "as it is stored";
    }
}

TEST_F(SélectionAlchimie, ARowWithoutAValueIsToldAndItsPricesAreRefusedUntilTheNextPick)
{
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «");
    EXPECT_EQ(Fabriquer("Essences/Essences d'arme/Essence de feu d'arme d'arcanium"), "0 0 ?");
    EXPECT_EQ(Taper(Magie().txt_NbObjetAlchimie, "2"), "2: 0 0 ?") << "half of it is there";
    RefuserAjout();
    EXPECT_EQ(Fabriquer(Bleu), "37,5 45");
}

} // namespace orvane
