#include "support/petit_dossier.h"

// What a click on a degree makes of the object.
namespace orvane {

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

    // One sign for each line price: L locked, o open on the input ground, - hidden.
    std::string Verrous()
    {
        std::string Signes;
        for (int i = 1; i <= 6; ++i) {
            const TextBox& Prix = Atelier().txt_PrixMat[i];
            Signes += !Prix.Visible ? '-' : Prix.Locked ? 'L' : 'o';
            EXPECT_EQ(Prix.BackColor(), Prix.Locked ? White : InputGrey) << Prix.Name();
            for (const Control* Each : std::initializer_list<Control*>{
                     &Atelier().txt_Matériaux[i], &Atelier().txt_MatériauxQté[i],
                     &Atelier().lbl_MatX[i], &Atelier().lbl_Mat[i]})
                EXPECT_EQ(Each->Visible(), Prix.Visible()) << Each->Name();
        }
        return Signes;
    }

    // Dps, Vit, AF and bonus; - hidden with its label.
    std::string Statistiques()
    {
        std::vector<std::string> Textes;
        for (const std::string Nom : {"Dps", "Vit", "AF", "BonusSpécial"}) {
            const auto& Valeur = dynamic_cast<TextBox&>(Atelier().Find("txt_" + Nom));
            EXPECT_EQ(Valeur.Visible(), Atelier().Find("lbl_" + Nom).Visible()) << Nom;
            Textes.push_back(Valeur.Visible ? Valeur.Text() : "-");
        }
        return Jointes(Textes);
    }
};

TEST_F(Degré, MaterialsOfTheDegreeGetNamesAndPrices)
{
    ChoisirBéret();
    EXPECT_EQ(Noms(), "lin 0 | fil 0 |  |  |  | ");
    EXPECT_EQ(Lignes(), "10 | 2,5 | 0 | 0 | 0 | 0");
    EXPECT_EQ(Atelier().txt_PrixRevente.Text(), "4");
    Door.Pick(Atelier().cbo_Degré, "parfait"); // 9: prices × 10
    EXPECT_EQ(Noms(), "lin 9 | fil 9 |  |  |  | ");
    EXPECT_EQ(Lignes(), "100 | 25 | 0 | 0 | 0 | 0");
    EXPECT_EQ(Atelier().txt_PrixRevente.Text(), "13");
    const std::pair<const char*, const char*> Patrons[] = {
        {"Chapeau à couronne", "Patron pour couronne tressée"},
        {"Couronne d'osier", "Patron pour couronne tressée"},
        {"COURONNE", "Patron pour chapeau pointu"}}; // two forms only
    for (const auto& [Objet, Patron] : Patrons) {
        Choisir(std::string("Couture/Tissu/Chapeaux/") + Objet + "/simple");
        EXPECT_EQ(Atelier().txt_Matériaux[1].Text(), Patron) << Objet;
        EXPECT_EQ(Lignes(), "0,01 | 0 | 0 | 0 | 0 | 0") << "2 × 0,005 at any degree";
    }
}

TEST_F(Degré, RowsAreFreedByCodeAtTheObjectAndByPriceAtTheDegree)
{
    EXPECT_EQ(Verrous(), "LLLLLL");
    Choisir("Couture/Tissu/Chapeaux/Chapeau");
    EXPECT_EQ(Verrous(), "LLLLo-") << "code 9 opens row 5, code 10 hides row 6";
    Door.Pick(Atelier().cbo_Degré, "rare");
    EXPECT_EQ(Noms(), "lin 4 | Patron pour chapeau pointu | bouton 4 | (aucun) | perle 4 | ");
    EXPECT_EQ(Lignes(), "25 | 0,005 | 0 | 0 | 15 | 0");
    EXPECT_EQ(Verrous(), "LLoLL-") << "a price of 0 with a name frees; the one found locks";
    Door.Type(Atelier().txt_PrixMat[3], "7");
    Door.Type(Atelier().txt_PrixMat[5], "7");
    EXPECT_EQ(Lignes(), "25 | 0,005 | 7 | 0 | 15 | 0") << "only the free one takes typing";
    EXPECT_EQ(Verrous(), "LLoLL-") << "typing doesn't lock";
    Door.Pick(Atelier().cbo_Degré, "rare"); // again: the hand price goes
    EXPECT_EQ(Lignes(), "25 | 0,005 | 0 | 0 | 15 | 0");
    Choisir("Couture/Tissu/Robes/Robe perlée");
    EXPECT_EQ(Verrous(), "LLoooo") << "code 9 from row 3 on";
    Door.Pick(Atelier().cbo_Produit, "Tissu");
    EXPECT_EQ(Verrous(), "LLLLLL") << "emptied rows are shown and locked";
    Choisir("Couture/Tissu/Robes/Robe nue/brut");
    EXPECT_EQ(Noms(), " |  |  |  |  | ");
    EXPECT_EQ(Lignes(), "0 | 0 | 0 | 0 | 0 | 0");
    EXPECT_EQ(Verrous(), "oo----") << "code 10 hides from row 3 on; no name isn't (aucun)";
}

