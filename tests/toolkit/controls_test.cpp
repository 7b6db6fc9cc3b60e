#include "toolkit/calculation.h"
#include "toolkit/small_screen.h"

#include <array>

namespace orvane {

class ControlsTest : public ScreenTest, public ScreenObserver
{
  protected:
    ControlsTest()
    {
        for (ListControl* Each : std::initializer_list<ListControl*>{&Combo, &List})
            for (const char* Entry : {"Arc", "Dague", "Lance"})
                Each->AddItem(Entry);
        Combo.OnClick = [this] { Log += "combo " + Combo.Text + ";"; };
        List.OnClick = [this] { Log += "list " + List.Text + ";"; };
        Logged();
    }

    static std::string Told(const std::string& Who, PropertyId What)
    {
        return Who + ":" + std::to_string(static_cast<int>(What)) + ";";
    }
    void ControlChanged(Control& Of, PropertyId What) override { Log += Told(Of.Name(), What); }
    void ScreenChanged(PropertyId What) override { Log += Told("screen", What); }

    // The price, txt_Mat1 times txt_Nb, and what is wrong about it.
    std::string Calculated()
    {
        const bool Good = Calculate({&Prix}, [this] { Prix.Text = T(I(Nb) * M(Mat)); });
        EXPECT_EQ(Good, !Prix.Stale());
        return Prix.Text + (Good ? "" : " stale") + (Nb.Marked ? " Nb" : "") +
               (Mat.Marked ? " Mat" : "");
    }

