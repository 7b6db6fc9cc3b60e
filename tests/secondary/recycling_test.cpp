#include "secondary/secondaire.h"

// What making objects for a merchant gains.
namespace orvane {

class Recyclage : public Secondaire
{
  protected:
    void SetUp() override
    {
        Secondaire::SetUp();
        Menu("Tissage");
    }

    void Saisir(const std::string& Nombre, const std::string& Coût)
    {
        Door.Type(Écran().txt_NbObjet, Nombre);
        Door.Type(Écran().txt_CoûtSuppl, Coût);
    }
};

TEST_F(Recyclage, NothingIsNamedOrPricedBeforeADegree)
{
    Objet("Coiffe à couronne");
    EXPECT_TRUE(Écran().img_Icône.Picture().IsEmpty());
    Objet("Étoles");
    EXPECT_EQ(Degrés(), "brut | simple | fin | rare | royal | noble | parfait");
    EXPECT_EQ(Rangées(), " x 2 = 0 |  x 5 = 0 |  x 1 = 0 | -");
    EXPECT_EQ(Gain() + Niveau(), "0 | 0 | 0 -");
    EXPECT_EQ(Écran().img_Icône.Picture().File, Dossier / "Objets/Valdren/Icônes/béret.gif");
    Menu("Maroquinerie");
    Objet("Sangles");
    EXPECT_EQ(Degrés(), "terne | poli | clair | vif | doré | brillant | étincelant");
    Degré("terne"); // 7 × 1 and 2 × 0,5
    EXPECT_EQ(Rangées(), "rareté 0 x 7 = 7 | fil 0 x 2 = 1 | - | -");
}

TEST_F(Recyclage, ADegreeGivesNamesPricesResaleAndAHundredLevels)
{
    Objet("Étoles");
    for (const auto& [Nom, Lignes, Prix] : // the cost takes no part in the gain
         {std::tuple{"brut", "lin 0 x 2 = 10 | fil 0 x 5 = 2,5 | (aucun) x 1 = 0 | -",
                     "12,5 | 12,5 | 12,5 50 1"},
          {"fin", "lin 3 x 2 = 40 | fil 3 x 5 = 10 | (aucun) x 1 = 0 | -", "50 | 31 | 31 350 1"},
          {"simple", "lin 1 x 2 = 20 | fil 1 x 5 = 5 | (aucun) x 1 = 0 | -",
           "25 | 20 | 20 150 1"}}) {
        Degré(Nom);
        EXPECT_EQ(Rangées(), Lignes) << "(aucun) hides nothing here";
        EXPECT_EQ(Gain() + " " + Niveau(), Prix);
    }
}

TEST_F(Recyclage, CodesOfAPatternAndOfNoMaterial)
{
    Objet("Étoles");
    Degré("fin");
    Objet("Coiffe à couronne"); // quantities beside the former names, prices and gain
    EXPECT_EQ(Rangées(), "lin 3 x 3 = 40 | fil 3 x 1 = 10 | - | -");
    EXPECT_EQ(Gain() + " " + Niveau(), "50 | 31 | 31 350 1");
    Degré("fin");
    EXPECT_EQ(Rangées(), "Patron pour couronne tressée x 3 = 0,015 | fil 3 x 1 = 2 | - | -");
    Objet("Couronne tressée");
    Degré("simple"); // a row without material counts nothing, though it has figures
    EXPECT_EQ(Rangées(), "Patron pour chapeau pointu x 3 = 0,015 | - | fil 1 x 4 = 4 | -");
    EXPECT_EQ(Gain() + " " + Écran().txt_PrixMat[2].Text(), "4,015 | 2 | 2 0");
    Objet("Coiffe à couronne");
    Degré("simple");
    EXPECT_EQ(Gain() + " " + Écran().txt_PrixMat[3].Text(), "1,015 | 2 | 2 0");
    Objet("Couronne tressée");
    Menu("Menuiserie");
    EXPECT_EQ(Rangées(), " x 0 = 0 |  x 0 = 0 |  x 0 = 0 | -") << "hidden rows come back";
}

TEST_F(Recyclage, TheGainIsResaleTimesCountLessTheTypedCost)
{
    Saisir("3", "10"); // survives picks
    Objet("Étoles");
    Degré("brut");
    EXPECT_EQ(Gain(), "12,5 | 12,5 | 27,5");
    Degré("simple");
    EXPECT_EQ(Gain(), "25 | 20 | 50");
    Degré("brut");
    for (const auto& [Nombre, Coût, Attendu] : {std::tuple{"2,5", "0", "31,25"},
                                                {"", "", "12,5"},
                                                {"0", "1,5", "-1,5"},
                                                {"0,0001", "0", "0,0012"}, // ties to even
                                                {"0,0003", "0", "0,0038"},
                                                {"x", "0", "0,0038 ?"},
                                                {"1", "1.5", "12,5 ?"},
                                                {"40000", "", "500000"}}) {
        Saisir(Nombre, Coût);
        EXPECT_EQ(Gain(), std::string("12,5 | 12,5 | ") + Attendu) << Nombre << ", " << Coût;
        EXPECT_EQ(Écran().txt_NbObjet.Marked || Écran().txt_CoûtSuppl.Marked,
                  Écran().txt_Gain.Stale());
    }
    Saisir("3", "10");
    Menu("Tissage"); // resets them
    EXPECT_EQ(Écran().txt_NbObjet.Text() + Écran().txt_CoûtSuppl.Text() + Gain(), "100 | 0 | 0");
}

// Clearing the fourth name, which an object of saddlery has left, shows its row again.
TEST_F(Recyclage, TheFourthRowComesBackEmptyAfterAnObjectOfSaddlery)
{
    Menu("Carapaçons");
    EXPECT_EQ(Rangées(), Vides);
    Menu("Tissage");
    EXPECT_EQ(Rangées(), " x 0 = 0 |  x 0 = 0 |  x 0 = 0 | -") << "no object was chosen";
    Menu("Carapaçons");
    Objet("Drap de barde");
    Menu("Tissage");
    EXPECT_EQ(Rangées(), Vides);
}

TEST_F(Recyclage, ADegreeWithoutItsMaterialIsToldAndTheGainWaitsForTheNextPick)
{
    Menu("Maroquinerie");
    Objet("Sangles");
    Degré("terne");
    for (const char* Nom : {"poli", "clair"}) { // no price, no row
        SCOPED_TRACE(Nom);
        Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour");
        Degré(Nom);
        EXPECT_EQ(Gain(), "8 | 1 | 1 ?");
        EXPECT_TRUE(Écran().txt_PrixCoûtant.Stale);
        Saisir("2", "0");
        EXPECT_TRUE(Écran().txt_Gain.Stale) << "a count mends nothing";
        Saisir("1", "0");
        Degré("terne");
        EXPECT_EQ(Gain(), "8 | 1 | 1");
        EXPECT_FALSE(Écran().txt_PrixCoûtant.Stale);
    }
}

} // namespace orvane
