#include "stage.h"
#include "view/combo_box_view.h"
#include "view/entry_popup.h"

#include <QLineEdit>

namespace orvane {

class ComboBoxOnScreen : public Stage
{
  protected:
    void Open()
    {
        Box().OnClick = [this] { ++Clicks; };
        Show();
        View().setFocus();
        Field().selectAll();
    }
    ComboBox& Box() { return Atelier().cbo_Objet; }
    ComboBoxView& View() { return The<ComboBoxView>(Box()); }
    QLineEdit& Field() { return *View().lineEdit(); }
    bool IsOpen() { return View().Popup() != nullptr && View().Popup()->isVisible(); }
    QStringList Offered()
    {
        QStringList Result;
        if (IsOpen())
            for (int Row = 0; Row < View().Popup()->model()->rowCount(); ++Row)
                Result << View().Popup()->model()->index(Row, 0).data().toString();
        return Result;
    }
    void ClickRow(int Row)
    {
        const EntryPopup& Popup = *View().Popup();
        QTest::mouseClick(Popup.viewport(), Qt::LeftButton, {},
                          Popup.visualRect(Popup.model()->index(Row, 0)).center());
    }
    void ClickArrow()
    {
        QTest::mouseClick(&View(), Qt::LeftButton, {}, {View().width() - 8, View().height() / 2});
    }

    int Clicks = 0;
};

TEST_F(ComboBoxOnScreen, TypingRunsAndChoosesNothing)
{
    Open();
    Type("Cape");
    EXPECT_EQ(Box().Text(), "Cape");
    EXPECT_EQ(Box().ListIndex, -1);
    Press(Qt::Key_Tab);
    EXPECT_FALSE(View().hasFocus());
    EXPECT_EQ(Box().ListIndex, -1) << "leaving the box isn't a pick either";
    EXPECT_EQ(Clicks, 0);
}

TEST_F(ComboBoxOnScreen, TypingOffersWithoutRegardToCaseAndAccentsBeginningsFirst)
{
    Open();
    Type("ep");
    EXPECT_EQ(Offered(), (QStringList{"Épée courte", "Grande épée"}));
    Field().selectAll();
    Type("GRANDE ÉP");
    EXPECT_EQ(Offered(), QStringList{"Grande épée"});
    Type("x");
    EXPECT_FALSE(IsOpen());
}

TEST_F(ComboBoxOnScreen, EnterTakesTheHighlightedOffer)
{
    Open();
    Type("ep");
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(Clicks, 0) << "going through the offers picks none";
    Press(Qt::Key_Return);
    EXPECT_EQ(Box().ListIndex, 2);
    EXPECT_EQ(Field().text(), "Grande épée");
    EXPECT_EQ(Clicks, 1);
    EXPECT_FALSE(IsOpen());
}

TEST_F(ComboBoxOnScreen, AnEntryTypedInFullIsTakenByEnter)
{
    Open();
    Type("cape");
    Press(Qt::Key_Enter);
    EXPECT_EQ(Box().ListIndex, 0);
    EXPECT_EQ(Box().Text(), "Cape");
}

TEST_F(ComboBoxOnScreen, EnterWithoutAHighlightKeepsTheTypedText)
{
    Open();
    Type("ca");
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_EQ(Box().Text(), "ca");
    EXPECT_EQ(Box().ListCount(), 4) << "nothing is inserted into the list";
    EXPECT_EQ(Clicks, 0);
}

TEST_F(ComboBoxOnScreen, AnOfferIsPickedByTheMouse)
{
    Open();
    Type("ep");
    ClickRow(1);
    EXPECT_EQ(Box().ListIndex, 2);
    EXPECT_EQ(Clicks, 1);
    EXPECT_TRUE(View().hasFocus());
}

TEST_F(ComboBoxOnScreen, TheArrowOpensAndClosesTheWholeList)
{
    Open();
    ClickArrow();
    EXPECT_EQ(Offered(), (QStringList{"Cape", "Épée courte", "Grande épée", "Écharpe"}));
    ClickArrow();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Clicks, 0);
}

TEST_F(ComboBoxOnScreen, PickingTheChosenEntryAgainIsAPick)
{
    Box().ListIndex = 1;
    Open();
    ClickArrow();
    ClickRow(1);
    EXPECT_EQ(Clicks, 1);
    Press(Qt::Key_F4);
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(View().Popup()->Highlighted(), 1);
    Press(Qt::Key_Return);
    EXPECT_EQ(Clicks, 2);
    EXPECT_EQ(Box().ListIndex, 1);
}

TEST_F(ComboBoxOnScreen, ArrowKeysOnTheClosedListPickTheNeighbour)
{
    Open();
    Press(Qt::Key_Up);
    EXPECT_EQ(Clicks, 0);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(Field().text(), "Épée courte");
    Press(Qt::Key_Up);
    EXPECT_EQ(Field().text(), "Cape");
    EXPECT_EQ(Clicks, 3);
    Press(Qt::Key_Up);
    EXPECT_EQ(Clicks, 3) << "the first entry has none before it";
}

TEST_F(ComboBoxOnScreen, AltDownOpensAndEscapeClosesTheListBeforeTheWindow)
{
    Open();
    Press(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(IsOpen());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Atelier().WaysBack, 0);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Atelier().WaysBack, 1);
}

TEST_F(ComboBoxOnScreen, TheWheelPicksNothing)
{
    Box().ListIndex = 1;
    Open();
    Wheel(View(), -120);
    Wheel(Field(), -120);
    EXPECT_EQ(Box().ListIndex, 1);
    EXPECT_EQ(Field().text(), "Épée courte");
    EXPECT_EQ(Clicks, 0);
}

TEST_F(ComboBoxOnScreen, APressElsewhereClosesTheList)
{
    Open();
    ClickArrow();
    QTest::mouseClick(&Window(), Qt::LeftButton, {}, {400, 580});
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Clicks, 0);
}

TEST_F(ComboBoxOnScreen, TheProgramsTextIsShownAlsoWhenItIsNoEntry)
{
    Open();
    Box().ListIndex = 2;
    EXPECT_EQ(Field().text(), "Grande épée");
    Box().Text = "rien de tel";
    EXPECT_EQ(Field().text(), "rien de tel");
    Box().Clear();
    EXPECT_EQ(Field().text(), "");
    EXPECT_EQ(Clicks, 1) << "of the assignment, without echo";
}

TEST_F(ComboBoxOnScreen, ALongEntryIsReadableInTheListAndInATip)
{
    const std::string Long = "Grande pelisse d'apparat du conseil des Neuf Foyers de la Marche";
    Box().AddItem(Long);
    Open();
    ClickArrow();
    EXPECT_GT(View().Popup()->width(), View().fontMetrics().horizontalAdvance(ToQt(Long)));
    EXPECT_TRUE(Window().rect().contains(View().Popup()->geometry()));
    ClickRow(4);
    EXPECT_EQ(Field().cursorPosition(), 0) << "the field shows its beginning";
    EXPECT_EQ(View().toolTip(), ToQt(Long));
    Box().ListIndex = 0;
    EXPECT_EQ(View().toolTip(), "");
}

TEST_F(ComboBoxOnScreen, ARefilledListOffersItsNewEntries)
{
    Open();
    Type("ep");
    Box().Clear();
    for (const char* Each : {"Épinglette", "b", "c", "d"}) // as many as before
        Box().AddItem(Each);
    Field().selectAll();
    Type("epi");
    EXPECT_EQ(Offered(), QStringList{"Épinglette"});
}

} // namespace orvane
