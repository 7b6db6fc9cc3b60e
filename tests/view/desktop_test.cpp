#include "stage.h"

#include <QEvent>

namespace orvane {

// A second screen beside the made-up one.
class frm_Voisin : public Screen
{
  public:
    explicit frm_Voisin(Forms& Owner) : Screen(Owner, "frm_Voisin", "Voisin")
    {
        SizeScreen(*this, 300, 200);
        Place(txt_Note, {10, 10, 100, 24});
        txt_Note.Locked = false;
    }
    void Activate() override { ++Activations; }

    TextBox NAMED(txt_Note);
    int Activations = 0;
};

class TwoWindows : public Stage
{
  protected:
    TwoWindows()
    {
        TheForms.Register("frm_Voisin", [this] { return std::make_unique<frm_Voisin>(TheForms); });
    }
    frm_Voisin& Voisin() { return static_cast<frm_Voisin&>(TheForms.Touch("frm_Voisin")); }
    ScreenWindow& VoisinWindow() { return *Windows.WindowOf(Voisin()); }

    // Both visible, the made-up one on top.
    void ShowBoth()
    {
        Voisin().Show();
        Show();
        Voisin().Activations = 0;
    }
};

TEST_F(TwoWindows, AWindowIsBuiltAtItsFirstShowingAndKept)
{
    EXPECT_EQ(Windows.WindowOf(Voisin()), nullptr);
    Voisin().Show();
    ScreenWindow* First = Windows.WindowOf(Voisin());
    ASSERT_NE(First, nullptr);
    Voisin().Hide();
    EXPECT_FALSE(First->isVisible());
    Voisin().Show();
    EXPECT_EQ(Windows.WindowOf(Voisin()), First);
    EXPECT_TRUE(First->isVisible());
}

TEST_F(TwoWindows, APressOnALowerWindowActivatesItsScreen)
{
    ShowBoth();
    QTest::mouseClick(&VoisinWindow(), Qt::LeftButton, {}, {150, 150});
    EXPECT_EQ(TheForms.Active(), &Voisin());
    EXPECT_EQ(Voisin().Activations, 1);
}

TEST_F(TwoWindows, TheFocusGivenByTheDesktopActivatesTheScreen)
{
    ShowBoth();
    VoisinWindow().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&VoisinWindow()));
    EXPECT_EQ(TheForms.Active(), &Voisin());
    EXPECT_EQ(Voisin().Activations, 1);
}

TEST_F(TwoWindows, TheFocusComingBackToTheActiveWindowActivatesNothing)
{
    Voisin().Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&VoisinWindow()));
    const int Before = Voisin().Activations;
    QWidget Other; // another window, as of another application
    Other.show();
    Other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Other));
    VoisinWindow().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&VoisinWindow()));
    EXPECT_EQ(Voisin().Activations, Before);
}

TEST_F(TwoWindows, WhileTheModelsWindowAwaitsTheFocusAnothersFocusIsNobodysWish)
{
    ShowBoth();
    Voisin().Show(); // the desktop hasn't answered yet
    QEvent Passing(QEvent::WindowActivate);
    QApplication::sendEvent(&Window(), &Passing);
    EXPECT_EQ(TheForms.Active(), &Voisin());
}

TEST_F(TwoWindows, HidingActivatesTheOneBelowOnce)
{
    ShowBoth();
    Atelier().Hide();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&VoisinWindow()));
    QCoreApplication::processEvents();
    EXPECT_EQ(Voisin().Activations, 1);
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(TwoWindows, TypingInALowerWindowActivatesItFirst)
{
    ShowBoth();
    QTest::keyClicks(&VoisinWindow().findChild<QWidget*>("txt_Note")[0], "a");
    EXPECT_EQ(TheForms.Active(), &Voisin());
    EXPECT_EQ(Voisin().txt_Note.Text(), "a");
}

TEST_F(TwoWindows, TheLastWindowHiddenDoesNotQuit)
{
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
}

} // namespace orvane
