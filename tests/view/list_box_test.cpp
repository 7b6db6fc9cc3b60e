#include "stage.h"
#include "view/list_box_view.h"

#include <QScrollBar>

namespace orvane {

class ListBoxOnScreen : public Stage
{
  protected:
    void Open(int Count)
    {
        Atelier().Fill(Count);
        Names().OnClick = [this] { ++Clicks; };
        Show();
        QCoreApplication::processEvents();
        View().setFocus();
    }
    ListBox& Names() { return Atelier().lst_Noms; }
    ListBoxView& View() { return The<ListBoxView>(Names()); }
    ListBoxView& PriceView() { return The<ListBoxView>(Atelier().lst_Prix); }
    void ClickRow(int Row)
    {
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {},
                          View().visualRect(View().model()->index(Row, 0)).center());
    }
    int ShownRow() { return View().currentIndex().isValid() ? View().currentIndex().row() : -1; }

    int Clicks = 0;
};

TEST_F(ListBoxOnScreen, AClickPicksAlsoTheChosenEntry)
{
    Open(3);
    ClickRow(1);
    EXPECT_EQ(Names().ListIndex, 1);
    ClickRow(1);
    EXPECT_EQ(Clicks, 2);
    EXPECT_EQ(ShownRow(), 1);
}

TEST_F(ListBoxOnScreen, AClickBelowTheEntriesPicksNothing)
{
    Open(1);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, {10, View().height() - 8});
    EXPECT_EQ(Clicks, 0);
    EXPECT_EQ(Names().ListIndex, -1);
}

TEST_F(ListBoxOnScreen, KeysPick)
{
    Open(4);
    const std::pair<Qt::Key, int> Steps[] = {
        {Qt::Key_Down, 0}, {Qt::Key_Down, 1}, {Qt::Key_End, 3}, {Qt::Key_Up, 2}, {Qt::Key_Home, 0}};
    for (const auto& [Key, Expected] : Steps) {
        Press(Key);
        EXPECT_EQ(Names().ListIndex, Expected);
        EXPECT_EQ(ShownRow(), Expected);
    }
    EXPECT_EQ(Clicks, 5);
}

TEST_F(ListBoxOnScreen, LettersFindAnEntryWithoutRegardToAccents)
{
    Open(2);
    Names().AddItem("Écharpe");
    Press(Qt::Key_E);
    EXPECT_EQ(Names().ListIndex, 2);
}

TEST_F(ListBoxOnScreen, TheProgramsChoiceIsShownWithoutEcho)
{
    Open(3);
    Names().ListIndex = 2;
    EXPECT_EQ(ShownRow(), 2);
    EXPECT_EQ(Clicks, 1) << "of the assignment";
    Names().ListIndex = -1;
    EXPECT_TRUE(View().selectionModel()->selectedIndexes().isEmpty());
    EXPECT_EQ(Clicks, 2);
}

TEST_F(ListBoxOnScreen, ARefilledListIsShownAfterTheEvent)
{
    Open(3);
    ClickRow(2);
    Atelier().Fill(2);
    QCoreApplication::processEvents();
    EXPECT_EQ(View().model()->rowCount(), 2);
    EXPECT_EQ(ShownRow(), -1);
    EXPECT_EQ(View().model()->index(1, 0).data().toString(), "Objet 1");
}

TEST_F(ListBoxOnScreen, AHandlerThatEmptiesTheListIsSafe)
{
    Open(3);
    Names().OnClick = [this] { Names().Clear(); };
    ClickRow(1);
    EXPECT_EQ(View().model()->rowCount(), 0);
    EXPECT_EQ(ShownRow(), -1);
}

TEST_F(ListBoxOnScreen, ColumnsScrollTogetherByTheBarAtTheRight)
{
    Open(50);
    EXPECT_FALSE(View().verticalScrollBar()->isVisible());
    EXPECT_TRUE(PriceView().verticalScrollBar()->isVisible());
    PriceView().verticalScrollBar()->setValue(20);
    EXPECT_EQ(View().verticalScrollBar()->value(), 20);
    Names().ListIndex = 49;
    EXPECT_EQ(PriceView().verticalScrollBar()->value(), View().verticalScrollBar()->value());
    EXPECT_GT(View().verticalScrollBar()->value(), 20);
}

TEST_F(ListBoxOnScreen, ListsOfDifferentLengthsAreNoColumns)
{
    Open(50);
    Names().AddItem("une de plus");
    QCoreApplication::processEvents();
    EXPECT_TRUE(View().verticalScrollBar()->isVisible());
    PriceView().verticalScrollBar()->setValue(20);
    EXPECT_EQ(View().verticalScrollBar()->value(), 0);
}

TEST_F(ListBoxOnScreen, WithoutItsNeighbourAColumnHasItsBar)
{
    Open(50);
    Atelier().lst_Prix.Visible = false;
    QCoreApplication::processEvents();
    EXPECT_TRUE(View().verticalScrollBar()->isVisible());
}

} // namespace orvane
