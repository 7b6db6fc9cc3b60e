#include "stage.h"
#include "view/text_box_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>

namespace orvane {

class TextBoxOnScreen : public Stage
{
  protected:
    TextBoxView& Field(TextBox& Which)
    {
        auto& Result = The<TextBoxView>(Which);
        Result.setFocus();
        Result.selectAll();
        return Result;
    }
    static void Copy(const QString& Text) { QGuiApplication::clipboard()->setText(Text); }
};

TEST_F(TextBoxOnScreen, EachKeyReachesTheModel)
{
    Show();
    std::vector<std::string> Seen;
    Atelier().txt_Nom.OnChange = [&] { Seen.push_back(Atelier().txt_Nom.Text); };
    Field(Atelier().txt_Nom);
    Type("Bob.");
    EXPECT_EQ(Seen, (std::vector<std::string>{"B", "Bo", "Bob", "Bob."}));
}

TEST_F(TextBoxOnScreen, ATypedPointIsACommaWhereANumberIsMeant)
{
    Show();
    auto& Widget = Field(Atelier().txt_Nombre);
    Type("12.5");
    EXPECT_EQ(Atelier().txt_Nombre.Text(), "12,5");
    EXPECT_EQ(Widget.text(), "12,5");
}

TEST_F(TextBoxOnScreen, TheKeypadsDecimalKeyIsAComma)
{
    Show();
    auto& Widget = Field(Atelier().txt_Nombre);
    Type("7");
    QTest::sendKeyEvent(QTest::Click, &Widget, Qt::Key_Period, QStringLiteral("."),
                        Qt::KeypadModifier);
    Type("2");
    EXPECT_EQ(Atelier().txt_Nombre.Text(), "7,2");
}

TEST_F(TextBoxOnScreen, PastedNumbersLoseTheirBlanks)
{
    Show();
    const std::pair<const char*, const char*> Cases[] = {
        {"12.5", "12,5"},
        {"1 234,50", "1234,50"},
        {"1\u00A0234,50", "1234,50"},
        {" 1\u202F234\u2009567 ", "1234567"},
    };
    for (const auto& [Pasted, Expected] : Cases) {
        Field(Atelier().txt_Nombre);
        Copy(QString::fromUtf8(Pasted));
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Atelier().txt_Nombre.Text(), Expected) << Pasted;
    }
}

TEST_F(TextBoxOnScreen, TheMenusPasteTakesTheSameRoad)
{
    Show();
    auto& Widget = Field(Atelier().txt_Nombre);
    Copy("3.25");
    QContextMenuEvent Asked(QContextMenuEvent::Mouse, {5, 5}, Widget.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&Widget, &Asked);
    auto* Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(Menu, nullptr);
    for (QAction* Each : Menu->actions())
        if (Each->text().contains("Ctrl+V"))
            Each->trigger();
    Menu->close();
    EXPECT_EQ(Atelier().txt_Nombre.Text(), "3,25");
}

TEST_F(TextBoxOnScreen, ADroppedNumberTakesTheSameRoad)
{
    Show();
    auto& Widget = Field(Atelier().txt_Nombre);
    Widget.clear();
    QMimeData Data;
    Data.setText("0.75");
    QDragEnterEvent Enter(QPoint(5, 5), Qt::CopyAction, &Data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Widget, &Enter);
    QDropEvent Drop(QPointF(5, 5), Qt::CopyAction, &Data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Widget, &Drop);
    EXPECT_EQ(Atelier().txt_Nombre.Text(), "0,75");
}

TEST_F(TextBoxOnScreen, APasteElsewhereKeepsPointsAndBlanks)
{
    Show();
    Field(Atelier().txt_Nom);
    Copy("M. de\nTours");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Atelier().txt_Nom.Text(), "M. de Tours");
}

TEST_F(TextBoxOnScreen, ARepairedTextIsSelectedSoThatTheNextKeyReplacesIt)
{
    TextBox& Box = Atelier().txt_Nombre;
    Box.StartWith("5");
    Box.OnChange = [&] {
        if (Box.Text == "")
            Box.Text = "0";
    };
    Show();
    auto& Widget = Field(Box);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Widget.text(), "0");
    EXPECT_EQ(Widget.selectedText(), "0");
    Type("8");
    EXPECT_EQ(Box.Text(), "8");
    EXPECT_EQ(Widget.text(), "8");
}

