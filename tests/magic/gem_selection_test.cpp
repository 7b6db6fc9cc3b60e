#include "magic/magique.h"

// A gem is named by itself or by its bonus; each side follows the other.
namespace orvane {

class SélectionGemmes : public Magique
{
  protected:
    // Type, sub-type and degree of the gem and of the bonus; "..." before the degrees are shown.
    std::string Choix()
    {
        auto& M = Magie();
        EXPECT_EQ(M.cbo_DegréBonus.Visible(), M.cbo_DegréGemmes.Visible());
        EXPECT_EQ(M.lbl_ArcanesDegré.Visible(), M.cbo_DegréGemmes.Visible());
        return Jointes({M.cbo_TypeGemmes.Text(), M.cbo_SousTypeGemmes.Text(),
                        M.cbo_DegréGemmes.Text(), M.cbo_TypeBonus.Text(),
                        M.cbo_SousTypeBonus.Text(), M.cbo_DegréBonus.Text()}) +
               (M.cbo_DegréGemmes.Visible ? "" : "...");
    }

    // Sub-types of both sides, degrees of the bonus.
    std::string Listes()
    {
        return Jointes(Magie().cbo_SousTypeGemmes.Items()) + " / " +
               Jointes(Magie().cbo_SousTypeBonus.Items()) + " / " +
               Jointes(Magie().cbo_DegréBonus.Items());
    }

    std::string Gemme() { return Matériaux() + " | " + Niveau(); }

