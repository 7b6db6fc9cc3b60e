#include "base/notation.h"
#include "support/expect_fails.h"

#include <gtest/gtest.h>
#include <limits>

namespace orvane {

TEST(Notation, TWritesAMontantWithoutTrailingZeros)
{
    EXPECT_EQ(T(Montant::FromTenThousandths(125000)), "12,5");
    EXPECT_EQ(T(Montant::FromTenThousandths(-1)), "-0,0001");
    EXPECT_EQ(T(Montant()), "0");
}

TEST(Notation, TWritesADoubleAndRefusesWhatIsNotFinite)
{
    EXPECT_EQ(T(1.0 / 3), "0,333333333333333");
    EXPECT_FAILS(Overflow, T(std::numeric_limits<double>::infinity()));
    EXPECT_FAILS(Overflow, T(std::numeric_limits<double>::quiet_NaN()));
}

} // namespace orvane
