#include "support/petit_dossier.h"

namespace orvane {

namespace {

class Navigation : public EnMarche
{
  protected:
    PictureControl& Bouton(const std::string& Feuille, const std::string& Nom)
    {
        return dynamic_cast<PictureControl&>(App.Feuilles.Touch(Feuille).Find(Nom));
    }

    std::string Bannière(const std::string& Feuille)
    {
        return Bouton(Feuille, "img_Bannière").Picture().File.filename().string();
    }

    std::string Icône(const std::string& Feuille)
    {
        return App.Feuilles.Touch(Feuille).Icon().File.filename().string();
    }
};

} // namespace

TEST_F(Navigation, FromTheHomeScreenAndBack)
{
    struct Aller
    {
        Button& Bouton;
        const char* Feuille;
        const char* Après;
    };
    const Aller Allers[] = {
        {Accueil().cmd_ArtisanatsManuels, "frm_ArtisanatsManuels", "frm_ArtisanatsManuels"},
        {Accueil().cmd_ArtisanatsMagiques, "frm_ArtisanatsMagiques", "frm_ArtisanatsMagiques"},
        {Accueil().cmd_ArtisanatsSecondaires, "frm_ArtisanatsSecondaires",
         "frm_ArtisanatsSecondaires"},
        {Accueil().cmd_News, "frm_News", "frm_News"},
    };
    for (const Aller& Each : Allers) {
        SCOPED_TRACE(Each.Feuille);
        Door().Click(Each.Bouton);
        EXPECT_EQ(Visibles(), Each.Après) << "shown, the home screen hidden";
        Door().Click(Bouton(Each.Feuille, "cmd_Retour"));
        EXPECT_EQ(Visibles(), "frm_Accueil") << "its way back";
        Door().Click(Each.Bouton);
        Door().Close(App.Feuilles.Touch(Each.Feuille));
        EXPECT_EQ(Visibles(), "frm_Accueil") << "closing by the frame is the way back";
    }
}

TEST_F(Navigation, BannersAndIconsAreOfTheRealmInForceAtTheClick)
{
    Door().Click(Accueil().img_Corvane);
    OuvrirAtelier();
    EXPECT_EQ(Bannière("frm_ArtisanatsManuels"), "BannièreCorvane.gif");
    for (const char* Feuille : {"frm_ArtisanatsManuels", "frm_Archerie", "frm_ArmesLégendaires"})
        EXPECT_EQ(Icône(Feuille), "Corvane.ico") << Feuille;
    EXPECT_EQ(Icône("frm_ArtisanatsMagiques"), "") << "another button's screen";
    Door().Click(Atelier().cmd_Retour);

    Door().Click(Accueil().img_Brenmoor);
    EXPECT_EQ(Icône("frm_ArtisanatsManuels"), "Corvane.ico") << "not before the next click";
    for (const std::string Quoi : {"Magiques", "Secondaires"}) {
        Door().Click(Bouton("frm_Accueil", "cmd_Artisanats" + Quoi));
        EXPECT_EQ(Bannière("frm_Artisanats" + Quoi), "BannièreBrenmoor.gif");
        EXPECT_EQ(Icône("frm_Artisanats" + Quoi), "Brenmoor.ico");
        Door().Click(Bouton("frm_Artisanats" + Quoi, "cmd_Retour"));
    }
    Door().Click(Accueil().cmd_Configuration);
    EXPECT_EQ(Bannière("frm_Configuration"), "BannièreBrenmoor.gif");
    EXPECT_EQ(Icône("frm_Configuration"), "") << "no icon";
}

TEST_F(Navigation, TheConfigurationLeavesTheHomeScreenUsable)
{
    Door().Click(Accueil().cmd_Configuration);
    EXPECT_EQ(Visibles(), "frm_Accueil | frm_Configuration");
    OuvrirAtelier();
    EXPECT_EQ(Visibles(), "frm_Configuration | frm_ArtisanatsManuels");
    Door().Close(Réglages());
    EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels");
    Door().Click(Atelier().cmd_Retour);
    EXPECT_EQ(Visibles(), "frm_Accueil");
}

TEST_F(Navigation, HidingTheConfigurationOverACraftScreenActivatesThatOne)
{
    OuvrirRéglagesEtAtelier();
    Choisir("Forge", "Épées", "Épées courtes", "Glaive", "terne");
    Door().Type(Réglages().txt_MargeCouture, "100");
    EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), "Forge") << "nothing is pushed to it";
    Door().Click(Réglages().cmd_Validation);
    EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels");
    EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), "Couture");
    Choisir("Couture", "Tissu", "Robes", "Robe 0", "brut");
    EXPECT_EQ(Totaux(), "10 | 10 | 20");
}

