#include "support/petit_dossier.h"

// What a click on a degree makes of the object.
namespace orvane {

namespace {

class Degré : public DansLAtelier
{
  protected:
    std::string Noms()
    {
        std::vector<std::string> Textes;
        for (const TextBox& Nom : Atelier().txt_Matériaux)
            Textes.push_back(Nom.Text());
        return Jointes(Textes);
    }

    // One sign for each row: L locked, o open, - hidden.
    std::string Verrous()
    {
        std::string Signes;
        for (const TextBox& Prix : Atelier().txt_PrixMat) {
            Signes += !Prix.Visible ? '-' : Prix.Locked ? 'L' : 'o';
            EXPECT_EQ(Prix.BackColor(), Prix.Locked ? White : InputGrey) << Prix.Name();
        }
        return Signes;
    }

    std::string Statistiques()
    {
        const std::pair<const TextBox&, const Label&> Paires[] = {
            {Atelier().txt_Dps, Atelier().lbl_Dps},
            {Atelier().txt_Vit, Atelier().lbl_Vit},
            {Atelier().txt_AF, Atelier().lbl_AF},
            {Atelier().txt_BonusSpécial, Atelier().lbl_BonusSpécial}};
        std::vector<std::string> Textes;
        for (const auto& [Valeur, Titre] : Paires) {
            EXPECT_EQ(Valeur.Visible(), Titre.Visible()) << Valeur.Name();
            Textes.push_back(Valeur.Visible ? Valeur.Text() : "-");
        }
        return Jointes(Textes);
    }
};

} // namespace

TEST_F(Degré, MaterialsOfTheDegreeGetNamesAndPrices)
{
    ChoisirBéret();
    EXPECT_EQ(Noms(), "lin 0 | fil 0 |  |  |  | ");
    EXPECT_EQ(Lignes(), "10 | 2,5 | 0 | 0 | 0 | 0");
    EXPECT_EQ(Atelier().txt_PrixRevente.Text(), "4");
    Door().Pick(Atelier().cbo_Degré, "parfait"); // 9: prices × 10
    EXPECT_EQ(Noms(), "lin 9 | fil 9 |  |  |  | ");
    EXPECT_EQ(Lignes(), "100 | 25 | 0 | 0 | 0 | 0");
    EXPECT_EQ(Atelier().txt_PrixRevente.Text(), "13");
    EXPECT_EQ(Atelier().txt_NbObjetSup.Text(), "1");
}

TEST_F(Degré, APatternIsNamedByTheObjectInTwoFormsOnly)
{
    const std::pair<const char*, const char*> Patrons[] = {
        {"Chapeau à couronne", "Patron pour couronne tressée"},
        {"Couronne d'osier", "Patron pour couronne tressée"},
        {"COURONNE", "Patron pour chapeau pointu"}};
    for (const auto& [Objet, Patron] : Patrons) {
        Choisir("Couture", "Tissu", "Chapeaux", Objet, "simple");
        EXPECT_EQ(Atelier().txt_Matériaux[1].Text(), Patron) << Objet;
        EXPECT_EQ(Lignes(), "0,01 | 0 | 0 | 0 | 0 | 0") << "2 × 0,005 at any degree";
    }
    ChoisirChapeau();
    EXPECT_EQ(Atelier().txt_Matériaux[2].Text(), "Patron pour chapeau pointu");
}

TEST_F(Degré, RowsAreFreedByCodeAtTheObjectAndByPriceAtTheDegree)
{
    Choisir("Couture", "Tissu", "Chapeaux", "Chapeau");
    EXPECT_EQ(Verrous(), "LLLLo-") << "code 9 opens row 5, code 10 hides row 6";
    Door().Pick(Atelier().cbo_Degré, "rare");
    EXPECT_EQ(Noms(), "lin 4 | Patron pour chapeau pointu | bouton 4 | (aucun) | perle 4 | ");
    EXPECT_EQ(Lignes(), "25 | 0,005 | 0 | 0 | 15 | 0");
    EXPECT_EQ(Verrous(), "LLoLL-") << "a price of 0 with a name; the price found for code 9 locks";
    Door().Type(Atelier().txt_PrixMat[3], "7");
    EXPECT_EQ(Verrous(), "LLoLL-") << "typing doesn't lock";
    Door().Pick(Atelier().cbo_Produit, "Cuir");
    EXPECT_EQ(Verrous().substr(2), "LLLL") << "emptied rows are shown and locked";
}

TEST_F(Degré, Code9OpensRows3To6Only)
{
    Choisir("Couture", "Tissu", "Robes", "Robe perlée");
    EXPECT_EQ(Verrous(), "LLoooo");
    Door().Type(Atelier().txt_PrixMat[6], "2");
    Door().Type(Atelier().txt_PrixMat[1], "2");
    EXPECT_EQ(Lignes(), "0 | 0 | 0 | 0 | 0 | 2");
    EXPECT_EQ(Totaux(), "2 | 2 | 2,4");
}

TEST_F(Degré, RowsWithoutMaterialAreHiddenFromTheThirdOn)
{
    Choisir("Couture", "Tissu", "Robes", "Robe nue", "brut");
    EXPECT_EQ(Noms(), " |  |  |  |  | ");
    EXPECT_EQ(Lignes(), "0 | 0 | 0 | 0 | 0 | 0");
    EXPECT_EQ(Verrous(), "oo----") << "an empty name isn't (aucun)";
    for (int i = 3; i <= 6; ++i)
        EXPECT_FALSE(Atelier().txt_Matériaux[i].Visible || Atelier().txt_MatériauxQté[i].Visible ||
                     Atelier().lbl_MatX[i].Visible || Atelier().lbl_Mat[i].Visible);
    Door().Type(Atelier().txt_PrixMat[3], "5");
    EXPECT_EQ(Atelier().txt_PrixMat[3].Text(), "0") << "nobody types into a hidden row";
}

TEST_F(Degré, LevelsOfCraftAndObject)
{
    struct Cas
    {
        const char* Objet;
        const char* Degré;
        const char* Niveau;
    };
    const Cas LesCas[] = {
        {"Robe 0", "brut", "2"}, {"Robe 1", "brut", "3"},   {"Robe 2", "brut", "2"},
        {"Robe 3", "brut", "5"}, {"Robe 4", "brut", "4"},   {"Robe 0", "simple", "5"},
        {"Robe 1", "fin", "16"}, {"Robe 30", "brut", "30"}, {"Robe 3", "parfait", "48"},
    };
    for (const Cas& Each : LesCas) {
        Choisir("Couture", "Tissu", "Robes", Each.Objet, Each.Degré);
        EXPECT_EQ(Atelier().txt_Niveau.Text(), Each.Niveau) << Each.Objet << " " << Each.Degré;
    }
    ChoisirBéret("fin");
    EXPECT_EQ(Atelier().lbl_Niveau.Caption(), "347");
}

TEST_F(Degré, StatisticsGoByTheTrade)
{
    struct Cas
    {
        std::vector<const char*> Chemin;
        const char* Statistiques; // Dps, Vit, AF, bonus; - hidden
    };
    const Cas LesCas[] = {
        {{"Empennage", "Arcs", "Arcs longs", "Arc", "brut"}, "16 | 5,2 | - | -"},
        {{"Empennage", "Arcs", "Arcs longs", "Arc", "fin"}, "20,5 | 5,2 | - | -"},
        {{"Empennage", "Arcs", "Arcs longs", "Bâton SUPÉRIEUR", "fin"}, "- | 3 | - | -"},
        {{"Forge", "Épées", "Épées courtes", "Glaive", "étincelant"}, "29,5 | 2,9 | - | Force +1"},
        {{"Couture", "Tissu", "Robes", "Robe 30", "brut"}, "- | - | 30 | -"},
        {{"Couture", "Cuir", "Bottes", "Bottes N", "terne"}, "- | - | 10 | -"}, // 2 × 5
        {{"Armurerie", "Mailles", "Coiffes", "Heaume", "brut"}, "- | - | 60 | Parade +2"},
        {{"Armurerie", "Mailles", "Coiffes", "Heaume", "fin"}, "- | - | 90 | Parade +2"}, // 2 × 45
    };
    EXPECT_EQ(Statistiques(), "- | - | - | -") << "hidden until a degree tells them";
    for (const Cas& Each : LesCas) {
        const auto& C = Each.Chemin;
        Choisir(C[0], C[1], C[2], C[3], C[4]);
        EXPECT_EQ(Statistiques(), Each.Statistiques) << C[3] << " " << C[4];
    }
    Door().Pick(Atelier().cbo_Objet, "Heaume");
    EXPECT_EQ(Statistiques(), " |  |  | ") << "the empty text isn't ND";
}

TEST_F(Degré, AClickOverwritesPricesTypedByHandAndAppliesTheLockRuleAfresh)
{
    ChoisirChapeau();
    Door().Type(Atelier().txt_PrixMat[3], "7");
    Door().Pick(Atelier().cbo_Degré, "rare"); // the entry chosen already
    EXPECT_EQ(Lignes(), "25 | 0,005 | 0 | 0 | 15 | 0");
    EXPECT_EQ(Verrous(), "LLoLL-");
}

TEST_F(Degré, AMissingRowIsToldAndTheNextPickWorks)
{
    Choisir("Couture", "Tissu", "Robes", "Robe introuvable");
    for (const char* Sans : {"simple", "fin"}) { // a null price, no row
        Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «\u00A0");
        Door().Pick(Atelier().cbo_Degré, Sans);
        EXPECT_TRUE(App.Globals.BaseDonnées.IsEmpty() && App.Globals.Enregistrements.IsEmpty());
    }
    Door().Pick(Atelier().cbo_Degré, "brut");
    EXPECT_EQ(Totaux(), "1 | 1 | 1,2");
}

TEST_F(Degré, AChoiceTakenAwayIsAskedFor)
{
    ChoisirBéret();
    Door().Type(Atelier().cbo_Objet, "");
    Boîtes.ExpectMsgBoxBeginning("Il faut d’abord faire le choix précédent");
    Door().Pick(Atelier().cbo_Degré, "simple");
    Door().Type(Atelier().cbo_Objet, "Inconnu");
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «\u00A0Inconnu");
    Door().Pick(Atelier().cbo_Degré, "simple");
    ChoisirBéret("simple");
    EXPECT_EQ(Totaux(), "25 | 25 | 30");
}

TEST_F(Degré, ARealmDatabaseThatIsGoneIsToldByItsName)
{
    Choisir("Couture", "Tissu", "Chapeaux", "Béret");
    std::filesystem::rename(Dossier / "Artisanat_Valdren.mdb", Dossier / "ailleurs");
    Boîtes.ExpectMsgBox("La base de données «\u00A0Artisanat_Valdren.mdb\u00A0» est introuvable.\n"
                        "Replacez le fichier à côté du programme.");
    Door().Pick(Atelier().cbo_Degré, "brut");
    std::filesystem::rename(Dossier / "ailleurs", Dossier / "Artisanat_Valdren.mdb");
    Door().Pick(Atelier().cbo_Degré, "brut");
    EXPECT_EQ(Totaux(), "12,5 | 12,5 | 15");
}

} // namespace orvane
