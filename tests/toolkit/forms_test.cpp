#include "toolkit/small_screen.h"

#include <array>

namespace orvane {

class FormsTest : public ScreenTest, public FormsObserver
{
  protected:
    FormsTest() { TheForms.Observe(this); }

    void Shown(Screen& Which) override { Log += "^" + Which.Name() + " "; }
    void Hidden(Screen& Which) override { Log += "_" + Which.Name() + " "; }
};

TEST_F(FormsTest, TheUppermostScreenIsTheActiveOne)
{
    On["load D"] = [this] {
        Get("C");
        Log += "end of load " + Get("D").Name() + ";";
    };
    On["activate D"] = [this] {
        Get("B").Show();
        Log += "D goes on;";
    };
    // "=A" touches the screen A, "+A" shows it, "-A" hides it, "!A" activates it.
    const std::array<const char*, 3> Rows[] = {
        {"=B", "load B;", ""},
        {"=B", "", ""},
        {"!B", "", ""},
        {"+A", "load A;^A activate A;", "A"},
        {"+A", "", "A"},
        {"+B", "^B activate B;", "AB"},
        {"+A", "^A activate A;", "BA"},
        {"!B", "^B activate B;", "AB"},
        {"-A", "_A ", "B"},
        {"-B", "_B ", ""},
        {"-B", "", ""},
        {"+B", "^B activate B;", "B"},
        {"+A", "^A activate A;", "BA"},
        {"-A", "_A ^B activate B;", "B"},
        {"=D", "load D;load C;end of load D;", "B"},
        {"+D", "^D activate D;^B activate B;D goes on;", "DB"}};
    for (const auto& [Step, Told, Visible] : Rows) {
        SCOPED_TRACE(Step + (" on " + Stack()));
        SmallScreen& Which = Get(Step + 1);
        if (*Step == '+')
            Which.Show();
        else if (*Step == '-')
            Which.Hide();
        else if (*Step == '!')
            TheForms.Activate(Which);
        EXPECT_EQ(Logged(), Told);
        EXPECT_EQ(Stack(), Visible);
        EXPECT_EQ(TheForms.Active(), Stack().empty() ? nullptr : TheForms.Stack().back());
    }
    EXPECT_EQ(&TheForms[0], &Get("B")) << "in the order of loading";
    EXPECT_FAILS(Program, Get("Z"));
}

TEST_F(FormsTest, AnActivationMayHideItsScreenOrFail)
{
    for (const char* Name : {"A", "B", "C"})
        Get(Name).Show();
    Logged();
    On["activate B"] = [this] { Get("B").Hide(); };
    Get("C").Hide();
    EXPECT_EQ(Logged(), "_C ^B activate B;_B ^A activate A;") << "a chain runs down the stack";
    On["activate B"] = [] { throw Failure(FailureKind::NoRow, "x"); };
    EXPECT_FAILS(NoRow, Get("B").Show());
    EXPECT_EQ(Stack(), "AB");
    EXPECT_EQ(TheForms.Active(), &Get("B"));
}

} // namespace orvane