TEST_F(Degré, LevelsOfCraftAndObject)
{
    struct Cas
    {
        const char* Objet;
        const char* Craft;
        const char* Niveau;
    };
    const Cas LesCas[] = {
        {"Robes/Robe 0/brut", "50", "2"},      {"Robes/Robe 1/brut", "50", "3"},
        {"Robes/Robe 2/brut", "50", "2"},      {"Robes/Robe 3/brut", "50", "5"},
        {"Robes/Robe 4/brut", "50", "4"},      {"Robes/Robe 0/simple", "150", "5"},
        {"Robes/Robe 1/fin", "350", "16"},     {"Robes/Robe 30/brut", "50", "30"},
        {"Robes/Robe 3/parfait", "950", "48"}, {"Chapeaux/Béret/fin", "347", "15"},
    };
    for (const Cas& Each : LesCas) {
        Choisir(std::string("Couture/Tissu/") + Each.Objet);
        EXPECT_EQ(Atelier().lbl_Niveau.Caption(), Each.Craft) << Each.Objet;
        EXPECT_EQ(Atelier().txt_Niveau.Text(), Each.Niveau) << Each.Objet;
    }
}

TEST_F(Degré, StatisticsGoByTheTrade)
{
    const std::pair<const char*, const char*> Cas[] = {
        {"Empennage/Arcs/Arcs longs/Arc/brut", "16 | 5,2 | - | -"},
        {"Empennage/Arcs/Arcs longs/Arc/fin", "20,5 | 5,2 | - | -"},
        {"Empennage/Arcs/Arcs longs/Bâton SUPÉRIEUR/fin", "- | 3 | - | -"},
        {"Forge/Épées/Épées courtes/Glaive/étincelant", "29,5 | 2,9 | - | Force +1"},
        {"Couture/Tissu/Robes/Robe 30/brut", "- | - | 30 | -"},
        {"Couture/Cuir/Bottes/Bottes N/terne", "- | - | 10 | -"}, // 2 × 5
        {"Armurerie/Mailles/Coiffes/Heaume/brut", "- | - | 60 | Parade +2"},
        {"Armurerie/Mailles/Coiffes/Heaume/fin", "- | - | 90 | Parade +2"}, // 2 × (30 + 15)
    };
    EXPECT_EQ(Statistiques(), "- | - | - | -") << "hidden until a degree tells them";
    for (const auto& [Chemin, Attendu] : Cas) {
        Choisir(Chemin);
        EXPECT_EQ(Statistiques(), Attendu) << Chemin;
    }
    Door.Pick(Atelier().cbo_Objet, "Heaume");
    EXPECT_EQ(Statistiques(), " |  |  | ") << "the empty text isn't ND";
}

TEST_F(Degré, WhatHasNoDataIsToldAndTheNextPickWorks)
{
    Choisir("Couture/Tissu/Robes/Robe introuvable");
    for (const char* Sans : {"simple", "fin"}) { // a null price, no row
        Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «\u00A0");
        Door.Pick(Atelier().cbo_Degré, Sans);
        EXPECT_TRUE(App.Globals.BaseDonnées.IsEmpty() && App.Globals.Enregistrements.IsEmpty());
    }
    Door.Type(Atelier().cbo_Objet, "");
    Boîtes.ExpectMsgBoxBeginning("Il faut d’abord faire le choix précédent");
    Door.Pick(Atelier().cbo_Degré, "brut");
    Door.Type(Atelier().cbo_Objet, "Inconnu");
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «\u00A0Inconnu");
    Door.Pick(Atelier().cbo_Degré, "brut");
    Choisir("Couture/Tissu/Robes/Robe introuvable/brut");
    EXPECT_EQ(Totaux(), "1 | 1 | 1,2");
    Perdre("Artisanat_Valdren.mdb");
    Door.Pick(Atelier().cbo_Degré, "brut");
}

} // namespace orvane
