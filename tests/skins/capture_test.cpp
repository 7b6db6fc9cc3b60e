#include "skins/dans_la_skin.h"

namespace orvane {

class Capture : public DansLaSkin
{
  protected:
    void SetUp() override
    {
        Lancer();
        FaireÉpreuve();
        Door.Click(Accueil().cmd_Configuration);
        Door.Click(Réglages().cmd_Récup); // hidden: nothing
        Réglages().cmd_Récup.Visible = true;
    }

    void Capturer(const std::string& Réponse, const std::string& Fin)
    {
        for (int i = 0; i < App.Feuilles.Count(); ++i)
            Boîtes.ExpectMsgBox("N°" + std::to_string(i) + " - " + App.Feuilles[i].Name());
        Boîtes.AnswerInputBox("Quelle feuille ?", Réponse);
        Boîtes.ExpectMsgBox(Fin);
        Door.Click(Réglages().cmd_Récup);
        EXPECT_TRUE(Boîtes.IsDone());
    }

    std::string Temp(const std::string& Colonnes)
    {
        return Lire(Base("Velours"), "SELECT * FROM Temp", Colonnes);
    }

    // Capture, rows with numbers into the table of 800x600, apply: everything comes back.
    void FaireAllerRetour(Screen& Feuille, int Index)
    {
        SCOPED_TRACE(Feuille.Name());
        Capturer(std::to_string(Index), "Récupération de " + Feuille.Name() + " effectuée.");
        const std::string Table = "[" + Feuille.Name() + "_800x600]";
        Modifier(Base("Velours"), "DELETE FROM " + Table + "; INSERT INTO " + Table +
                                      " SELECT * FROM Temp; UPDATE " + Table +
                                      " SET Num = rowid; DELETE FROM Temp");
        std::vector<std::string> Avant{std::to_string(Feuille.Width())};
        for (Control* Each : Feuille.Controls())
            Avant.push_back(Each->Name() + " " + Géométrie(*Each));
        Feuille.Width = 1;
        for (Control* Each : Feuille.Controls())
            if (auto* Trait = dynamic_cast<Line*>(Each))
                Trait->Y1 = 1;
            else if (Each->Kind() != ControlKind::ListBox && Each->Kind() != ControlKind::SideMenu)
                Each->Top = 1;
        Valider("Velours", "800 x 600");
        std::vector<std::string> Après{std::to_string(Feuille.Width())};
        for (Control* Each : Feuille.Controls())
            Après.push_back(Each->Name() + " " + Géométrie(*Each));
        EXPECT_EQ(Après, Avant);
    }
};

TEST_F(Capture, ARowForEachControlByItsKindAndTheScreensOwnLast)
{
    Capturer("10", "Récupération de frm_Épreuve effectuée.");
    EXPECT_EQ(Temp("Num|NomControl|ChangeLeftTop|Left|Top|ChangeColor|Color|ChangeFontSize|"
                   "FontSize|ChangeWidth|Width|ChangeHeight|Height"),
              " | lin_Trait | O | 5 | 6 | O | 9 |  |  | N | 7 | N | 8 / "
              " | shp_Cadre | O | 1 | 2 | O | 9 |  |  | O | 3 | O | 4 / "
              " | lbl_Mot | O | 1 | 2 | O | 7 | O | 8,25 | O | 3 | O | 4 / "
              " | txt_Case | O | 1 | 2 | O | 7 | O | 8,25 | O | 3 | O | 4 / "
              " | cbo_Choix | O | 1 | 2 | O | 7 | O | 8,25 | O | 3 |  |  / "
              " | lst_Liste |  |  |  |  |  |  |  |  |  |  |  / "
              " | pct_Vue | O | 1 | 2 |  |  |  |  |  |  |  |  / "
              " | img_Vue | O | 1 | 2 |  |  |  |  |  |  |  |  / "
              " | cmd_Agir | O | 1 | 2 |  |  |  |  | O | 3 | O | 4 / "
              " | Bar_Menus |  |  |  |  |  |  |  |  |  |  |  / "
              " | frm_Épreuve |  |  |  |  |  |  |  | O | 100 | O | 200");
    Capturer("10,4", "Récupération de frm_Épreuve effectuée."); // rounded, as whole numbers are
    EXPECT_EQ(Temp("NomControl").size(), 2 * Temp("NomControl").find(" / lin_Trait") + 3)
        << "rows pile up";
}

TEST_F(Capture, WhatIsCapturedAndAppliedMovesNothing)
{
    FaireAllerRetour(Épreuve(), 10);
}

TEST_F(Capture, TheSameForARealScreen)
{
    FaireAllerRetour(Atelier(), 2);
}

TEST_F(Capture, AnAnswerThatIsNoScreenWritesNothing)
{
    for (const char* Réponse : {"", "abc", "-1", "11", "40000", "frm_News"})
        Capturer(Réponse, "Aucune feuille ne porte ce numéro.");
    EXPECT_EQ(Temp("NomControl"), "");
}

} // namespace orvane
