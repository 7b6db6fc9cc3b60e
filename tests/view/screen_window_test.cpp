#include "stage.h"
#include "view/keyboard_focus.h"
#include "view/side_menu_view.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace orvane {

class WindowOfScreen : public Stage
{
  protected:
    void SetUp() override
    {
        Deeds["raise"] = [this](const QString& Name) { Find(Name).Top = 15 * 15; };
        Deeds["unnamed"] = [this](auto&) { Atelier().txt_Total.RowName = &Atelier().txt_Nom; };
        Deeds["home"] = [this](auto&) { Atelier().GoesBack = false; };
        Deeds["close"] = [this](auto&) { Window().close(); };
        Deeds["where"] = [this](auto&) { Log() << Focused().objectName(); };
        Deeds["tabs"] = [this](const QString& Count) {
            for (int i = 0; i < Count.toInt(); ++i)
                Play("<Tab><where>");
        };
        const SideMenu::Item Couture{"Couture", "Couture", 0, "Coudre"},
            Forge{"Forge", "Forge", 1, ""}, Ouvrir{"Ouvrir", "Voir le panier", 2, ""};
        Menu().Build({{"Métiers", "Liste des métiers", "", {}, {}, {Couture, Forge}},
                      {"Panier", "Panier", "", {}, {}, {Ouvrir}}});
        Menu().OnItemClick = [this](const SideMenu::Item& Item) { Log() << ToQt(Item.Key); };
    }
    SideMenu& Menu() { return Atelier().Bar_Menus; }
};

// Expected: what has run and, where a deed has asked, what has the focus.
constexpr Row WindowRows[] = {
    {"AButtonByTheMouse", "<click cmd_Ajouter>", "Ajouter"},
    {"AButtonByKeys", "<in cmd_Ajouter><Space><Return><Enter>", "Ajouter|Ajouter|Ajouter"},
    {"AButtonByItsOwnKey", "<in txt_Nombre><Ctrl+Return><in cbo_Objet><Ctrl+Enter>",
     "Ajouter|Ajouter"},
    {"NoKeyForAHiddenButton", "<hide cmd_Ajouter><in txt_Nombre><Ctrl+Return>", ""},
    {"ItOpensAtItsFirstInput", "<where>", "txt_Nombre"},
    {"AnEntryOfTheMenuByTheMouse", "<click Forge>", "Forge"},
    {"TheMenuByKeysThroughAllBars",
     "<in Couture><Up><Return><Down><Space><Down><Down><Enter><Up><where>",
     "Couture|Forge|Ouvrir|Forge"},
    {"TheMenuIsOneStopOfTab", "<in Couture><Down><tabs 1>", "txt_Nombre"},
    {"TabComesBackWhereItLeftTheMenu", "<in Couture><Down><Tab><Shift+Backtab><where>", "Forge"},
    {"EscapeFromATextBox", "<in txt_Nombre><Esc>", "back"},
    {"EscapeFromACombo", "<in cbo_Objet><Esc>", "back"},
    {"EscapeFromAList", "<in lst_Noms><Esc>", "back"},
    {"EscapeFromAButton", "<in cmd_Ajouter><Esc>", "back"},
    {"NoEscapeFromTheHomeScreen", "<home><in txt_Nombre><Esc><where>", "txt_Nombre"},
    {"TheFrameAsksTheModel", "<close>", "back"},
    {"TabGoesAsTheEyePastLockedBoxesAndFurtherColumns", "<in cmd_Retour><tabs 7>",
     "Couture|txt_Nombre|txt_Nom|cbo_Objet|lst_Noms|cmd_Ajouter|cmd_Retour"},
    {"F6WalksTheValuesAndComesRound", "<in txt_Nombre><F6><where><F6><where><Shift+F6><where>",
     "txt_Total|txt_Poids|txt_Total"},
    {"F6PassesAnEmptyRow", "<unnamed><in txt_Nombre><F6><where><F6><where>", "txt_Poids|txt_Poids"},
    {"TabPassesTheHidden", "<hide txt_Nom><in txt_Nombre><tabs 1>", "cbo_Objet"},
    {"TabStopsAtTheShownAgain", "<hide txt_Nom><show txt_Nom><in txt_Nombre><Tab><where>",
     "txt_Nom"},
    {"TabFollowsTheMoved", "<raise txt_Nom><in txt_Nom><tabs 1>", "txt_Nombre"},
};
EACH_ROW(WindowOfScreen, WindowRows);

using WindowFollows = WindowOfScreen;

TEST_F(WindowFollows, NameTitleAndSize)
{
    Show();
    EXPECT_EQ(Window().objectName(), "frm_Atelier");
    EXPECT_EQ(Window().windowTitle(), "Atelier d'essai");
    EXPECT_EQ(Window().size(), QSize(790, 600));
    Atelier().Caption = "Forge";
    Atelier().Width = 9000;
    EXPECT_EQ(Window().windowTitle(), "Forge");
    EXPECT_EQ(Window().size(), QSize(600, 600));
    Atelier().txt_Nom.Left = 1500; // in twips
    Atelier().txt_Nom.Width = 3135;
    EXPECT_EQ(The<QLineEdit>("txt_Nom").geometry(), QRect(100, 80, 209, 24));
}

