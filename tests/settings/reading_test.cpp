#include "support/petit_dossier.h"

// When and how the craft screens read the settings.
namespace orvane {

namespace {

class Lecture : public EnMarche
{
};

} // namespace

// One object and one trial: cost × (1 + margin) + (cost - resale) × (1 + margin on trials).
TEST_F(Lecture, EachTradeReadsItsOwnLevelAndMargins)
{
    struct Cas
    {
        const char* Métier;
        std::vector<const char*> Chemin;
        const char* Vente;
        int Bande;
    };
    const Cas LesCas[] = {
        // 40 × 1,3 + 33 × 1,05; 310 - 200
        {"Armurerie", {"Mailles", "Coiffes", "Heaume", "fin"}, "86,65", 7},
        // 10 × 1,2 + 6 × 1,1; 50 - 100
        {"Couture", {"Tissu", "Robes", "Robe 0", "brut"}, "18,6", 1},
        // 40 × 1,4 + 33 × 1,15; 320 - 300
        {"Empennage", {"Arcs", "Arcs longs", "Arc", "fin"}, "93,95", 5},
        // 50 × 1,5 + 42 × 1,25; 420 - 400
        {"Forge", {"Épées", "Épées courtes", "Glaive", "vif"}, "127,5", 5},
    };
    OuvrirAtelier();
    Door().Type(Atelier().txt_NbEssais, "1");
    for (const Cas& Each : LesCas) {
        Choisir(Each.Métier, Each.Chemin[0], Each.Chemin[1], Each.Chemin[2], Each.Chemin[3]);
        EXPECT_EQ(Atelier().txt_PrixVente.Text(), Each.Vente) << Each.Métier;
        EXPECT_EQ(Atelier().img_Niveau.Picture(),
                  Réglages().imglst_CouleurCraft.Picture(Each.Bande))
            << Each.Métier;
    }
}

TEST_F(Lecture, ATypedValueCountsFromTheNextReadingOnUnvalidated)
{
    OuvrirRéglagesEtAtelier();
    ChoisirBéret();
    Door().Type(Réglages().txt_MargeCouture, "60");
    Door().Type(Réglages().txt_EssaiCouture, "30");
    EXPECT_EQ(Totaux(), "12,5 | 12,5 | 15") << "not before";
    Door().Type(Atelier().txt_NbEssais, "1"); // the screen is activated first
    ChoisirBéret();
    // 12,5 × 1,6 + 8,5 × 1,3
    EXPECT_EQ(Totaux(), "12,5 | 21 | 31,05");
}

TEST_F(Lecture, SettingsAreRoundedToWholeNumbersAndWrongOnesKeepTheLastValue)
{
    const std::pair<const char*, const char*> Cas[] = {
        {"2,5", "10,2"}, // ties to even: 2
        {"3,5", "10,4"}, {"abc", "10,4"}, {"", "10,4"}, {"40000", "10,4"},
        {"-10", "9"},    {"1e1", "9"},    {"0", "10"},
    };
    OuvrirRéglagesEtAtelier();
    for (const auto& [Marge, Vente] : Cas) {
        Door().Type(Réglages().txt_MargeCouture, Marge);
        Door().Activate(Atelier());
        Choisir("Couture", "Tissu", "Robes", "Robe 0", "brut");
        EXPECT_EQ(Atelier().txt_PrixVente.Text(), Vente) << "margin " << Marge;
    }
}

TEST_F(Lecture, AWrongLevelKeepsTheLastOneForTheIndicatorToo)
{
    OuvrirRéglagesEtAtelier();
    Door().Type(Réglages().txt_NiveauCouture, "douze");
    EXPECT_TRUE(Réglages().txt_NiveauCouture.Marked);
    ChoisirBéret("simple"); // 147 - 100
    EXPECT_EQ(Atelier().img_Niveau.Picture(), Réglages().imglst_CouleurCraft.Picture(6));
}

TEST_F(Lecture, ARealmClickRefreshesTheOpenScreenAtOnce)
{
    Door().Click(Accueil().cmd_Configuration);
    Door().Click(Accueil().img_Brenmoor);
    std::vector<std::string> Textes;
    for (const RéglagesArtisanat& Each : Réglages().Réglages())
        for (const TextBox* Case : {Each.Niveau, Each.Marge, Each.Essai})
            Textes.push_back(Case == nullptr ? "-" : Case->Text());
    EXPECT_EQ(Jointes(Textes),
              "202 | 32 | 7 | 102 | 22 | 12 | 302 | 42 | 17 | 402 | 52 | 27 | 507 | 67 | - | "
              "508 | 68 | 78 | 509 | 69 | - | 510 | - | - | 511 | 71 | - | 512 | 72 | - | "
              "- | 73 | 83");
}

TEST_F(Lecture, ColumnsOfARealm)
{
    EXPECT_EQ(frm_Configuration::ColonnesPour("Corvane"),
              "Num, CraftCorvane, Marges1Corvane, Marges2Corvane");
}

} // namespace orvane