    static constexpr auto Veille = "Délicat | Double | Eclatant | Simple / Feu | Glace | Ombre / ";
    const std::string Trois = "cristal x 1 = 30 | poudre x 7 = 70 | fil d'argent x 4 = 50 | ";
};

TEST_F(SélectionGemmes, FromTheGemTheFirstRowGivesTheBonus)
{
    auto& M = Magie();
    Tailler("Gemmes de veille"); // only its last row gives an asset
    EXPECT_EQ(Choix(), "Gemmes de veille |  |  | Résistances |  | ...");
    EXPECT_EQ(Listes(), Veille);
    Door.Pick(M.cbo_SousTypeGemmes, "Simple");
    EXPECT_EQ(Choix(), "Gemmes de veille | Simple |  | Résistances | Feu | ");
    Door.Pick(M.cbo_DegréGemmes, "polie");
    Door.Pick(M.cbo_DegréGemmes, "taillée"); // 1 + 2 × 3 and 1 + 3; 1 + 100 × 3
    EXPECT_EQ(Choix(), "Gemmes de veille | Simple | taillée | Résistances | Feu | taillé");
    EXPECT_EQ(Listes(), Veille + std::string("brut | taillé | poli"));
    EXPECT_EQ(Gemme(), Trois + "- | - | - | 301 CouleurCraft1 ,essence");
    EXPECT_EQ(M.txt_ArcanesPrixRevente.Text(), "30");
    Door.Pick(M.cbo_SousTypeGemmes, "Eclatant");
    EXPECT_EQ(Choix(), "Gemmes de veille | Eclatant |  | Résistances | Glace | ");
    EXPECT_EQ(Gemme(), Vides + std::string(" | 301 CouleurCraft1 ,"))
        << "level: until the next gem";
    EXPECT_EQ(Arcanes() + M.txt_ArcanesPrixRevente.Text(), "0 00");
    Door.Pick(M.cbo_TypeGemmes, "Gemmes de zèle");
    EXPECT_EQ(Choix(), "Gemmes de zèle |  |  | Atouts |  | ...");
}

TEST_F(SélectionGemmes, FromTheBonusTheFirstRowGivesTheGem)
{
    Tailler("Atouts", "Bonus");
    EXPECT_EQ(Choix(), "Gemmes de zèle |  |  | Atouts |  | ...");
    EXPECT_EQ(Listes(), "Claire | Délicate | Eclatante / Éveil | Force | Grâce | Sagesse / "
                        "premier | deuxième | troisième");
    Tailler("Atouts/Éveil", "Bonus"); // the gem's type stays that of the first row
    EXPECT_EQ(Choix(), "Gemmes de zèle | Double |  | Atouts | Éveil | ");
    Tailler("Atouts/Sagesse/deuxième", "Bonus"); // 1 + 1 × 3; 516 + 100 × 3
    EXPECT_EQ(Choix(), "Gemmes de zèle | Claire | taillée | Atouts | Sagesse | deuxième");
    EXPECT_EQ(Gemme(), "cristal x 1 = 30 | encre x 4 = 1,3332 | encre x 4 = 1,3332 | - | - | - | "
                       "816 CouleurCraft7 ,essence");
    Door.Pick(Magie().cbo_SousTypeBonus, "Force");
    EXPECT_EQ(Choix(), "Gemmes de zèle | Eclatante |  | Atouts | Force | ");
    Tailler("Atouts/Sagesse/premier", "Bonus");
    EXPECT_EQ(Tailler("Résistances", "Bonus"), "0 0");
    EXPECT_EQ(Choix(), "Gemmes de veille |  | brute | Résistances |  | ...");
    EXPECT_EQ(Listes(), Veille + std::string("brut | taillé | poli"));
    EXPECT_EQ(Matériaux(), Vides);
}

TEST_F(SélectionGemmes, SomeGemsExistAtTheFirstDegreeOnly)
{
    const std::string Suite = " | poudre x 1 = 10 | fil d'argent x 1 = 12,5 | ";
    const std::string Deux =
        "gangue x 1 = 8" + Suite + "larme x 2 = 0* | braise x 2 = 2,5 | corail x 2 = 4";
    const std::array<std::string, 4> Tous[] = {
        {"Gemmes de veille/Délicat", "Résistances/Ombre",
         "Gemmes de veille | Délicat | brute | Résistances | Ombre | brut", Deux},
        {"Gemmes de zèle/Délicate", "Atouts/Grâce",
         "Gemmes de zèle | Délicate | brute | Atouts | Grâce | premier", Deux},
        {"Gemmes pour trophés/Chasse", "Exploits/Ours",
         "Gemmes pour trophés | Chasse | brute | Exploits | Ours | brute",
         "-" + Suite + "larme x 3 = 0* | braise x 3 = 3,75 | corail x 3 = 6"},
    };
    for (const auto& [DeLaGemme, DuBonus, Nommée, Lignes] : Tous)
        for (const int Entrée : {2, 0}) {
            Tailler(DeLaGemme);
            Door.Pick(Magie().cbo_DegréGemmes, Entrée);
            EXPECT_EQ(Choix() + "\n" + Matériaux(), Nommée + "\n" + Lignes);
            Tailler(DuBonus, "Bonus");
            Door.Pick(Magie().cbo_DegréBonus, Entrée);
            EXPECT_EQ(Choix() + "\n" + Matériaux(), Nommée + "\n" + Lignes);
            EXPECT_EQ(Magie().cbo_DegréGemmes.ListIndex + Magie().cbo_DegréBonus.ListIndex, 0);
            EXPECT_EQ(Magie().txt_ArcanesPrixRevente.Text(), "5");
        }
    EXPECT_EQ(Arcanes(), "32,25 38,7");
}

TEST_F(SélectionGemmes, SomeGemsHaveSixLinesAndOneOfThemGrowsWithTheDegree)
{
    Tailler(Eclatant); // 2 + 6 × 3; 216 + 300, 10 above 506
    EXPECT_EQ(Gemme(), Trois + "larme x 20 = 0* | braise x 20 = 25 | corail x 20 = 40 | "
                               "516 CouleurCraft4 ,");
    EXPECT_EQ(
        ObjetSup(),
        "Claire x 3 = 76,5, 516 CouleurCraft4 essence: fil d'argent x 1 = 12,5 | corail x 4 = 8 | "
        "braise x 4 = 5 | -");
    Tailler("Gemmes de zèle/Eclatante/taillée");
    EXPECT_EQ(Matériaux(), Trois + "larme x 2 = 0* | braise x 2 = 2,5 | corail x 2 = 4");
    EXPECT_EQ(ObjetSup(), "-");
}

TEST_F(SélectionGemmes, AGemTypeKeepsTheFormerWordsOfTheBonusDegreesUntilADegreeOfTheGem)
{
    Tailler("Atouts", "Bonus");
    Tailler("Gemmes de veille/Simple");
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «");
    Door.Pick(Magie().cbo_DegréBonus, "deuxième");
    EXPECT_EQ(Arcanes(), "0 0 ?");
    Door.Pick(Magie().cbo_DegréGemmes, "taillée");
    EXPECT_EQ(Listes(), Veille + std::string("brut | taillé | poli"));
    EXPECT_EQ(Arcanes(), "150 180");
}

TEST_F(SélectionGemmes, AGemWithoutALevelIsToldAndItsPricesAreRefusedUntilTheNextPick)
{
    Modifier("Artisanat_Valdren.mdb",
             "UPDATE Arcanes_ListeObjets SET NiveauCraft = NULL WHERE Bonus = 'Feu'");
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «");
    EXPECT_EQ(Tailler(Simple), "0 0 ?");
    EXPECT_EQ(Taper(Magie().txt_ArcanesNbEssais, "2"), "2: 0 0 ?");
    RefuserAjout();
    EXPECT_EQ(Tailler("Atouts/Éveil/deuxième", "Bonus"), "150 180"); // of the same materials
}

} // namespace orvane
