#include "legendary/legendaire.h"

// How the screen opens, and what each opening begins afresh.
namespace orvane {

using Activation = Légendaire;

TEST_F(Activation, EachTradeListsItsWeaponsAndAllTypes)
{
    for (const auto& [Métier, Liste] :
         {std::pair{"Forge", "Hache des cendres | Lame du couchant | Masse perdue"},
          {"Empennage", "Arc des brumes"}}) {
        Ouvrir(Métier);
        EXPECT_EQ(Jointes(Armes().cbo_Arme.Items()), Liste);
        EXPECT_EQ(Jointes(Armes().cbo_Type.Items()), "d'aube | de brume | du néant");
        EXPECT_EQ(Armes().pct_Craft.Picture(), Atelier().pct_Artisanat.Picture()) << Métier;
        EXPECT_EQ(Images(), "Commun/PasImage.gif | - | - | - | -");
        Compter("3", "2");
        EXPECT_EQ(Prix(), "0 | 0 | 0") << "nothing to calculate, and nothing fails";
    }
    std::string Libres;
    for (Control* Each : Armes().Controls())
        if (auto* Case = dynamic_cast<TextBox*>(Each); Case != nullptr && !Case->Locked) {
            Libres += Case->Name() + " ";
            EXPECT_TRUE(Case->Visible && Case->BackColor() == InputGrey) << Case->Name();
        }
    EXPECT_EQ(Libres, "txt_PrixGemme txt_PrixTeinture txt_PrixSpécial txt_NbObjet txt_NbEssais ");
}

// The manual crafts, when clicked, go back to Couture, which has no legendary weapon. A shield of
// level 410 in yet another trade tells the level in force.
TEST_F(Activation, AnotherTradeHasAnEmptyListOrItsOwnAndKeepsPictureAndLevel)
{
    Ouvrir("Armurerie");
    Arme("Bouclier des dunes");
    EXPECT_EQ(Bandes()[0], '7') << "no level yet: 410 above 0";
    EXPECT_TRUE(Armes().pct_Craft.Picture().IsEmpty());
    Ouvrir("Forge"); // 400
    const Picture Forge = Armes().pct_Craft.Picture();
    Door.Activate(Atelier());
    Door.Activate(Armes());
    EXPECT_EQ(Armes().cbo_Arme.ListCount(), 0) << "and no box";
    EXPECT_EQ(Armes().cbo_Type.ListCount(), 3) << "the steps behind it run";
    Ouvrir("Armurerie");
    Arme("Bouclier des dunes");
    EXPECT_EQ(Bandes()[0], '4');
    EXPECT_EQ(Armes().pct_Craft.Picture(), Forge);
}

TEST_F(Activation, TheBasketClearsTheScreenButForTotalsOfBlocksAndFilesOfIcons)
{
    Ouvrir();
    Arme("Lame du couchant");
    Type("de brume");
    Compter("2", "3");
    Door.Type(Armes().txt_PrixSpécial, "7");
    Door.Click(Armes().cmd_Panier);
    Door.Click(Panier().cmd_Retour);
    EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels | frm_ArmesLégendaires");
    EXPECT_EQ(Armes().cbo_Arme.Text() + Armes().cbo_Type.Text(), "");
    EXPECT_EQ(Armes().cbo_Arme.ListCount() + Armes().cbo_Type.ListCount(), 6) << "filled once";
    EXPECT_EQ(Facture(), " x 1 = 0 |  x 0 = 0 |  x 0 = 0 |  x 0 = 0 |  x 1 = 0");
    EXPECT_EQ(Bloc("Arme"), " x 0 = 0 |  x 0 = 0 |  x 0 = 0 | 19 | ");
    EXPECT_EQ(Bloc("Gemme"), " x 0 = 0 |  x 0 = 0 |  x 0 = 0 | 32 | ");
    EXPECT_EQ(Bloc("Teinture"), " x 0 = 0 |  x 0 = 0 |  x 0 = 0 | 8,5 | ");
    EXPECT_EQ(Infos() + Bandes() + Texte("txt_ObjetNum"), " |  |  |  |  | 0----");
    EXPECT_EQ(Images(), "Commun/PasImage.gif | - | - | - | -");
    EXPECT_EQ(Texte("txt_NbObjet") + Texte("txt_NbEssais") + Prix(), "100 | 0 | 0");

    Type("de brume"); // the former weapon's total counts once, the others by quantities of none
    EXPECT_EQ(Facture(), " x 1 = 19 |  x 0 = 0 | Teinture carmin x 0 = 0 |  x 0 = 0 | "
                         "Larme de givre x 1 = 0");
    EXPECT_EQ(Prix(), "19 | 19 | 20,9");
    Arme("Lame du couchant"); // the files of the icons are the same, and they are shown again
    EXPECT_EQ(Images(), "Valdren/béret.gif | Valdren/Icônes/carquois.gif | "
                        "Valdren/Icônes/béret.gif | Commun/essence.gif | Commun/essence.gif");
    Door.Click(Armes().cmd_Retour);
    EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels");
}

TEST_F(Activation, SettingsAreReadAtEachOneAndAWrongOneKeepsTheLastValue)
{
    Door.Click(Atelier().cmd_Retour);
    OuvrirRéglagesEtAtelier();
    Ouvrir();
    Door.Type(Réglages().txt_EssaiLégendaires, "0");
    for (const auto& [Marge, Prix70] : {std::pair{"2,5", "100 | 170 | 172"}, // 102 + 70
                                        {"abc", "100 | 170 | 172"},
                                        {"50", "100 | 170 | 220"}}) {
        Door.Type(Réglages().txt_MargeLégendaires, Marge);
        Arme("Lame du couchant"); // on a screen that the click has just activated
        Type("d'aube");
        Compter("1", "1");
        EXPECT_EQ(Prix(), Prix70) << Marge;
    }
    Door.Type(Réglages().txt_NiveauForge, "920");
    Door.Type(Réglages().txt_NiveauArcanes, "856");
    Door.Type(Réglages().txt_NiveauAlchimie, "525");
    Arme("Lame du couchant");
    Type("de brume");
    EXPECT_EQ(Bandes(), "4562") << "930 and 950 for Forge, 906 for Arcanes, 515 for Alchimie";
}

} // namespace orvane
