#include "toolkit/calculation.h"
#include "toolkit/small_screen.h"

namespace orvane {

class CalculationTest : public ScreenTest
{
  protected:
    CalculationTest()
    {
        A.txt_Nb.StartWith("3");
        A.txt_Mat[1].StartWith("12,5");
    }

    // txt_Mat1 times txt_Nb.
    bool CalculerPrix()
    {
        return Calculate({&A.txt_Prix},
                         [this] { A.txt_Prix.Text = T(I(A.txt_Nb) * M(A.txt_Mat[1])); });
    }

    SmallScreen& A = Get("A");
};

TEST_F(CalculationTest, GoodInputsGiveAFreshResult)
{
    EXPECT_TRUE(CalculerPrix());
    EXPECT_EQ(A.txt_Prix.Text(), "37,5");
    EXPECT_FALSE(A.txt_Prix.Stale());
}

TEST_F(CalculationTest, AWrongTextMarksItsBoxAndLeavesTheResultsStaleUntilItIsRight)
{
    CalculerPrix();
    for (const char* Wrong : {"", "abc", "40000", "2.5"}) {
        A.txt_Nb.Text = Wrong;
        EXPECT_FALSE(CalculerPrix());
        EXPECT_TRUE(A.txt_Nb.Marked()) << Wrong;
        EXPECT_FALSE(A.txt_Mat[1].Marked());
        EXPECT_TRUE(A.txt_Prix.Stale());
        EXPECT_EQ(A.txt_Prix.Text(), "37,5");
    }
    A.txt_Nb.Text = "2,5";
    EXPECT_TRUE(CalculerPrix());
    EXPECT_FALSE(A.txt_Nb.Marked());
    EXPECT_FALSE(A.txt_Prix.Stale());
    EXPECT_EQ(A.txt_Prix.Text(), "25") << "2,5 pieces are 2";
}

TEST_F(CalculationTest, AnOverflowMarksNoInputButTheResultsAreStale)
{
    A.txt_Mat[1].Text = "922337203685477,5807";
    EXPECT_FALSE(CalculerPrix());
    EXPECT_FALSE(A.txt_Nb.Marked());
    EXPECT_FALSE(A.txt_Mat[1].Marked());
    EXPECT_TRUE(A.txt_Prix.Stale());
    EXPECT_EQ(A.txt_Prix.Text(), "");
    A.txt_Nb.Text = "1";
    EXPECT_TRUE(CalculerPrix());
    EXPECT_EQ(A.txt_Prix.Text(), "922337203685477,5807");
}

TEST_F(CalculationTest, WhatAGivenUpPickLeavesIsUsedByNoCalculationUntilItIsWrittenAgain)
{
    EXPECT_FAILS(NoRow,
                 ReadOrStale({&A.txt_Mat[1]}, [] { throw Failure(FailureKind::NoRow, "a"); }));
    EXPECT_TRUE(A.txt_Mat[1].Stale());
    A.txt_Nb.Text = "4";
    EXPECT_FALSE(CalculerPrix());
    EXPECT_TRUE(A.txt_Prix.Stale());
    EXPECT_FALSE(A.txt_Mat[1].Marked()) << "the crafter typed nothing wrong";
    A.txt_Mat[1].Text = "12,5"; // the same text is fresh all the same
    EXPECT_TRUE(CalculerPrix());
    EXPECT_EQ(A.txt_Prix.Text(), "50");
}

TEST_F(CalculationTest, AnyOtherFailureTravelsOn)
{
    EXPECT_FAILS(NullValue,
                 Calculate({&A.txt_Prix}, [] { throw Failure(FailureKind::NullValue, "Prix"); }));
}

TEST_F(CalculationTest, AWrongTextInANestedCalculationDoesNotBreakOffItsCaller)
{
    A.txt_Prix.OnChange = [this] {
        Calculate({&A.txt_Mat[3]},
                  [this] { A.txt_Mat[3].Text = T(M(A.txt_Mat[2]) + M(A.txt_Prix)); });
    };
    A.txt_Mat[2].StartWith("x");
    EXPECT_TRUE(CalculerPrix());
    EXPECT_FALSE(A.txt_Prix.Stale());
    EXPECT_TRUE(A.txt_Mat[3].Stale());
    EXPECT_TRUE(A.txt_Mat[2].Marked());
}

} // namespace orvane