TEST_F(Navigation, ScreensAboveTheManualCraftsLeaveItBehindThemAndResetItOnReturn)
{
    struct Aller
    {
        const char* Métier;
        const char* Produit;
        const char* Détail; // null: the product opens the screen
        const char* Feuille;
    };
    const Aller Allers[] = {
        {"Empennage", "Munitions", "Flèches", "frm_Archerie"},
        {"Empennage", "Munitions", "Carreaux", "frm_Archerie"},
        {"Forge", "Armes légendaires", nullptr, "frm_ArmesLégendaires"},
        {"Forge", nullptr, nullptr, "frm_Panier"},
    };
    OuvrirAtelier();
    for (const Aller& Each : Allers) {
        SCOPED_TRACE(Each.Feuille);
        for (const bool ParLeCadre : {false, true}) {
            Door().ClickItem(Atelier().Bar_Menus, Each.Métier);
            if (Each.Produit == nullptr)
                OuvrirPanier();
            else
                Door().Pick(Atelier().cbo_Produit, Each.Produit);
            if (Each.Détail != nullptr)
                Door().Pick(Atelier().cbo_ProduitDétaillé, Each.Détail);
            EXPECT_EQ(Visibles(), std::string("frm_ArtisanatsManuels | ") + Each.Feuille);
            EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), Each.Métier) << "the trade stays in hand";
            EXPECT_EQ(Atelier().cbo_Objet.ListCount(), 0) << "no list below is filled";
            if (ParLeCadre)
                Door().Close(App.Feuilles.Touch(Each.Feuille));
            else
                Door().Click(Bouton(Each.Feuille, "cmd_Retour"));
            EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels");
            EXPECT_EQ(Atelier().lbl_Artisanat.Caption(), "Couture") << "back to the default trade";
            EXPECT_EQ(Jointes(Atelier().cbo_Produit.Items()), "Cuir | Tissu");
            EXPECT_EQ(Atelier().cbo_Produit.Text(), "");
            EXPECT_EQ(Atelier().cbo_ProduitDétaillé.ListCount(), 0);
        }
    }
}

TEST_F(Navigation, AClickOnAScreenBelowActivatesItFirst)
{
    OuvrirAtelier();
    ChoisirBéret();
    OuvrirPanier();
    Boîtes.ExpectMsgBox("Aucun objet sélectionné.");
    Door().Click(Atelier().cmd_AjouterPanier);
    EXPECT_EQ(Visibles(), "frm_Panier | frm_ArtisanatsManuels");
    Door().Activate(Panier());
    EXPECT_EQ(Visibles(), "frm_ArtisanatsManuels | frm_Panier");
}

TEST_F(Navigation, ShowingOrClickingTheActiveScreenDoesNotActivateItAgain)
{
    OuvrirAtelier();
    ChoisirBéret();
    Atelier().Show();
    Door().Activate(Atelier());
    EXPECT_EQ(Atelier().cbo_Objet.Text(), "Béret");
}

TEST_F(Navigation, TheStatusScreenGivesWayToWhatLiesUnderIt)
{
    Door().Click(Accueil().cmd_News);
    App.Feuilles.Touch("frm_Statut").Show();
    EXPECT_EQ(Visibles(), "frm_News | frm_Statut");
    Door().Click(Bouton("frm_Statut", "cmd_Retour"));
    EXPECT_EQ(Visibles(), "frm_News");
}

} // namespace orvane
