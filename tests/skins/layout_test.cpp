#include "skins/dans_la_skin.h"

namespace orvane {

class MiseEnPage : public DansLaSkin
{
  protected:
    // How often the last box says a name.
    int Mentions(const std::string& Nom) const
    {
        int Fois = 0;
        for (auto At = Boîtes.Dernière.find(Nom); At != std::string::npos; ++Fois)
            At = Boîtes.Dernière.find(Nom, At + 1);
        return Fois;
    }

    static constexpr auto Intacte = "1 2 3 4, 8.25 pt, 7";
};

// Flags are set only for what a kind has; a line's size flags aren't.
TEST_F(MiseEnPage, EachKindTakesItsGroupsAndALinesEndsCrossTheColumns)
{
    struct Cas
    {
        const char* Nom;
        const char* Drapeaux;
        const char* Attendue;
    };
    const Cas Tous[] = {
        {"lin_Trait", "ONN-O", "1 2 3 4, 8.25 pt, 7, bord 9, bouts 10 20 30 40"},
        {"shp_Cadre", "OOO-O", "10 20 30 40, 8.25 pt, 7, bord 255"},
        {"lbl_Mot", "OOOOO", "10 20 30 40, 12.5 pt, 255"},
        {"txt_Case", "OOOOO", "10 20 30 40, 12.5 pt, 7"},
        {"cbo_Choix", "OOOOO", "10 20 30 40, 12.5 pt, 7"},
        {"lst_Liste", "OOOOO", "10 20 30 40, 12.5 pt, 7"},
        {"pct_Vue", "OOO-O", "10 20 30 40, 8.25 pt, 7"},
        {"img_Vue", "OOO-O", "10 20 30 40, 8.25 pt, 7"},
        {"cmd_Agir", "OOO-O", "10 20 30 40, 8.25 pt, 7"},
        {"Bar_Menus", "OOO-O", "10 20 30 40, 8.25 pt, 7"},
    };
    Lancer();
    FaireÉpreuve();
    for (const Cas& Each : Tous)
        Tracer("Velours", "frm_Épreuve_800x600", 2, Each.Nom, Each.Drapeaux);
    Tracer("Velours", "frm_Épreuve_800x600", 0, "frm_Épreuve", "OON-O"); // before its own row
    Valider("Velours", "800 x 600");
    for (const Cas& Each : Tous)
        EXPECT_EQ(Géométrie(Épreuve().Find(Each.Nom)), Each.Attendue) << Each.Nom;
    EXPECT_EQ(Épreuve().Width(), 30);
    EXPECT_EQ(Épreuve().Height(), 200);
}

TEST_F(MiseEnPage, EachFlagDrivesItsOwnGroupAndOnlyACapitalOIsOne)
{
    const std::pair<const char*, const char*> Drapeaux[] = {
        {"O----", "10 20 3 4, 8.25 pt, 7"},
        {"-O---", "1 2 30 4, 8.25 pt, 7"},
        {"--O--", "1 2 3 40, 8.25 pt, 7"},
        {"---O-", "1 2 3 4, 12.5 pt, 7"},
        {"----O", "1 2 3 4, 8.25 pt, 255"},
        {"-----", Intacte},
        {"NNNNN", Intacte},
        {"ooooo", Intacte},
        {"11111", Intacte},
    };
    Lancer();
    FaireÉpreuve();
    bool Petite = false;
    for (const auto& [Lettres, Attendue] : Drapeaux) {
        Épreuve().Remettre();
        for (const std::string Table : {"frm_Épreuve_800x600", "frm_Épreuve_1024x768"}) {
            Modifier(Base("Velours"), "DELETE FROM [" + Table + "] WHERE NomControl = 'lbl_Mot'");
            Tracer("Velours", Table, 2, "lbl_Mot", Lettres);
        }
        Petite = !Petite;
        Valider("Velours", Petite ? "800 x 600" : "1024 x 768");
        EXPECT_EQ(Géométrie(Épreuve().lbl_Mot), Attendue) << Lettres;
    }
}

TEST_F(MiseEnPage, TheLowestNumAloneCountsAndAControlWithoutARowStays)
{
    Lancer();
    FaireÉpreuve();
    Tracer("Velours", "frm_Épreuve_800x600", 9, "lbl_Mot", "OOOOO", "90, 90, 90, 90, 20, 90");
    Tracer("Velours", "frm_Épreuve_800x600", 3, "lbl_Mot", "O----");
    Tracer("Velours", "frm_Épreuve_800x600", 7, "lbl_Mot", "OOOOO", "70, 70, 70, 70, 20, 70");
    Tracer("Velours", "frm_Épreuve_800x600", 10, "txt_Case", "O----"); // 10 behind 9: a number
    Tracer("Velours", "frm_Épreuve_800x600", 9, "txt_Case", "-O---");
    Tracer("Velours", "frm_Épreuve_800x600", 2, "cbo_Autre", "OOOOO");
    Valider("Velours", "800 x 600");
    EXPECT_EQ(Géométrie(Épreuve().lbl_Mot), "10 20 3 4, 8.25 pt, 7");
    EXPECT_EQ(Géométrie(Épreuve().txt_Case), "1 2 30 4, 8.25 pt, 7");
    EXPECT_EQ(Géométrie(Épreuve().cbo_Choix), Intacte);
    Valider("Velours", "1024 x 768"); // whose table has no row for them
    EXPECT_EQ(Géométrie(Épreuve().lbl_Mot), "10 20 3 4, 8.25 pt, 7") << "the last layout's";
}

TEST_F(MiseEnPage, ACommonScreenHasOneTableWhateverTheResolution)
{
    Lancer();
    FaireÉpreuve();
    Modifier(Base("Velours"),
             "UPDATE RésolutionCommune SET Commun = 'O' WHERE Nom = 'frm_Épreuve'");
    Tracer("Velours", "frm_Épreuve_Commun", 2, "lbl_Mot", "OOOOO");
    for (const std::string Sous : {"800x600", "1024x768"})
        Tracer("Velours", "frm_Épreuve_" + Sous, 2, "lbl_Mot", "O----", "90, 90, 0, 0, 0, 0");
    for (const char* Résolution : {"800 x 600", "1024 x 768"}) {
        Épreuve().Remettre();
        Valider("Velours", Résolution);
        EXPECT_EQ(Géométrie(Épreuve().lbl_Mot), "10 20 30 40, 12.5 pt, 255") << Résolution;
    }
}

TEST_F(MiseEnPage, ResolutionsThatDifferByBlanksOnlyShareTablesAndPictures)
{
    Modifier("Config.mdb", "INSERT INTO RésolutionsListe VALUES (3, ' 80 0x6 00 ')");
    Tracer("Velours", "frm_Accueil_800x600", 2, "lbl_Titre", "O----");
    Lancer();
    for (const char* Résolution : {"800 x 600", " 80 0x6 00 "}) {
        Accueil().lbl_Titre.Left = 1;
        Valider("Velours", Résolution);
        EXPECT_EQ(Accueil().lbl_Titre.Left(), 10) << Résolution;
        EXPECT_EQ(Fichier(Accueil().Picture), "Velours/800x600/Accueil/Fond.jpg");
    }
}

TEST_F(MiseEnPage, ScreensThatCannotBeLaidOutAreToldOnceAndTheOthersAre)
{
    for (const std::string Feuille : {"frm_Accueil", "frm_ArtisanatsManuels", "frm_News"})
        Tracer("Velours", Feuille + "_1024x768", 2, "cmd_Retour", "O----");
    Tracer("Velours", "frm_Panier_Commun", 2, "cmd_Retour", "O----");
    Modifier(Base("Velours"), "DROP TABLE [frm_ArtisanatsManuels_1024x768];"
                              "DELETE FROM [frm_News_1024x768] WHERE NomControl = 'frm_News'");
    Boîtes.ExpectMsgBoxBeginning("La skin ne connaît pas ces écrans");
    Lancer();
    EXPECT_EQ(Visibles(), "frm_Accueil");
    EXPECT_EQ(Mentions("frm_ArtisanatsManuels"), 1);
    EXPECT_EQ(Mentions("frm_News"), 1);
    EXPECT_EQ(Mentions("frm_"), 2) << Boîtes.Dernière;
    EXPECT_EQ(Panier().cmd_Retour.Left(), 10);
    EXPECT_NE(App.Feuilles.Touch("frm_News").Find("cmd_Retour").Left(), 10);
    EXPECT_NE(Atelier().cmd_Retour.Left(), 10);
    EXPECT_EQ(Fichier(Atelier().Picture), "Velours/1024x768/ArtisanatsManuels/Fond.jpg");
    Valider("Velours", "800 x 600"); // whose tables are whole
}

TEST_F(MiseEnPage, AScreenThatTheSkinDoesNotKnowIsToldOnce)
{
    Modifier(Base("Velours"), "DELETE FROM RésolutionCommune WHERE Nom = 'frm_Archerie'");
    Boîtes.ExpectMsgBoxBeginning("La skin ne connaît pas ces écrans");
    Lancer();
    EXPECT_EQ(Mentions("frm_Archerie"), 1) << Boîtes.Dernière;
    EXPECT_EQ(Fichier(Archerie().Picture), "");
    EXPECT_EQ(Fichier(Panier().Picture), "Velours/Commun/Panier/Fond.jpg");
    EXPECT_EQ(App.Feuilles.Count(), 10);
}

} // namespace orvane
