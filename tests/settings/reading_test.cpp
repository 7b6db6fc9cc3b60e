#include "settings/affichage.h"
#include "support/expect_fails.h"
#include "support/petit_dossier.h"

// How the craft screens read the settings, and the indicator that goes by them.
namespace orvane {

class Lecture : public EnMarche
{
  protected:
    int Bande()
    {
        int Rang = Réglages().imglst_CouleurCraft.Count();
        while (Rang > 0 &&
               !(Réglages().imglst_CouleurCraft.Picture(Rang) == Atelier().img_Niveau.Picture()))
            --Rang;
        return Rang;
    }
};

// One object and one trial: cost × (1 + margin) + (cost - resale) × (1 + margin on trials).
TEST_F(Lecture, EachTradeHasItsLevelMarginsAndPicture)
{
    struct Cas
    {
        const char* Chemin;
        const char* Vente;
        int Bande;
        int Image;
    };
    const Cas LesCas[] = {
        {"Armurerie/Mailles/Coiffes/Heaume/fin", "86,65", 7, 8}, // 40, 33; 310 - 200
        {"Couture/Tissu/Robes/Robe 0/brut", "18,6", 1, 7},       // 10, 6; 50 - 100
        {"Empennage/Arcs/Arcs longs/Arc/fin", "93,95", 5, 6},    // 40, 33; 320 - 300
        {"Forge/Épées/Épées courtes/Glaive/vif", "127,5", 5, 5}, // 50, 42; 420 - 400
    };
    OuvrirAtelier();
    Door.Type(Atelier().txt_NbEssais, "1");
    for (const Cas& Each : LesCas) {
        Choisir(Each.Chemin);
        EXPECT_EQ(Atelier().txt_PrixVente.Text(), Each.Vente) << Each.Chemin;
        EXPECT_EQ(Bande(), Each.Bande) << Each.Chemin;
        EXPECT_EQ(Atelier().pct_Artisanat.Picture(),
                  Réglages().imglst_CraftGrand.Picture(Each.Image));
    }
}

// A hat of 10 and the margin as typed, not validated; a wrong one keeps the last.
TEST_F(Lecture, SettingsAreRoundedAndWrongOnesKeepTheLastValue)
{
    const std::pair<const char*, const char*> Cas[] = {
        {"2,5", "10,2"},   {"3,5", "10,4"}, {"abc", "10,4"}, {"", "10,4"},
        {"40000", "10,4"}, {"-10", "9"},    {"1e1", "9"},    {"0", "10"}};
    OuvrirRéglagesEtAtelier();
    for (const auto& [Marge, Vente] : Cas) {
        Door.Type(Réglages().txt_MargeCouture, Marge);
        Choisir("Couture/Tissu/Robes/Robe 0/brut");
        EXPECT_EQ(Atelier().txt_PrixVente.Text(), Vente) << "margin " << Marge;
    }
}

TEST_F(Lecture, ARealmClickRefreshesTheOpenScreenAtOnce)
{
    Door.Click(Accueil().cmd_Configuration);
    Door.Click(Accueil().img_Brenmoor);
    std::vector<std::string> Textes;
    for (const RéglagesArtisanat& Each : Réglages().Réglages())
        for (const TextBox* Case : {Each.Niveau, Each.Marge, Each.Essai})
            Textes.push_back(Case == nullptr ? "-" : Case->Text());
    EXPECT_EQ(Jointes(Textes),
              "202 | 32 | 7 | 102 | 22 | 12 | 302 | 42 | 17 | 402 | 52 | 27 | 507 | 67 | - | "
              "508 | 68 | 78 | 509 | 69 | - | 510 | - | - | 511 | 71 | - | 512 | 72 | - | "
              "- | 73 | 83");
    EXPECT_EQ(frm_Configuration::ColonnesPour("Corvane"),
              "Num, CraftCorvane, Marges1Corvane, Marges2Corvane");
}

TEST_F(Lecture, EveryBoundOfTheBands)
{
    constexpr std::pair<int, int> Bornes[] = {{-31, 1}, {-30, 2}, {-10, 2}, {-9, 3},
                                              {0, 3},   {1, 4},   {10, 4},  {11, 5},
                                              {30, 5},  {31, 6},  {50, 6},  {51, 7}};
    OuvrirRéglagesEtAtelier();
    for (const auto& [Écart, Couleur] : Bornes) { // an object of level 147
        Door.Type(Réglages().txt_NiveauCouture, std::to_string(147 - Écart));
        Choisir("Couture/Tissu/Chapeaux/Béret/simple");
        EXPECT_EQ(Bande(), Couleur) << "difference " << Écart;
    }
    ChangerCouleurCraft(App, "157,5", 147, Atelier().img_Niveau); // 158: ties to even
    EXPECT_EQ(Bande(), 5);
    EXPECT_FAILS(WrongText, ChangerCouleurCraft(App, "", 1, Atelier().img_Niveau));
    EXPECT_FAILS(Overflow, ChangerCouleurCraft(App, "-32768", 1, Atelier().img_Niveau));
}

} // namespace orvane
