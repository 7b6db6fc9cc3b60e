#include "toolkit/small_screen.h"

namespace orvane {

namespace {

class Windows : public FormsObserver
{
  public:
    explicit Windows(std::string& Log) : Log(Log) {}

    void Shown(Screen& Which) override { Log += "shown " + Which.Name() + ";"; }
    void Hidden(Screen& Which) override { Log += "hidden " + Which.Name() + ";"; }

  private:
    std::string& Log;
};

} // namespace

using FormsTest = ScreenTest;

TEST_F(FormsTest, AScreenIsLoadedAtItsFirstTouchAndOnceOnly)
{
    EXPECT_EQ(TheForms.Count(), 0);
    SmallScreen& B = Get("B");
    EXPECT_EQ(Log, "load B;") << "before the touch returns, and without being shown";
    EXPECT_EQ(&Get("B"), &B);
    B.Show();
    B.Hide();
    B.Show();
    Get("A");
    EXPECT_EQ(Log, "load B;activate B;activate B;load A;");
    ASSERT_EQ(TheForms.Count(), 2);
    EXPECT_EQ(&TheForms[0], &B) << "in the order of loading";
    EXPECT_FAILS(Program, Get("Z"));
    EXPECT_EQ(TheForms.Count(), 2);
}

TEST_F(FormsTest, LoadMayTouchOtherScreensAndItself)
{
    TheForms.Register("D", [this] {
        auto Made = std::make_unique<SmallScreen>(TheForms, "D", Log);
        Made->OnLoad = [this] {
            Get("D").txt_Nb.Text = "1";
            Get("A");
            Log += "end of load D;";
        };
        return Made;
    });
    Get("D");
    EXPECT_EQ(Log, "load D;load A;end of load D;");
    EXPECT_EQ(TheForms.Count(), 2);
}

TEST_F(FormsTest, ShowActivatesUnlessTheScreenIsActiveAlready)
{
    SmallScreen& A = Get("A");
    SmallScreen& B = Get("B");
    Log.clear();
    A.Show();
    A.Show();
    EXPECT_EQ(Log, "activate A;");
    B.Show();
    EXPECT_EQ(Stack(), "AB");
    A.Show();
    EXPECT_EQ(Log, "activate A;activate B;activate A;");
    EXPECT_EQ(Stack(), "BA");
    EXPECT_EQ(TheForms.Active(), &A);
}

TEST_F(FormsTest, HideActivatesTheScreenBelowBeforeTheNextLine)
{
    Shown("A");
    Shown("B");
    SmallScreen& C = Shown("C");
    C.Hide();
    Log += "next line;";
    EXPECT_EQ(Log, "activate B;next line;");
    EXPECT_EQ(TheForms.Active()->Name(), "B");
    EXPECT_FALSE(C.IsVisible());
}

TEST_F(FormsTest, HidingAScreenThatIsNotActiveActivatesNothing)
{
    SmallScreen& A = Shown("A");
    SmallScreen& B = Shown("B");
    A.Hide();
    EXPECT_EQ(Log, "");
    EXPECT_EQ(Stack(), "B");
    B.Hide();
    EXPECT_EQ(Log, "");
    EXPECT_EQ(TheForms.Active(), nullptr);
    B.Show();
    EXPECT_EQ(Log, "activate B;") << "shown again, active again";
}

TEST_F(FormsTest, AShowInsideAnActivationNestsAndTheInnerOneStaysOnTop)
{
    SmallScreen& A = Shown("A");
    SmallScreen& B = Get("B");
    Get("C");
    Log.clear();
    B.OnActivate = [this] {
        Get("C").Show();
        Log += "B goes on;";
    };
    B.Show();
    EXPECT_EQ(Log, "activate B;activate C;B goes on;");
    EXPECT_EQ(Stack(), "ABC");
    EXPECT_EQ(TheForms.Active()->Name(), "C");
    Log.clear();
    B.OnActivate = [&] { B.Hide(); };
    Get("C").Hide();
    EXPECT_EQ(Log, "activate B;activate A;") << "a chain of hides runs down the stack";
    EXPECT_EQ(TheForms.Active(), &A);
}

TEST_F(FormsTest, AFailureInAnActivationLeavesTheStackInOrder)
{
    Shown("A");
    SmallScreen& B = Get("B");
    B.OnActivate = [] { throw Failure(FailureKind::NoRow, "x"); };
    EXPECT_FAILS(NoRow, B.Show());
    EXPECT_EQ(Stack(), "AB");
    EXPECT_EQ(TheForms.Active(), &B);
    B.Hide();
    EXPECT_EQ(TheForms.Active()->Name(), "A");
}

TEST_F(FormsTest, TheObserverHearsOfWindowsBeforeTheirActivation)
{
    Windows Watcher(Log);
    TheForms.Observe(&Watcher);
    Shown("A");
    SmallScreen& B = Get("B");
    Log.clear();
    B.Show();
    B.Hide();
    EXPECT_EQ(Log, "shown B;activate B;hidden B;shown A;activate A;");
}

} // namespace orvane
