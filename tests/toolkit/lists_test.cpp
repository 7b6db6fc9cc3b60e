#include "toolkit/small_screen.h"

namespace orvane {

class ListsTest : public ScreenTest
{
  protected:
    ListsTest()
    {
        for (ListControl* List :
             {static_cast<ListControl*>(&Combo), static_cast<ListControl*>(&Box)})
            for (const char* Entry : {"Arc", "Dague", "Lance"})
                List->AddItem(Entry);
        Combo.OnClick = [this] { Log += "combo " + Combo.Text() + ";"; };
        Box.OnClick = [this] { Log += "box " + Box.Text() + ";"; };
        Log.clear();
    }

    SmallScreen& A = Get("A");
    ComboBox& Combo = A.cbo_Objet;
    ListBox& Box = A.lst_Objets;
};

TEST_F(ListsTest, AnotherIndexRunsClickInsideTheAssignmentAndTheSameRunsNothing)
{
    Combo.ListIndex = 1;
    EXPECT_EQ(Log, "combo Dague;");
    Combo.ListIndex = 1;
    EXPECT_EQ(Log, "combo Dague;");
    Box.ListIndex = 2;
    Box.ListIndex = -1;
    EXPECT_EQ(Log, "combo Dague;box Lance;box ;");
    EXPECT_EQ(Combo.Text(), "Dague");
}

TEST_F(ListsTest, APickRunsClickAlsoForTheEntryChosenAlready)
{
    Combo.Pick(0);
    Combo.Pick(0);
    EXPECT_EQ(Log, "combo Arc;combo Arc;");
}

TEST_F(ListsTest, AnIndexThatIsNotThereFailsAndChangesNothing)
{
    Combo.ListIndex = 1;
    EXPECT_FAILS(Program, Combo.ListIndex = 3);
    EXPECT_FAILS(Program, Combo.ListIndex = -2);
    EXPECT_FAILS(Program, Combo.Pick(3));
    EXPECT_EQ(Combo.ListIndex, 1);
    EXPECT_EQ(Log, "combo Dague;");
}

TEST_F(ListsTest, AddItemClearAndTextRunNothing)
{
    Combo.ListIndex = 0;
    Box.ListIndex = 0;
    Log.clear();
    Combo.AddItem("Épée");
    Combo.Text = "Lance";
    EXPECT_EQ(Combo.ListIndex, 0) << "a text leaves the index alone";
    Combo.Text = "inconnu";
    Combo.Clear();
    Box.Clear();
    EXPECT_EQ(Log, "");
    EXPECT_EQ(Combo.ListCount() + Box.ListCount(), 0);
    EXPECT_EQ(Combo.ListIndex, -1);
    EXPECT_EQ(Combo.Text(), "");
    EXPECT_EQ(Box.Text(), "");
    Combo.AddItem("Neuf");
    Combo.ListIndex = 0;
    EXPECT_EQ(Log, "combo Neuf;") << "the same index after clearing is another choice";
}

TEST_F(ListsTest, ASortedListKeepsFrenchOrderWhateverTheOrderOfAdding)
{
    Box.Clear();
    Box.Sorted = true;
    for (const char* Entry :
         {"zèbre", "Épée", "eau", "côté", "cote", "épée", "Étain", "côte", "10"})
        Box.AddItem(Entry);
    EXPECT_EQ(Box.Items(), (std::vector<std::string>{"10", "cote", "côte", "côté", "eau", "épée",
                                                     "Épée", "Étain", "zèbre"}));
}

TEST_F(ListsTest, TheChosenEntryStaysChosenWhenOneIsAddedAboveIt)
{
    Combo.Sorted = true;
    Combo.ListIndex = 1;
    Combo.AddItem("Zibeline");
    EXPECT_EQ(Combo.ListIndex, 1);
    Combo.AddItem("Bâton");
    EXPECT_EQ(Combo.ListIndex, 2);
    Combo.AddItem("Dague");
    EXPECT_EQ(Combo.ListIndex, 2) << "an equal entry goes behind";
}

TEST_F(ListsTest, AHandlerMayRefillItsOwnList)
{
    Combo.OnClick = [this] {
        const std::string Kept = Combo.Text;
        Combo.Clear();
        Combo.AddItem("Autre");
        Combo.Text = Kept;
    };
    Combo.ListIndex = 2;
    EXPECT_EQ(Combo.Text(), "Lance");
    EXPECT_EQ(Combo.ListIndex, -1);
}

} // namespace orvane