    SmallScreen& A = Get("A");
    ComboBox& Combo = A.cbo_Objet;
    ListBox& List = A.lst_Objets;
    TextBox& Nb = A.txt_Nb;
    TextBox& Mat = A.txt_Mat[1];
    TextBox& Prix = A.txt_Mat[2];
};

TEST_F(ControlsTest, AnObserverIsToldOnceOfAChangeAndBeforeHandlersRun)
{
    A.Observe(this);
    Nb.OnChange = [&] { Log += "change;"; };
    for (int Times = 0; Times < 2; ++Times) {
        A.cmd_Action.Left = 15;
        A.cmd_Action.BackColor = White;
        A.Caption = "Autre";
        Nb.Text = "3";
    }
    List.AddItem("Stylet");
    List.ListIndex = 0;
    EXPECT_EQ(Log, Told("cmd_Action", PropertyId::Left) + Told("screen", PropertyId::Caption) +
                       Told("txt_Nb", PropertyId::Text) + "change;" +
                       Told("lst_Objets", PropertyId::Items) +
                       Told("lst_Objets", PropertyId::Text) +
                       Told("lst_Objets", PropertyId::ListIndex) + "list Arc;");
}

TEST_F(ControlsTest, ControlsAreFoundByNameInTheOrderOfTheirDefinitionAndFamiliesCountFromOne)
{
    std::string Names;
    for (const Control* Each : A.Controls())
        Names += Each->Name() + " ";
    EXPECT_EQ(Names, "txt_Nb txt_Mat1 txt_Mat2 txt_Mat3 cbo_Objet lst_Objets cmd_Action mnu_Menu ");
    EXPECT_EQ(&A.Find("txt_Mat3"), &A.txt_Mat[3]);
    EXPECT_FAILS(Program, A.txt_Mat[0]);
    EXPECT_FAILS(Program, A.txt_Mat[4]);
    EXPECT_FAILS(Program, A.Find("TXT_NB"));
}

TEST_F(ControlsTest, AnotherIndexRunsClickInsideTheAssignmentAndTheSameOnlyWhenPicked)
{
    Combo.ListIndex = 1;
    EXPECT_EQ(Logged(), "combo Dague;");
    Combo.ListIndex = 1;
    EXPECT_EQ(Logged(), "");
    Combo.Pick(1);
    EXPECT_EQ(Logged(), "combo Dague;");
    EXPECT_FAILS(Program, Combo.ListIndex = 3);
    EXPECT_FAILS(Program, Combo.ListIndex = -2);
    EXPECT_EQ(Combo.ListIndex, 1);
    List.ListIndex = 2;
    List.ListIndex = -1;
    EXPECT_EQ(Logged(), "list Lance;list ;");
}

TEST_F(ControlsTest, AddItemClearAndTextRunNothing)
{
    Combo.ListIndex = 0;
    List.ListIndex = 0;
    Logged();
    Combo.AddItem("Épée");
    Combo.Text = "inconnu";
    EXPECT_EQ(Combo.ListIndex, 0) << "a text leaves the index alone";
    Combo.OnClick = [this] { Combo.Clear(); }; // a handler may empty its own list
    Combo.ListIndex = 2;
    List.Clear();
    EXPECT_EQ(Logged() + Combo.Text + List.Text, "");
    EXPECT_EQ(Combo.ListIndex + Combo.ListCount() + List.ListCount(), -1);
}

TEST_F(ControlsTest, ASortedListKeepsFrenchOrderAndItsChoice)
{
    const std::pair<const char*, int> Rows[] = {{"zèbre", 1}, {"côté", 2}, {"côte", 3},
                                                {"Épée", 3},  {"10", 4},   {"Dague", 4}};
    List.Sorted = true;
    List.ListIndex = 1;
    for (const auto& [Entry, Index] : Rows) {
        List.AddItem(Entry);
        EXPECT_EQ(List.ListIndex, Index) << Entry;
    }
    EXPECT_EQ(List.Items(), (std::vector<std::string>{"10", "Arc", "côte", "côté", "Dague", "Dague",
                                                      "Épée", "Lance", "zèbre"}));
}

TEST_F(ControlsTest, ChangeRunsInsideTheAssignmentOfADifferentText)
{
    Nb.OnChange = [&] {
        if (Nb.Text == "")
            Nb.Text = "0";
        if (Nb.Text == "0")
            Nb.Text = "1";
        Log += "[" + Nb.Text + "]";
    };
    Nb.Text.StartWith("5");
    Nb.Text = "5";
    EXPECT_EQ(Logged(), "") << "the text of a definition runs nothing";
    Nb.Text = "5 ";
    EXPECT_EQ(Logged(), "[5 ]");
    Nb.Text = "";
    EXPECT_EQ(Logged(), "[1][1][1]") << "the two repairs and the assignment itself";
}

TEST_F(ControlsTest, AnInputIsMarkedUntilItHoldsANumberOfItsKind)
{
    const std::pair<const char*, const char*> Rows[] = {
        // marked as none, a 16-bit number, an amount
        {"-3", "..."},      {"2,5", "..."}, {" 7 ", "..."},
        {"40000,5", ".x."}, {"", ".xx"},    {"12.5", ".xx"}};
    for (const auto& [Text, Expected] : Rows) {
        std::string Marks;
        for (const auto Kind : {NumberKind::None, NumberKind::Entier16, NumberKind::Montant}) {
            Nb.OpenFor(Kind);
            Nb.Text = "?";
            Nb.Text = Text;
            Marks += Nb.Marked ? "x" : ".";
        }
        EXPECT_EQ(Marks, Expected) << Text;
    }
    EXPECT_EQ(Nb.BackColor(), InputGrey);
    EXPECT_EQ(RGB(1, 2, 3).Number, 0x030201) << "red is the low byte";
}

TEST_F(ControlsTest, ACalculationMarksItsWrongInputsAndKeepsItsLastResultAsStale)
{
    const std::array<const char*, 3> Rows[] = {
        {"3", "12,5", "37,5"},
        {"", "12,5", "37,5 stale Nb"},
        {"3", "12.5", "37,5 stale Mat"},
        {"2,5", "12,5", "25"}, // 2,5 pieces are 2
        {"2", "922337203685477,5807", "25 stale"},
        {"1", "922337203685477,5807", "922337203685477,5807"}};
    for (const auto& [Given, Each, Result] : Rows) {
        Nb.Text = Given;
        Mat.Text = Each;
        EXPECT_EQ(Calculated(), Result) << Given << " x " << Each;
    }
    EXPECT_FAILS(NullValue, Calculate({}, [] { throw Failure(FailureKind::NullValue, "x"); }));
}

TEST_F(ControlsTest, WhatAGivenUpPickLeavesIsUsedByNoCalculationUntilItIsWrittenAgain)
{
    Nb.Text = "4";
    Mat.Text = "12,5";
    Mat.Stale = true;
    EXPECT_EQ(Calculated(), " stale") << "the crafter typed nothing wrong";
    Mat.Text = "12,5"; // the same text is fresh all the same
    EXPECT_EQ(Calculated(), "50");
}

} // namespace orvane
