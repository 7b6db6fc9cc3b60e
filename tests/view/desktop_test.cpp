#include "stage.h"

#include <QDialog>
#include <QEvent>

namespace orvane {

// A second screen beside the made-up one.
class frm_Voisin : public Screen
{
  public:
    frm_Voisin(Forms& Owner, QStringList& Log) : Screen(Owner, "frm_Voisin", "Voisin"), Log(Log)
    {
        SizeScreen(*this, 300, 200);
        Place(txt_Note, {10, 10, 100, 24});
        txt_Note.Locked = false;
        txt_Note.OnChange = [this] { this->Log << ToQt(txt_Note.Text()); };
    }
    void Activate() override { Log << "activated"; }

    QStringList& Log;
    TextBox NAMED(txt_Note);
};

class TwoWindows : public Stage
{
  protected:
    void SetUp() override
    {
        TheForms.Register("frm_Voisin",
                          [this] { return std::make_unique<frm_Voisin>(TheForms, Atelier().Log); });
        Deeds["press"] = [this](auto&) { Click(Lower(), {150, 150}); };
        Deeds["type"] = [this](auto&) {
            QTest::keyClicks(&Checked(Lower().findChild<QWidget*>("txt_Note"), "field"), "a");
        };
        Deeds["focus"] = [this](auto&) { Lower().activateWindow(), Await(); };
        Deeds["ask"] = [this](auto&) { // the desktop hasn't answered yet
            Voisin().Show();
            PassThrough(Window());
        };
        Deeds["box"] = [this](auto&) {
            QDialog Box;
            Box.open();
            PassThrough(Lower());
            Log() << "box";
        };
        Deeds["leave"] = [this](auto&) { Atelier().Hide(), Await(); };
        Voisin().Show();
        Show();
        Log().clear();
    }
    frm_Voisin& Voisin() { return static_cast<frm_Voisin&>(TheForms.Touch("frm_Voisin")); }
    ScreenWindow& Lower() { return Checked(Windows.WindowOf(Voisin()), "lower window"); }
    void Await() { EXPECT_TRUE(QTest::qWaitForWindowActive(&Lower())); }

    static void PassThrough(QWidget& Which) // the focus, on its way elsewhere
    {
        QEvent Passing(QEvent::WindowActivate);
        QApplication::sendEvent(&Which, &Passing);
    }

    // What has run on the lower one, which is the active one at the end.
    std::string Seen() override
    {
        EXPECT_EQ(TheForms.Active(), &Voisin());
        EXPECT_EQ(Window().isVisible(), Atelier().IsVisible());
        return Stage::Seen();
    }
};

constexpr Row TurnRows[] = {
    {"APressActivates", "<press>", "activated"},
    {"TheDesktopsFocusActivates", "<focus>", "activated"},
    {"TypingActivatesFirst", "<type>", "activated|a"},
    {"TheOneBelowIsActivatedOnce", "<leave>", "activated"},
    {"AFocusPassingByIsNobodysWish", "<ask>", "activated"},
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
