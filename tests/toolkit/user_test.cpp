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
        A.mnu_Menu.Build({{"b", "Barre", "", {}, {}, {{Quitter, "Quitter", 0, ""}}}});
        A.mnu_Menu.OnItemClick = [this](const SideMenu::Item& Which) {
            A.mnu_Menu.Build({}); // and still reads its entry
            Log += Which.Key + ";";
        };
        A.Show();
        Logged();
    }

    // Everything that a person can do to the controls of A.
    void DoEverything()
    {
        Person.Type(A.txt_Nb, A.txt_Nb.Text + "1");
        Person.Click(A.cmd_Action);
        Person.Pick(A.cbo_Objet, 0);
        Person.Pick(A.cbo_Objet, "Arc");
        Person.ClickItem(A.mnu_Menu, Quitter);
    }

    const std::string Quitter = "une_entrée_au_nom_assez_long";
    SmallScreen& A = Get("A");
};

TEST_F(UserTest, APersonReachesWhatIsVisibleAndNothingElse)
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
    EXPECT_EQ(Logged() + Stack(), "");
    EXPECT_EQ(EventsEnded, 12) << "an event ends also when it does nothing";
    A.Show();
    DoEverything();
    EXPECT_EQ(Log, "activate A;change;click;pick;pick;" + Quitter + ";");
}

TEST_F(UserTest, WhatIsLockedOrNotThereCannotBeTypedPickedOrClicked)
{
    A.txt_Nb.Locked = true;
    Person.Type(A.txt_Nb, "5");
    Person.Type(A.cbo_Objet, "Arc");
    EXPECT_EQ(A.txt_Nb.Text + A.cbo_Objet.Text, "Arc");
    EXPECT_EQ(A.cbo_Objet.ListIndex, -1) << "typing chooses nothing";
    Person.Pick(A.cbo_Objet, 1);
    Person.Pick(A.cbo_Objet, -1);
    Person.Pick(A.cbo_Objet, "Lance");
    Person.ClickItem(A.mnu_Menu, "b"); // a bar is no entry
    EXPECT_EQ(Log, "");
}

TEST_F(UserTest, ALowerScreenIsActivatedFirstAndThenActedOn)
{
    Get("B").Show();
    Logged();
    Person.Click(A.cmd_Action);
    Person.Click(A.cmd_Action);
    Person.Activate(A);
    EXPECT_EQ(Logged(), "activate A;click;click;") << "the active screen isn't activated again";
    Person.Close(Get("B")); // by the frame: the way back
    EXPECT_EQ(Logged() + Stack(), "activate B;activate A;A");
    On["activate A"] = [this] { A.Hide(); };
    Get("B").Show();
    Person.Click(A.cmd_Action);
    EXPECT_EQ(Logged(), "activate B;activate A;activate B;") << "the activation has hidden it";
}

TEST_F(UserTest, AFailureGivesOneBoxAfterTheEventHasEndedAndTheProgramGoesOn)
{
    Get("B").Show();
    Logged();
    On["activate A"] = [] { throw Failure(FailureKind::NoRow, "Dague"); };
    Boxes.ExpectMsgBox("Aucune donnée pour «\u00A0Dague\u00A0».");
    Boxes.ExpectMsgBox("Erreur interne du programme\u00A0: «\u00A0boum\u00A0».");
    Boxes.OnBox = [this] { Log += "box after " + std::to_string(EventsEnded) + ";"; };
    Person.Click(A.cmd_Action); // given up
    Person.Event([] { throw std::runtime_error("boum"); });
    Person.Click(A.cmd_Action);
    EXPECT_EQ(Log, "activate A;box after 1;box after 2;click;") << "no slot is open at a box";
}

} // namespace orvane
