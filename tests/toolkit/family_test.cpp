#include "toolkit/small_screen.h"

namespace orvane {

using FamilyTest = ScreenTest;

TEST_F(FamilyTest, MembersCountFromOneAndAreFoundByName)
{
    SmallScreen& A = Get("A");
    EXPECT_EQ(&A.Find("txt_Mat3"), &A.txt_Mat[3]);
    EXPECT_EQ(A.txt_Mat[1].Name(), "txt_Mat1");
    EXPECT_FAILS(Program, A.txt_Mat[0]);
    EXPECT_FAILS(Program, A.txt_Mat[4]);
    EXPECT_FAILS(Program, A.Find("txt_Mat4"));
    EXPECT_FAILS(Program, A.Find("txt_Mat"));
    EXPECT_FAILS(Program, A.Find("TXT_NB"));
}

TEST_F(FamilyTest, ControlsHoldsEveryControlInTheOrderOfItsDefinition)
{
    std::string Names;
    for (const Control* Each : Get("A").Controls())
        Names += Each->Name() + " ";
    EXPECT_EQ(Names, "txt_Nb txt_Prix txt_Mat1 txt_Mat2 txt_Mat3 cbo_Objet lst_Objets cmd_Action "
                     "mnu_Menu ");
}

} // namespace orvane