TEST_F(WindowFollows, WhatIsVisible)
{
    Atelier().txt_Nom.Visible = false;
    Atelier().shp_Gauche.Visible = false;
    Show();
    for (const Control* Each : Atelier().Controls())
        EXPECT_EQ(Window().findChild<QWidget*>(ToQt(Each->Name())) != nullptr, Each->Visible())
            << Each->Name() << ": made when it is first seen";
    Play("<show txt_Nom><show shp_Gauche><in txt_Nombre><Tab>");
    EXPECT_EQ(&Focused(), &The<QWidget>("txt_Nom"));
    Play("<hide txt_Nom>");
    EXPECT_FALSE(The<QWidget>("txt_Nom").isVisible());
    const QObjectList& Order = The<QWidget>("shp_Gauche").parent()->children();
    for (const char* Panel : {"shp_Gauche", "shp_Droite"})
        for (const char* Above : {"txt_Nombre", "lbl_Nombre", "Bar_Menus"})
            EXPECT_LT(Order.indexOf(&The<QWidget>(Panel)), Order.indexOf(&The<QWidget>(Above)));
}

TEST_F(WindowFollows, WordsForReaders)
{
    Show();
    Atelier().txt_Nom.Called = "Acheteur";
    const std::tuple<const char*, const char*, const char*> Words[] = {
        {"txt_Nombre", "Nb d'objets", ""},
        {"cbo_Objet", "Objet", ""},
        {"txt_Nom", "Acheteur", ""},
        {"cmd_Ajouter", "Ajouter", "Ajouter au panier (Ctrl+Entrée)"},
        {"cmd_Retour", "Retour", "Retour"},
        {"Ouvrir", "Voir le panier", ""},
        {"Couture", "Couture", "Coudre"},
    };
    for (const auto& [Name, Told, Tip] : Words) {
        EXPECT_EQ(The<QWidget>(Name).accessibleName(), Told) << Name;
        EXPECT_EQ(The<QWidget>(Name).toolTip(), Tip) << Name;
    }
}

TEST_F(WindowFollows, NoFocusIsShownBeforeAKeyIsUsed)
{
    Show();
    Play("<click cmd_Ajouter><click txt_Nombre>");
    EXPECT_FALSE(ShowsFocus(The<QWidget>("txt_Nombre")));
    Play("<Tab>");
    EXPECT_TRUE(ShowsFocus(The<QWidget>("txt_Nom")));
    EXPECT_FALSE(ShowsFocus(The<QWidget>("txt_Nombre")));
}

TEST_F(WindowFollows, TipsWithoutTakingThemForMarkup)
{
    const std::string Name = "<img src='/dev/zero'> <b>Cape</b> & Épée & Écharpe, trop long";
    frm_Atelier& Given = Atelier();
    Given.lbl_Nom.Caption = Name + Name + Name;
    Given.txt_Total.Text = Name;
    Given.txt_Nombre.Tip = Name;
    Given.cbo_Objet.Text = Name;
    Given.cmd_Ajouter.Tip = Name;
    Given.img_Blason.Tip = Name;
    Given.lst_Noms.AddItem(Name);
    Menu().Build({{"Barre", "Barre", Name, {}, {}, {{"Entrée", Name, 0, ""}}}});
    Show();
    auto& List = The<QListView>("lst_Noms");
    const QPoint Entry = List.visualRect(List.model()->index(0, 0)).center();
    QHelpEvent Hover(QEvent::ToolTip, Entry, List.viewport()->mapToGlobal(Entry));
    QApplication::sendEvent(List.viewport(), &Hover);
    std::map<QString, QString> Tips{{"an entry", QToolTip::text()}};
    for (const char* Each : {"lbl_Nom", "txt_Total", "txt_Nombre", "cbo_Objet", "cmd_Ajouter",
                             "img_Blason", "Barre", "Entrée"})
        Tips[Each] = The<QWidget>(Each).toolTip();
    for (const auto& [Where, Tip] : Tips) {
        const bool Markup = Qt::mightBeRichText(Tip);
        const QString Seen = Markup ? QTextDocumentFragment::fromHtml(Tip).toPlainText() : Tip;
        EXPECT_TRUE(Seen.startsWith(ToQt(Name))) << FromQt(Where) << ": " << FromQt(Seen);
    }
}

using SideMenuOnScreen = WindowOfScreen;

TEST_F(SideMenuOnScreen, MayBeRebuiltByItsOwnClick)
{
    Menu().OnItemClick = [this](const SideMenu::Item&) {
        Menu().Build({{"Seul", "Seul", "", {}, {}, {{"Nouveau", "Nouveau", 0, ""}}}});
    };
    Show();
    Play("<click Forge>");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(The<QWidget>("Nouveau").isVisible());
    EXPECT_EQ(Window().findChild<QWidget*>("Forge"), nullptr);
}

TEST_F(SideMenuOnScreen, KeepsTheFocusInSight)
{
    Menu().Height = 90 * TwipsPerPixel;
    Show();
    Play("<in Ouvrir>");
    const auto& Entry = The<QWidget>("Ouvrir");
    auto& View = The<SideMenuView>("Bar_Menus");
    EXPECT_TRUE(View.rect().contains(QRect(Entry.mapTo(&View, QPoint(0, 0)), Entry.size())));
}

} // namespace orvane
