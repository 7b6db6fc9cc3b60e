#pragma once

#include "support/scripted_dialogs.h"
#include "toolkit/forms.h"
#include "toolkit/placing.h"
#include "toolkit/user.h"
#include "view/desktop.h"
#include "view/qt_text.h"
#include "view/screen_window.h"

#include <QTest>

#include <gtest/gtest.h>

namespace orvane {

// A made-up screen: two panels side by side, a menu at the left, a row of buttons below.
class frm_Atelier : public Screen
{
  public:
    explicit frm_Atelier(Forms& Owner) : Screen(Owner, "frm_Atelier", "Atelier d'essai")
    {
        SizeScreen(*this, 800, 600);
        Place(Bar_Menus, {10, 10, 150, 560});
        PlacePanel(shp_Gauche, {170, 10, 300, 480});
        PlacePanel(shp_Droite, {480, 10, 300, 480});
        PlaceLabel(lbl_Nombre, "Nb d'objets :", {180, 40, 100, 24});
        Place(txt_Nombre, {290, 40, 100, 24});
        txt_Nombre.OpenFor(NumberKind::Montant);
        PlaceLabel(lbl_Nom, "Nom :", {180, 80, 100, 24});
        Place(txt_Nom, {290, 80, 100, 24});
        txt_Nom.Locked = false;
        Place(txt_Total, {290, 120, 100, 24});
        PlaceLabel(lbl_Objet, "Objet :", {490, 40, 60, 24});
        Place(cbo_Objet, {560, 40, 160, 24});
        for (const char* Each : {"Cape", "Épée courte", "Grande épée", "Écharpe"})
            cbo_Objet.AddItem(Each);
        Place(lst_Noms, {490, 100, 120, 100});
        Place(lst_Prix, {620, 100, 120, 100});
        PlaceButton(cmd_Ajouter, "Ajouter", "Ajouter au panier", {200, 520, 120, 40});
        PlaceButton(cmd_Retour, "Retour", "", {600, 520, 120, 40});
        Place(img_Blason, {490, 300, 100, 100});
    }

    bool LeadsBack() const override { return GoesBack; }
    bool GoesBack = true;

    void WayBack() override
    {
        ++WaysBack;
        Hide();
    }

    void Fill(int Count)
    {
        lst_Noms.Clear();
        lst_Prix.Clear();
        for (int i = 0; i < Count; ++i) {
            lst_Noms.AddItem("Objet " + std::to_string(i));
            lst_Prix.AddItem(std::to_string(10 * i));
        }
    }

    SideMenu NAMED(Bar_Menus);
    Label NAMED(lbl_Nombre);
    Label NAMED(lbl_Nom);
    Label NAMED(lbl_Objet);
    TextBox NAMED(txt_Nombre);
    TextBox NAMED(txt_Nom);
    TextBox NAMED(txt_Total);
    ComboBox NAMED(cbo_Objet);
    ListBox NAMED(lst_Noms);
    ListBox NAMED(lst_Prix);
    Image NAMED(img_Blason);
    Button NAMED(cmd_Ajouter);
    Button NAMED(cmd_Retour);
    Shape NAMED(shp_Gauche);
    Shape NAMED(shp_Droite);
    int WaysBack = 0;
};

// The made-up screen behind the user's door, shown when a test has prepared it.
class Stage : public ::testing::Test
{
  protected:
    Stage()
    {
        TheForms.Register("frm_Atelier",
                          [this] { return std::make_unique<frm_Atelier>(TheForms); });
    }

    frm_Atelier& Atelier() { return static_cast<frm_Atelier&>(TheForms.Touch("frm_Atelier")); }

    void Show()
    {
        Atelier().Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    }

    ScreenWindow& Window() { return *Windows.WindowOf(Atelier()); }

    // The widget of a control.
    template <class WidgetType>
    WidgetType& The(const Control& Which)
    {
        auto* Found =
            dynamic_cast<WidgetType*>(Window().template findChild<QWidget*>(ToQt(Which.Name())));
        if (Found == nullptr)
            throw std::runtime_error("no widget for " + Which.Name());
        return *Found;
    }

    void Press(Qt::Key Key, Qt::KeyboardModifiers With = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Key, With);
    }
    void Type(const QString& Text) { QTest::keyClicks(QApplication::focusWidget(), Text); }

    static void Wheel(QWidget& Over, int Angle)
    {
        const QPointF At = Over.rect().center();
        QWheelEvent Turn(At, Over.mapToGlobal(At), {}, {0, Angle}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Over, &Turn);
    }

    Forms TheForms;
    ScriptedDialogs Boxes;
    User Door{TheForms, Boxes, [] {}};
    Desktop Windows{TheForms, Door};
};

} // namespace orvane