TEST_F(TextBoxOnScreen, TheProgramsTextIsShownWithoutEcho)
{
    Show();
    int Runs = 0;
    Atelier().txt_Nom.OnChange = [&] { ++Runs; };
    Atelier().txt_Nom.Text = "Épée";
    EXPECT_EQ(The<TextBoxView>(Atelier().txt_Nom).text(), "Épée");
    EXPECT_EQ(Runs, 1);
}

TEST_F(TextBoxOnScreen, UndoReachesTheModel)
{
    Show();
    Field(Atelier().txt_Nombre);
    Type("4.5");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Atelier().txt_Nombre.Text(), "");
}

TEST_F(TextBoxOnScreen, ALockedBoxTakesNoTextFromAnyRoad)
{
    Atelier().txt_Total.Text = "42";
    Show();
    auto& Widget = Field(Atelier().txt_Total);
    ASSERT_TRUE(Widget.hasFocus()) << "its text can be selected for copying";
    Type("9");
    Copy("9");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Widget.text(), "42");
    EXPECT_EQ(Atelier().txt_Total.Text(), "42");
    EXPECT_TRUE(Widget.isReadOnly());
    EXPECT_FALSE(Widget.focusPolicy() & Qt::TabFocus);
}

TEST_F(TextBoxOnScreen, UnlockingOpensItAtOnce)
{
    Show();
    Atelier().txt_Total.Locked = false;
    Field(Atelier().txt_Total);
    Type("9");
    EXPECT_EQ(Atelier().txt_Total.Text(), "9");
}

TEST_F(TextBoxOnScreen, AWrongTextIsMarkedAndTold)
{
    Show();
    auto& Widget = Field(Atelier().txt_Nombre);
    const QColor Usual = Widget.palette().color(QPalette::Base);
    EXPECT_EQ(Usual, QColor(192, 192, 192));
    Type("abc");
    EXPECT_NE(Widget.palette().color(QPalette::Base), Usual);
    EXPECT_EQ(Widget.toolTip(), "Ce texte n’est pas un nombre.");
    EXPECT_EQ(Widget.accessibleDescription(), "Ce texte n’est pas un nombre.");
    Widget.selectAll();
    Type("3");
    EXPECT_EQ(Widget.palette().color(QPalette::Base), Usual);
    EXPECT_EQ(Widget.toolTip(), "");
    EXPECT_EQ(Widget.accessibleDescription(), "");
}

TEST_F(TextBoxOnScreen, AStaleFigureIsMutedAndTold)
{
    Show();
    auto& Widget = The<TextBoxView>(Atelier().txt_Total);
    const QColor Usual = Widget.palette().color(QPalette::Text);
    Atelier().txt_Total.Stale = true;
    EXPECT_TRUE(Widget.font().italic());
    EXPECT_NE(Widget.palette().color(QPalette::Text), Usual);
    EXPECT_EQ(Widget.accessibleDescription(), "Ce chiffre date d’avant une saisie à corriger.");
    Atelier().txt_Total.Stale = false;
    EXPECT_FALSE(Widget.font().italic());
    EXPECT_EQ(Widget.palette().color(QPalette::Text), Usual);
}

TEST_F(TextBoxOnScreen, ATextThatDoesNotFitIsToldWhole)
{
    Show();
    const std::string Long = "Une très longue désignation qui ne tient pas dans cent points";
    Atelier().txt_Total.Text = Long;
    EXPECT_EQ(The<TextBoxView>(Atelier().txt_Total).toolTip(), ToQt(Long));
    Atelier().txt_Total.Text = "1";
    EXPECT_EQ(The<TextBoxView>(Atelier().txt_Total).toolTip(), "");
}

TEST_F(TextBoxOnScreen, AFailureBehindTheDoorIsOneBoxAndTheWindowGoesOn)
{
    Show();
    const Failure Given(FailureKind::ChoiceMissing, "Cape");
    Atelier().txt_Nom.OnChange = [&] { throw Given; };
    Boxes.ExpectMsgBox(Given.Sentence());
    Field(Atelier().txt_Nom);
    Type("x");
    EXPECT_TRUE(Boxes.IsDone());
    EXPECT_EQ(The<TextBoxView>(Atelier().txt_Nom).text(), "x");
}

} // namespace orvane
