#include "toolkit/forms.h"
#include "toolkit/screen.h"
#include "view/offers.h"

#include <gtest/gtest.h>

namespace orvane {

class OffersOfAList : public ::testing::Test
{
  protected:
    OffersOfAList()
    {
        for (const char* Each : {"Grande épée", "Épée", "Œillets", "Cape d'Élan"})
            List.AddItem(Each);
    }

    Forms TheForms;
    Screen Page{TheForms, "frm_Page", ""};
    ComboBox List{Page, "cbo_Liste"};
    Offers Found{List};
};

TEST_F(OffersOfAList, BeginningsComeBeforeInsides)
{
    EXPECT_EQ(Found.For("EPE"), (std::vector<int>{1, 0}));
    EXPECT_EQ(Found.For("élan"), std::vector<int>{3});
}

TEST_F(OffersOfAList, NothingIsOfferedForNothing)
{
    EXPECT_TRUE(Found.For("").empty());
    EXPECT_TRUE(Found.For("zz").empty());
}

TEST_F(OffersOfAList, AFullTextIsTheEntryButForCaseAndAccents)
{
    EXPECT_TRUE(Found.Is(1, "epee"));
    EXPECT_FALSE(Found.Is(0, "epee"));
}

TEST_F(OffersOfAList, AForgottenListIsReadAgain)
{
    EXPECT_TRUE(Found.For("pelisse").empty());
    List.Clear();
    for (const char* Each : {"Pelisse", "b", "c", "d"}) // as many as before
        List.AddItem(Each);
    Found.Forget();
    EXPECT_EQ(Found.For("pelisse"), std::vector<int>{0});
}

} // namespace orvane
