#pragma once

#include "support/scripted_dialogs.h"
#include "toolkit/forms.h"
#include "toolkit/placing.h"
#include "toolkit/user.h"
#include "view/desktop.h"
#include "view/qt_text.h"
#include "view/screen_window.h"

#include <QListView>
#include <QRegularExpression>
#include <QTest>

#include <gtest/gtest.h>

namespace orvane {

// A made-up screen: two panels side by side, a menu at the left, a row of buttons below.
class frm_Atelier : public Screen
{
  public:
    explicit frm_Atelier(Forms& Owner, const char* Name = "frm_Atelier")
        : Screen(Owner, Name, "Atelier d'essai")
    {
        SizeScreen(*this, 790, 600);
        Place(Bar_Menus, {10, 10, 150, 560});
        PlacePanel(shp_Gauche, {170, 10, 300, 480});
        PlacePanel(shp_Droite, {480, 10, 300, 480});
        PlaceLabel(lbl_Nombre, "Nb d'objets :", {180, 40, 100, 24});
        Place(txt_Nombre, {290, 40, 100, 24}, "Nb d'objets :");
        txt_Nombre.OpenFor(NumberKind::Montant);
        PlaceLabel(lbl_Nom, "Nom :", {180, 80, 100, 24});
        Place(txt_Nom, {290, 80, 100, 24});
        txt_Nom.Locked = false;
        Place(txt_Total, {290, 120, 100, 24});
        txt_Total.Text.StartWith("42");
        Place(txt_Poids, {290, 160, 100, 24});
        txt_Poids.Text.StartWith("7");
        PlaceLabel(lbl_Objet, "Objet :", {490, 40, 60, 24});
        Place(cbo_Objet, {560, 40, 160, 24}, "Objet :");
        for (const char* Each : {"Cape", "Épée courte", "Grande épée", "Écharpe"})
            cbo_Objet.AddItem(Each);
        cbo_Objet.OnClick = [this] { Log << QString::number(cbo_Objet.ListIndex); };
        lst_Noms.OnClick = [this] { Log << QString::number(lst_Noms.ListIndex); };
        cmd_Ajouter.OnClick = [this] { Log << "Ajouter"; };
        Place(lst_Noms, {490, 100, 120, 100});
        Place(lst_Prix, {620, 100, 120, 100});
        PlaceButton(cmd_Ajouter, "Ajouter", "Ajouter au panier", {200, 520, 120, 40},
                    "Ctrl+Return");
        PlaceButton(cmd_Retour, "Retour", "", {600, 520, 120, 40});
        Place(img_Blason, {490, 300, 100, 100});
    }

    void Activate() override { Log << "activated"; }
    bool LeadsBack() const override { return GoesBack; }
    void WayBack() override
    {
        Log << "back";
        Hide();
    }

    SideMenu NAMED(Bar_Menus);
    Label NAMED(lbl_Nombre), NAMED(lbl_Nom), NAMED(lbl_Objet);
    TextBox NAMED(txt_Nombre), NAMED(txt_Nom), NAMED(txt_Total), NAMED(txt_Poids);
    ComboBox NAMED(cbo_Objet);
    ListBox NAMED(lst_Noms), NAMED(lst_Prix);
    Image NAMED(img_Blason);
    Button NAMED(cmd_Ajouter), NAMED(cmd_Retour);
    Shape NAMED(shp_Gauche), NAMED(shp_Droite);
    bool GoesBack = true;
    QStringList Log; // what its handlers have noted
};

// A row of a table: what somebody does, as Stage::Play reads it, and what there is to see then.
struct Row
{
    const char* Name;
    const char* Deeds;
    const char* Expected;

