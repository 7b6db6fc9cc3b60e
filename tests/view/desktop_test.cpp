#include "stage.h"

#include <QDialog>
#include <QEvent>

namespace orvane {

// A second screen of that kind below the first.
class TwoWindows : public Stage
{
  protected:
    void SetUp() override
    {
        TheForms.Register("frm_Voisin",
                          [this] { return std::make_unique<frm_Atelier>(TheForms, "frm_Voisin"); });
        Deeds["press"] = [this](auto&) { Click(Lower(), {400, 580}); };
        Deeds["type"] = [this](auto&) {
            QTest::keyClicks(&Checked(Lower().findChild<QWidget*>("txt_Nom"), "field"), "a");
        };
        Deeds["focus"] = [this](auto&) { Lower().activateWindow(), Await(); };
        Deeds["leave"] = [this](auto&) { Atelier().Hide(), Await(); };
        Deeds["ask"] = [this](auto&) { // the desktop hasn't answered yet
            Voisin().Show();
            PassThrough(Window());
        };
        Deeds["turns"] = [this](auto&) { // three clicks that are heard together, later
            for (QWidget* Each : {&Lower(), &Window(), &Lower()})
                Each->activateWindow();
            Rest();
        };
        Deeds["return"] = [this](auto&) {
            Atelier().Show();
            Voisin().Show();
            Rest();
        };
        Deeds["box"] = [this](auto&) {
            QDialog Box;
            Box.open();
            PassThrough(Lower());
            Voisin().Log << "box";
        };
        Voisin().Show();
        Show();
        Voisin().Log.clear();
        Voisin().txt_Nom.OnChange = [this] { Voisin().Log << ToQt(Voisin().txt_Nom.Text); };
    }
    frm_Atelier& Voisin() { return static_cast<frm_Atelier&>(TheForms.Touch("frm_Voisin")); }
    ScreenWindow& Lower() { return Checked(Windows.WindowOf(Voisin()), "lower window"); }
    void Await() { EXPECT_TRUE(QTest::qWaitForWindowActive(&Lower())); }
    void Rest() // the upper one had its turn, once
    {
        QTest::qWait(100);
        EXPECT_EQ(QApplication::activeWindow(), &Lower());
        Log().removeOne("activated");
    }
    static void PassThrough(QWidget& Which) // the focus, on its way elsewhere
    {
        QEvent Passing(QEvent::WindowActivate);
        QApplication::sendEvent(&Which, &Passing);
    }

    // What has run on the lower one, which is the active one at the end.
    std::string Seen() override
    {
        EXPECT_EQ(TheForms.Active(), &Voisin());
        EXPECT_EQ(Stage::Seen(), "");
        return FromQt(Voisin().Log.join('|'));
    }
};

constexpr Row TurnRows[] = {
    {"APressActivates", "<press>", "activated"},
    {"TheDesktopsFocusActivates", "<focus>", "activated"},
    {"TypingActivatesFirst", "<type>", "activated|a"},
    {"TheOneBelowIsActivatedOnce", "<leave>", "activated"},
    {"AFocusPassingByIsNobodysWish", "<ask>", "activated"},
    {"TheLastOfOldClicksRests", "<turns>", "activated|activated"},
    {"AWindowLeftAndShownAgainRests", "<focus><return>", "activated|activated"},
    {"ABoxKeepsTheScreenActive", "<box><press>", "box|activated"},
};
EACH_ROW(TwoWindows, TurnRows);

using BuiltWindow = Stage;

TEST_F(BuiltWindow, IsMadeAtTheFirstShowingAndKept)
{
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
    EXPECT_EQ(Windows.WindowOf(Atelier()), nullptr);
    Show();
    const ScreenWindow& First = Window();
    Atelier().Hide();
    EXPECT_FALSE(First.isVisible());
    Atelier().Show();
    EXPECT_EQ(&Window(), &First);
    EXPECT_TRUE(First.isVisible());
}

} // namespace orvane
