#include "base/montant.h"
#include "base/number_text.h"
#include "support/expect_fails.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace orvane {

namespace {

constexpr auto Smallest = Montant::FromTenThousandths(std::numeric_limits<std::int64_t>::min());
constexpr auto Largest = Montant::FromTenThousandths(std::numeric_limits<std::int64_t>::max());

Montant Of(const char* Text)
{
    return Montant::FromText(Text).value();
}

} // namespace

TEST(Montant, ProductsHaveFourDecimalsTiesToEven)
{
    const std::array<const char*, 3> Cases[] = {{"0,0001", "0,5", "0"},
                                                {"0,0003", "0,5", "0,0002"},
                                                {"0,0005", "0,5", "0,0002"},
                                                {"0,0003", "-0,5", "-0,0002"},
                                                {"-0,0001", "-0,5", "0"},
                                                {"0,0001", "0,5001", "0,0001"},
                                                {"0,0001", "-0,5001", "-0,0001"},
                                                {"0,0001", "0,4999", "0"},
                                                {"1,5", "1,5", "2,25"}};
    for (const auto& [Left, Right, Product] : Cases) {
        EXPECT_EQ(Of(Left) * Of(Right), Of(Product)) << Left << " * " << Right;
        EXPECT_EQ(Of(Right) * Of(Left), Of(Product)) << Right << " * " << Left;
    }
    EXPECT_EQ(Largest * Of("-1"), Of("-922337203685477,5807"));
    EXPECT_EQ(Smallest * Of("1"), Smallest);
    EXPECT_EQ(Smallest * Of("0,5"), Of("-461168601842738,7904"));
    EXPECT_EQ(Largest * Of("0,5"), Of("461168601842738,7904"))
        << "a tie: ...7903,5 before rounding";
}

TEST(Montant, ProductsAreTheNearestOfTheExactOnes)
{
    std::mt19937_64 Random(4);
    for (int i = 0; i < 20'000; ++i) {
        const auto Left = static_cast<std::int64_t>(Random() >> 33) - (std::int64_t{1} << 30);
        const auto Right = static_cast<std::int64_t>(Random() >> 33) - (std::int64_t{1} << 30);
        const auto Product =
            (Montant::FromTenThousandths(Left) * Montant::FromTenThousandths(Right))
                .TenThousandths();
        const auto Distance = std::abs(Product * 10'000 - Left * Right);
        ASSERT_LE(Distance, 5'000) << Left << " * " << Right;
        ASSERT_TRUE(Distance < 5'000 || Product % 2 == 0) << "tie of " << Left << " * " << Right;
    }
}

TEST(Montant, NothingWrapsAroundAtEitherEnd)
{
    const Montant Least = Montant::FromTenThousandths(1);
    EXPECT_FAILS(Overflow, Largest + Least);
    EXPECT_FAILS(Overflow, Smallest - Least);
    EXPECT_FAILS(Overflow, Montant() - Smallest);
    EXPECT_FAILS(Overflow, Smallest * Of("-1"));
    EXPECT_FAILS(Overflow, Largest * Of("1,0001"));
    EXPECT_FAILS(Overflow, Smallest * Smallest);
    EXPECT_FAILS(Overflow, std::int16_t{-1} * Smallest);
    EXPECT_FAILS(Overflow, Montant::FromWhole(922337203685478));
}

TEST(Montant, TheEndsThemselvesAreReached)
{
    const Montant Least = Montant::FromTenThousandths(1);
    EXPECT_EQ(Largest + Smallest, Montant() - Least);
    EXPECT_EQ((Largest - Least) + Least, Largest);
    const Montant TwoToThe48 = Montant::FromTenThousandths(std::int64_t{1} << 48);
    EXPECT_EQ(std::int16_t{-32768} * TwoToThe48, Smallest); // -2^15 * 2^48
    EXPECT_FAILS(Overflow, std::int16_t{-32768} * (Montant() - TwoToThe48));
    EXPECT_EQ(Montant::FromWhole(-922337203685477), Of("-922337203685477"));
}

TEST(Montant, FromADoublePutsTiesWherePencilAndPaperDo)
{
    const std::pair<double, const char*> Cases[] = {
        {0.00005, "0"},        {0.00015, "0,0002"},   {0.00025, "0,0002"},   {1.00005, "1"},
        {1.00015, "1,0002"},   {1.00025, "1,0002"},   {-1.00015, "-1,0002"}, {-1.00005, "-1"},
        {12.34565, "12,3456"}, {12.34575, "12,3458"}, {0.1 + 0.2, "0,3"}};
    for (const auto& [Value, Amount] : Cases)
        EXPECT_EQ(Montant::FromDouble(Value), Of(Amount)) << Amount;
    EXPECT_EQ(Montant::FromDouble(922337203685477.0), Of("922337203685477"));
    for (const double Value : {1e15, -1e300, HUGE_VAL, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(Montant::FromDouble(Value), std::nullopt);
}

TEST(Montant, ToDoubleIsTheNearestOne)
{
    EXPECT_EQ(Of("0,1").ToDouble(), 0.1);
    EXPECT_EQ(Largest.ToDouble(), 922337203685477.5807);
    EXPECT_EQ(Smallest.ToDouble(), -922337203685477.5808);
    std::mt19937_64 Random(5);
    for (int i = 0; i < 20'000; ++i) {
        const auto Count = static_cast<std::int64_t>(Random()) >> (Random() % 14);
        std::string Text = TextOfScaled(Count, 4);
        std::ranges::replace(Text, ',', '.');
        ASSERT_EQ(Montant::FromTenThousandths(Count).ToDouble(), std::strtod(Text.c_str(), nullptr))
            << Text;
    }
}

} // namespace orvane