    friend void PrintTo(const Row& Given, std::ostream* Out) { *Out << Given.Deeds; }
};

// A test for each row of a table.
#define EACH_ROW(Suite, Rows)                                                                      \
    TEST_P(Suite, Row)                                                                             \
    {                                                                                              \
        Play(GetParam().Deeds);                                                                    \
        EXPECT_EQ(Seen(), GetParam().Expected);                                                    \
    }                                                                                              \
    INSTANTIATE_TEST_SUITE_P(, Suite, ::testing::ValuesIn(Rows),                                   \
                             [](const auto& Each) { return std::string(Each.param.Name); })

// The made-up screen behind the user's door.
class Stage : public ::testing::TestWithParam<Row>
{
  protected:
    Stage()
    {
        TheForms.Register("frm_Atelier",
                          [this] { return std::make_unique<frm_Atelier>(TheForms); });
        Deeds["in"] = [this](const QString& Name) { The<QWidget>(Name).setFocus(); };
        Deeds["click"] = [this](const QString& Name) { Click(The<QWidget>(Name)); };
        Deeds["hide"] = [this](const QString& Name) { Find(Name).Visible = false; };
        Deeds["show"] = [this](const QString& Name) { Find(Name).Visible = true; };
    }

    frm_Atelier& Atelier() { return static_cast<frm_Atelier&>(TheForms.Touch("frm_Atelier")); }
    Control& Find(const QString& Name) { return Atelier().Find(FromQt(Name)); }
    QStringList& Log() { return Atelier().Log; }

    // What a row expects: what has run, if a suite doesn't tell more.
    virtual std::string Seen()
    {
        EXPECT_EQ(Window().isVisible(), Atelier().IsVisible());
        return FromQt(Log().join('|'));
    }

    void Show()
    {
        Atelier().Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
        Log().clear();
    }

    template <class Pointer>
    static auto& Checked(Pointer Given, const std::string& What)
    {
        if (Given == nullptr)
            throw std::runtime_error("there is no " + What);
        return *Given;
    }

    ScreenWindow& Window() { return Checked(Windows.WindowOf(Atelier()), "window"); }

    // The widget of a control, or of an entry of the menu.
    template <class WidgetType>
    WidgetType& The(const QString& Name)
    {
        return Checked(dynamic_cast<WidgetType*>(Window().template findChild<QWidget*>(Name)),
                       "widget of " + FromQt(Name));
    }
    static QWidget& Focused() // of the box that is up, or of the active window
    {
        const QWidget* Box = QApplication::activeModalWidget();
        return Checked(Box == nullptr ? QApplication::focusWidget() : Box->focusWidget(), "focus");
    }

    // Letters are typed where the focus is; "<Alt+Down>" is a key, "<click cmd_Retour>" a deed.
    void Play(const QString& Script)
    {
        if (Windows.WindowOf(Atelier()) == nullptr)
            Show();
        static const QRegularExpression Part("<([^<> ]+) ?([^<>]*)>|[^<>]+");
        for (const QRegularExpressionMatch& Each : Part.globalMatch(Script)) {
            const QString Word = Each.captured(1);
            if (Word.isEmpty()) {
                QTest::keyClicks(&Focused(), Each.captured());
            } else if (const auto Deed = Deeds.find(Word); Deed != Deeds.end()) {
                Deed->second(Each.captured(2));
            } else {
                const auto Keys = QKeySequence::fromString(Word, QKeySequence::PortableText);
                ASSERT_EQ(Keys.count(), 1) << Word.toStdString();
                QTest::keyClick(&Focused(), Keys[0].key(), Keys[0].keyboardModifiers());
            }
            QCoreApplication::processEvents();
        }
    }

    static void Click(QWidget& On, QPoint At = {})
    {
        QTest::mouseClick(&On, Qt::LeftButton, {}, At);
    }
    static void ClickRow(const QListView& List, int Row)
    {
        Click(*List.viewport(), List.visualRect(List.model()->index(Row, 0)).center());
    }

    Forms TheForms;
    ScriptedDialogs Boxes;
    User Door{TheForms, Boxes, [] {}};
    Desktop Windows{TheForms, Door};
    std::map<QString, std::function<void(const QString&)>> Deeds;
};

} // namespace orvane
