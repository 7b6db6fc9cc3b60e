#include "toolkit/small_screen.h"

#include <stdexcept>

namespace orvane {

class UserTest : public ScreenTest
{
  protected:
    UserTest()
    {
        A.txt_Nb.OpenFor(NumberKind::Entier16);
        A.txt_Nb.OnChange = [this] { Log += "change;"; };
        A.cmd_Action.OnClick = [this] { Log += "click;"; };
        A.cbo_Objet.OnClick = [this] { Log += "pick;"; };
        A.cbo_Objet.AddItem("Arc");
        A.mnu_Menu.Build({{"b", "Barre", "", {}, {}, {{"quitter", "Quitter", 0, ""}}}});
        A.mnu_Menu.OnItemClick = [this](const SideMenu::Item& Which) { Log += Which.Key + ";"; };
    }

    // Everything that a person can do to the controls of A.
    void DoEverything()
    {
        Person.Type(A.txt_Nb, A.txt_Nb.Text() + "1");
        Person.Click(A.cmd_Action);
        Person.Pick(A.cbo_Objet, 0);
        Person.Pick(A.cbo_Objet, "Arc");
        Person.ClickItem(A.mnu_Menu, "quitter");
    }

    SmallScreen& A = Shown("A");
};

TEST_F(UserTest, APersonReachesWhatIsVisible)
{
    DoEverything();
    EXPECT_EQ(Log, "change;click;pick;pick;quitter;");
    EXPECT_EQ(EventsEnded, 5);
}

TEST_F(UserTest, APersonCannotReachAHiddenScreenOrAnInvisibleControl)
{
    for (Control* Each : A.Controls())
        Each->Visible = false;
    DoEverything();
    for (Control* Each : A.Controls())
        Each->Visible = true;
    A.Hide();
    DoEverything();
    Person.Close(A);
    Person.Activate(A);
    EXPECT_EQ(Log, "");
    EXPECT_FALSE(A.IsVisible());
    EXPECT_EQ(EventsEnded, 12) << "an event ends also when it does nothing";
}

TEST_F(UserTest, TypingDoesNothingInALockedBoxAndRunsNothingInAComboBox)
{
    A.txt_Nb.Locked = true;
    Person.Type(A.txt_Nb, "5");
    EXPECT_EQ(A.txt_Nb.Text(), "");
    Person.Type(A.cbo_Objet, "Arc");
    EXPECT_EQ(A.cbo_Objet.Text(), "Arc");
    EXPECT_EQ(A.cbo_Objet.ListIndex, -1);
    EXPECT_EQ(Log, "");
}

TEST_F(UserTest, WhatIsNotThereCannotBePickedOrClicked)
{
    Person.Pick(A.cbo_Objet, 1);
    Person.Pick(A.cbo_Objet, -1);
    Person.Pick(A.cbo_Objet, "Lance");
    Person.ClickItem(A.mnu_Menu, "absent");
    Person.Click(A.cmd_Action);
    EXPECT_EQ(Log, "click;");
}

TEST_F(UserTest, ALowerScreenIsActivatedFirstAndThenActedOn)
{
    Shown("B");
    Person.Click(A.cmd_Action);
    EXPECT_EQ(Log, "activate A;click;");
    EXPECT_EQ(Stack(), "BA");
    Person.Click(A.cmd_Action);
    Person.Activate(A);
    EXPECT_EQ(Log, "activate A;click;click;") << "the active screen isn't activated again";
}

TEST_F(UserTest, ClosingByTheFrameIsTheWayBack)
{
    SmallScreen& B = Shown("B");
    Person.Close(A);
    EXPECT_EQ(Log, "activate A;activate B;");
    EXPECT_EQ(Stack(), "B");
    Person.Close(B);
    EXPECT_EQ(Stack(), "");
}

TEST_F(UserTest, AFailureGivesOneBoxAfterTheEventHasEndedAndTheProgramGoesOn)
{
    A.cmd_Action.OnClick = [this] {
        A.txt_Nb.Text = "2";
        throw Failure(FailureKind::NoRow, "Dague");
    };
    Boxes.ExpectMsgBox("Aucune donnée pour «\u00A0Dague\u00A0».");
    Boxes.ExpectMsgBox("Erreur interne du programme\u00A0: «\u00A0boum\u00A0».");
    Boxes.OnBox = [this] { Log += "box after " + std::to_string(EventsEnded) + ";"; };
    Person.Click(A.cmd_Action);
    Person.Event([] { throw std::runtime_error("boum"); });
    EXPECT_TRUE(Boxes.IsDone());
    EXPECT_EQ(A.txt_Nb.Text(), "2") << "the screen as the event left it";
    Person.Pick(A.cbo_Objet, 0);
    EXPECT_EQ(Log, "change;box after 1;box after 2;pick;") << "no slot is open while a box waits";
}

TEST_F(UserTest, AFailureInTheActivationGivesUpTheAction)
{
    Shown("B");
    A.OnActivate = [] { throw Failure(FailureKind::NoRow, "x"); };
    Boxes.ExpectMsgBox("Aucune donnée pour «\u00A0x\u00A0».");
    Person.Click(A.cmd_Action);
    EXPECT_EQ(Log, "activate A;");
}

TEST_F(UserTest, AScreenThatItsActivationHidesIsNotActedOn)
{
    Shown("B");
    A.OnActivate = [this] { A.Hide(); };
    Person.Click(A.cmd_Action);
    EXPECT_EQ(Log, "activate A;activate B;");
}

} // namespace orvane
