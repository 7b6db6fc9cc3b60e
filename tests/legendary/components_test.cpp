#include "legendary/legendaire.h"

// The five components of a weapon, and the bills of three of them.
namespace orvane {

using Composants = Légendaire;

TEST_F(Composants, AWeaponBringsItsFactsItsOwnBillAndThatOfItsGem)
{
    Ouvrir();
    Arme("Lame du couchant");
    EXPECT_EQ(Infos(), "930 | 51 | 16,5 | 3,2 |  | 30");
    EXPECT_EQ(Bloc("Arme"), "acier d'aube x 2 = 14 | cuir d'aube x 4 = 2 | cuir d'aube x 6 = 3 | "
                            "19 | 950")
        << "names and prices of the types' materials, a level 900 higher";
    EXPECT_EQ(Bloc("Gemme"), "rubis x 1 = 10 | poussière x 28 = 7 | fil d'argent x 10 = 15 | 32 | "
                             "906")
        << "3 × 9 + 1 of the second";
    EXPECT_EQ(Bloc("Teinture"), " x 0 = 0 |  x 0 = 0 |  x 0 = 0 | 0 | ") << "the type's";
    EXPECT_EQ(Prix(), "93 | 93 | 102,3");
    Arme("Hache des cendres");
    EXPECT_EQ(Bloc("Arme"), "acier d'aube x 1 = 7 | cuir d'aube x 2 = 1 | ((aucun) x 1 = 3) | 11 | "
                            "905")
        << "a line without material is hidden, and its price counts";
    EXPECT_EQ(Bloc("Gemme"), "rubis x 1 = 10 | fil d'argent x 1 = 1,5 | poussière x 10 = 2,5 | 14 "
                             "| 916");
    Arme("Lame du couchant");
    EXPECT_TRUE(Bloc("Arme").ends_with("cuir d'aube x 6 = 3 | 19 | 950"));
    Arme("Hache des cendres");
    Ouvrir();
    EXPECT_EQ(Bloc("Arme"), " x 0 = 0 |  x 0 = 0 |  x 0 = 0 | 11 | ");
}

TEST_F(Composants, ATypeBringsADyeWhoseFirstMaterialEndsAsInTheRealm)
{
    Modifier("Artisanat_Brenmoor.mdb", RangéesLégendaires);
    for (const auto& [Écu, Nom] : {std::pair{&Accueil().img_Valdren, "carmin des prés"},
                                   {&Accueil().img_Brenmoor, "carmin des dunes"}}) {
        Door.Click(Atelier().cmd_Retour);
        Door.Click(*Écu);
        OuvrirAtelier();
        Ouvrir();
        Type("de brume");
        EXPECT_EQ(Bloc("Teinture"), std::string(Nom) + " x 1 = 1,5 | alun* x 4 = 1 | suc* x 3 = 6 "
                                                       "| 8,5 | 515")
            << "the level as it is";
        EXPECT_EQ(Infos() + Texte("txt_Spécial"), " |  |  |  | Froid | 0Larme de givre");
    }
    Type("d'aube");
    EXPECT_EQ(Texte("txt_MatTeinture1"), "noix verte");
}

TEST_F(Composants, EitherChoiceMayComeFirstAndTheDyeFollowsTheWeaponsQuantity)
{
    const auto Attendue = "Glaive nu x 1 = 19 | Gemme de feu x 2 = 64 | Teinture de noix x 2 = 7 | "
                          "néthérium x 4 = 10 | Plume de phénix x 1 = 0";
    Ouvrir();
    Type("d'aube");
    Arme("Lame du couchant");
    EXPECT_EQ(Facture() + Prix(), Attendue + std::string("100 | 100 | 110"));
    Arme("Hache des cendres");
    EXPECT_EQ(Facture(), "Hache nue x 1 = 11 | Gemme de glace x 1 = 14 | Teinture de noix x 5 = "
                         "17,5 | néthérium x 2 = 5 | Plume de phénix x 1 = 0");
    EXPECT_EQ(Prix(), "47,5 | 47,5 | 52,25");
    Ouvrir();
    Arme("Lame du couchant");
    Type("d'aube");
    EXPECT_EQ(Facture() + Prix(), Attendue + std::string("100 | 100 | 110"));
}

TEST_F(Composants, PicturesAreOfTheRealmOrCommonAndSomeHaveAPlaceholder)
{
    const std::string Sien = "Valdren/Icônes/béret.gif | Commun/essence.gif | ";
    Ouvrir();
    Arme("Lame du couchant"); // no look at the weapon before both choices
    EXPECT_EQ(Images(), "Commun/PasImage.gif | - | " + Sien + "-");
    Type("de brume");
    EXPECT_EQ(Images(),
              "Valdren/béret.gif | Valdren/Icônes/carquois.gif | " + Sien + "Commun/essence.gif");
    Type("d'aube"); // neither picture nor icon in this type, and a dye without one
    EXPECT_EQ(Images(), "Commun/PasImage.gif | - | " + Sien + "Commun/PasImage.gif");
    Arme("Hache des cendres"); // components without icons
    EXPECT_EQ(Images(), "Valdren/béret.gif | Valdren/Icônes/béret.gif | - | - | "
                        "Commun/PasImage.gif");
}

} // namespace orvane
