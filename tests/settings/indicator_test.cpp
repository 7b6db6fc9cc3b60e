#include "settings/affichage.h"
#include "support/expect_fails.h"
#include "support/petit_dossier.h"

#include <cstdint>

// The seven bands of difficulty, and the image lists.
namespace orvane {

namespace {

class Indicateur : public EnMarche
{
};

// Difference of the object's level from the crafter's, and the band's colour.
struct Borne
{
    int Écart;
    int Couleur;
};

constexpr Borne Bornes[] = {{-31, 1}, {-30, 2}, {-10, 2}, {-9, 3}, {0, 3},  {1, 4},
                            {10, 4},  {11, 5},  {30, 5},  {31, 6}, {50, 6}, {51, 7}};

} // namespace

TEST_F(Indicateur, EveryBoundOfTheBands)
{
    OuvrirRéglagesEtAtelier();
    for (const Borne& Each : Bornes) {
        Door().Type(Réglages().txt_NiveauCouture, std::to_string(147 - Each.Écart));
        ChoisirBéret("simple"); // level 47 + 100
        EXPECT_EQ(Atelier().img_Niveau.Picture(),
                  Réglages().imglst_CouleurCraft.Picture(Each.Couleur))
            << "difference " << Each.Écart;
    }
}

TEST_F(Indicateur, AnObjectLevelIsRoundedAndMustBeANumber)
{
    Image& Cible = Atelier().img_Niveau;
    const std::pair<const char*, int> Cas[] = {{"110,5", 4}, {"111,5", 5}, {"110,5001", 5}};
    for (const auto& [Niveau, Couleur] : Cas) { // 110, 112 and 111 against 100
        ChangerCouleurCraft(App, Niveau, 100, Cible);
        EXPECT_EQ(Cible.Picture(), Réglages().imglst_CouleurCraft.Picture(Couleur)) << Niveau;
    }
    EXPECT_FAILS(WrongText, ChangerCouleurCraft(App, "", 100, Cible));
    EXPECT_FAILS(Overflow, ChangerCouleurCraft(App, "-32768", 1, Cible));
    ChangerCouleurCraft(App, "1", 1, Cible);
    EXPECT_EQ(Cible.Picture(), Réglages().imglst_CouleurCraft.Picture(3)) << "design levels";
}

TEST_F(Indicateur, ThreeListsInTheirSizes)
{
    EXPECT_EQ(Réglages().imglst_CouleurCraft.Count(), 7);
    EXPECT_EQ(Réglages().imglst_CouleurCraft.Size(), 24);
    EXPECT_EQ(Réglages().imglst_CraftPetit.Count(), 11);
    EXPECT_EQ(Réglages().imglst_CraftPetit.Size(), 16);
    EXPECT_EQ(Réglages().imglst_CraftGrand.Count(), 11);
    EXPECT_EQ(Réglages().imglst_CraftGrand.Size(), 32);
}

TEST_F(Indicateur, EachTradeHasItsLargePicture)
{
    const std::pair<const char*, int> Images[] = {
        {"Armurerie", 8}, {"Couture", 7}, {"Empennage", 6}, {"Forge", 5}};
    OuvrirAtelier();
    EXPECT_EQ(Atelier().pct_Artisanat.Picture(), Réglages().imglst_CraftGrand.Picture(7))
        << "activation takes Couture";
    for (const auto& [Métier, Rang] : Images) {
        Door().ClickItem(Atelier().Bar_Menus, Métier);
        EXPECT_EQ(Atelier().pct_Artisanat.Picture(), Réglages().imglst_CraftGrand.Picture(Rang))
            << Métier;
    }
}

} // namespace orvane
