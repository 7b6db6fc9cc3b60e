#include "support/petit_dossier.h"

namespace orvane {

class Navigation : public EnMarche
{
  protected:
    void Revenir(const std::string& Feuille, bool ParLeCadre)
    {
        Screen& Quittée = App.Feuilles.Touch(Feuille);
        if (ParLeCadre)
            Door.Close(Quittée);
        else
            Door.Click(dynamic_cast<Button&>(Quittée.Find("cmd_Retour")));
    }

    // Banner and window icon.
    std::string Habits(const std::string& Feuille)
    {
        const Screen& Habillée = App.Feuilles.Touch(Feuille);
        const auto& Bannière = dynamic_cast<Image&>(Habillée.Find("img_Bannière"));
        return Jointes({Bannière.Picture().File.stem(), Habillée.Icon().File.filename()});
    }
};

TEST_F(Navigation, FromTheHomeScreenAndBack)
{
    const std::pair<Button*, const char*> Allers[] = {
        {&Accueil().cmd_ArtisanatsManuels, "frm_ArtisanatsManuels"},
        {&Accueil().cmd_ArtisanatsMagiques, "frm_ArtisanatsMagiques"},
        {&Accueil().cmd_ArtisanatsSecondaires, "frm_ArtisanatsSecondaires"},
        {&Accueil().cmd_News, "frm_News"},
    };
    for (const auto& [Bouton, Feuille] : Allers)
        for (const bool ParLeCadre : {false, true}) {
            Door.Click(*Bouton);
            EXPECT_EQ(Visibles(), Feuille) << "shown, the home screen hidden";
            Revenir(Feuille, ParLeCadre);
            EXPECT_EQ(Visibles(), "frm_Accueil") << Feuille;
        }
    Door.Click(Accueil().cmd_News);
    App.Feuilles.Touch("frm_Statut").Show();
    Revenir("frm_Statut", false);
    EXPECT_EQ(Visibles(), "frm_News") << "what lay under it comes back";
}

TEST_F(Navigation, BannersAndIconsAreOfTheRealmInForceAtTheClick)
{
    Door.Click(Accueil().img_Corvane);
    OuvrirAtelier();
    EXPECT_EQ(Habits("frm_ArtisanatsManuels"), "BannièreCorvane | Corvane.ico");
    EXPECT_EQ(App.Feuilles.Touch("frm_Archerie").Icon().File.filename(), "Corvane.ico");
    EXPECT_EQ(App.Feuilles.Touch("frm_ArmesLégendaires").Icon().File.filename(), "Corvane.ico");
    EXPECT_TRUE(App.Feuilles.Touch("frm_ArtisanatsMagiques").Icon().IsEmpty());
    Revenir("frm_ArtisanatsManuels", false);
    Door.Click(Accueil().img_Brenmoor);
    Door.Click(Accueil().cmd_Configuration);
    EXPECT_EQ(Habits("frm_Configuration"), "BannièreBrenmoor | ") << "no icon";
    Door.Click(Accueil().cmd_ArtisanatsMagiques);
    EXPECT_EQ(Habits("frm_ArtisanatsMagiques"), "BannièreBrenmoor | Brenmoor.ico");
    Revenir("frm_ArtisanatsMagiques", false);
    Door.Click(Accueil().cmd_ArtisanatsSecondaires);
    EXPECT_EQ(Habits("frm_ArtisanatsSecondaires"), "BannièreBrenmoor | Brenmoor.ico");
    EXPECT_EQ(Habits("frm_ArtisanatsManuels"), "BannièreCorvane | Corvane.ico") << "not yet";
}

TEST_F(Navigation, TheConfigurationStandsBesideTheOthersAndItsHidingActivatesTheOneBelow)
{
    Door.Click(Accueil().cmd_Configuration);
    EXPECT_EQ(Visibles(), "frm_Accueil | frm_Configuration");
    OuvrirAtelier();
    EXPECT_EQ(Visibles(), "frm_Configuration | frm_ArtisanatsManuels");
    Door.ClickItem(Atelier().Bar_Menus, "Forge");
    Door.Type(Réglages().txt_MargeCouture, "100");
    EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), "Forge") << "nothing is pushed to it";
    Door.Click(Réglages().cmd_Validation);
    EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels");
    EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), "Couture") << "activated";
}

TEST_F(Navigation, ScreensAboveTheManualCraftsLeaveItBehindThemAndResetItOnReturn)
{
    struct Aller
    {
        const char* Chemin;
        const char* Métier;
        const char* Feuille;
    };
    const Aller Allers[] = {
        {"Empennage/Munitions/Flèches", "Empennage", "frm_Archerie"},
        {"Empennage/Munitions/Carreaux", "Empennage", "frm_Archerie"},
        {"Forge/Armes légendaires", "Forge", "frm_ArmesLégendaires"},
        {"Forge", "Forge", "frm_Panier"},
    };
    OuvrirAtelier();
    for (const auto& [Chemin, Métier, Feuille] : Allers)
        for (const bool ParLeCadre : {false, true}) {
            SCOPED_TRACE(Feuille);
            Choisir(Chemin);
            if (Feuille == std::string("frm_Panier"))
                OuvrirPanier();
            EXPECT_EQ(Visibles(), std::string("frm_ArtisanatsManuels | ") + Feuille);
            EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), Métier) << "the trade stays in hand";
            EXPECT_EQ(Atelier().cbo_Objet.ListCount(), 0) << "no list below is filled";
            Revenir(Feuille, ParLeCadre);
            EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels");
            EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), "Couture");
            EXPECT_EQ(Jointes(Atelier().cbo_Produit.Items()), "Cuir | Tissu");
            EXPECT_EQ(Atelier().cbo_Produit.Text(), "");
            EXPECT_EQ(Atelier().cbo_ProduitDétaillé.ListCount(), 0);
        }
}

TEST_F(Navigation, AScreenIsActivatedByAClickOnlyWhenItIsNotTheActiveOne)
{
    OuvrirAtelier();
    Choisir("Couture/Tissu/Chapeaux/Béret");
    Atelier().Show();
    Door.Activate(Atelier());
    EXPECT_EQ(Atelier().cbo_Objet.Text(), "Béret");
    OuvrirPanier();
    Boîtes.ExpectMsgBox("Aucun objet sélectionné.");
    Door.Click(Atelier().cmd_AjouterPanier); // activated first, and so reset
    EXPECT_EQ(Visibles(), "frm_Panier | frm_ArtisanatsManuels");
}

} // namespace orvane
