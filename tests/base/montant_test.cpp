#include "base/montant.h"
#include "support/expect_fails.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace orvane {

namespace {

constexpr auto Smallest = Montant::FromTenThousandths(std::numeric_limits<std::int64_t>::min());
constexpr auto Largest = Montant::FromTenThousandths(std::numeric_limits<std::int64_t>::max());
constexpr auto Least = Montant::FromTenThousandths(1);

// Nothing for the empty text.
std::optional<Montant> Of(const char* Text)
{
    return Montant::FromText(Text);
}

} // namespace

TEST(Montant, ProductsHaveFourDecimalsTiesToEven)
{
    const std::array<const char*, 3> Rows[] = {
        {"0,0001", "0,5", "0"},
        {"0,0003", "0,5", "0,0002"},
        {"0,0005", "0,5", "0,0002"},
        {"0,0003", "-0,5", "-0,0002"},
        {"-0,0001", "-0,5", "0"},
        {"0,0001", "0,5001", "0,0001"},
        {"0,0001", "-0,5001", "-0,0001"},
        {"0,0001", "0,4999", "0"},
        {"1,5", "1,5", "2,25"},
        {"922337203685477,5807", "-1", "-922337203685477,5807"},
        {"922337203685477,5807", "0,5", "461168601842738,7904"},
        {"-922337203685477,5808", "1", "-922337203685477,5808"},
        {"-922337203685477,5808", "0,5", "-461168601842738,7904"}};
    for (const auto& [Left, Right, Product] : Rows) {
        SCOPED_TRACE(std::string(Left) + " * " + Right);
        EXPECT_EQ(Of(Left).value() * Of(Right).value(), Of(Product));
        EXPECT_EQ(Of(Right).value() * Of(Left).value(), Of(Product));
    }
}

TEST(Montant, NothingWrapsAroundAndBothEndsAreReached)
{
    const Montant TwoToThe48 = Montant::FromTenThousandths(std::int64_t{1} << 48);
    EXPECT_FAILS(Overflow, Largest + Least);
    EXPECT_FAILS(Overflow, Smallest - Least);
    EXPECT_FAILS(Overflow, Montant() - Smallest);
    EXPECT_FAILS(Overflow, Smallest * Montant::FromWhole(-1));
    EXPECT_FAILS(Overflow, Smallest * Smallest);
    EXPECT_FAILS(Overflow, Largest * Of("1,0001").value());
    EXPECT_FAILS(Overflow, std::int16_t{-1} * Smallest);
    EXPECT_FAILS(Overflow, std::int16_t{-32768} * (Montant() - TwoToThe48));
    EXPECT_FAILS(Overflow, Montant::FromWhole(922337203685478));
    EXPECT_EQ(Largest + Smallest, Montant() - Least);
    EXPECT_EQ((Largest - Least) + Least, Largest);
    EXPECT_EQ(std::int16_t{-32768} * TwoToThe48, Smallest); // -2^15 * 2^48
    EXPECT_EQ(Montant::FromWhole(-922337203685477), Of("-922337203685477"));
}

TEST(Montant, AProportionIsRoundedOnceTiesToEven)
{
    const std::array<const char*, 4> Rows[] = {
        {"10", "1", "3", "3,3333"},         {"20", "1", "3", "6,6667"},
        {"0,0005", "1", "2", "0,0002"},     {"0,0007", "1", "2", "0,0004"},
        {"-0,0007", "1", "2", "-0,0004"},   {"900000000000000", "3", "4", "675000000000000"},
        {"900000000000000", "1", "0,5", ""}};
    for (const auto& [Amount, Part, Whole, Result] : Rows)
        EXPECT_EQ(Proportion(Of(Amount).value(), Of(Part).value(), Of(Whole).value()), Of(Result))
            << Amount;
}

TEST(Montant, FromADoublePutsTiesWherePencilAndPaperDo)
{
    const std::pair<double, const char*> Rows[] = {
        {0.00005, "0"},        {0.00015, "0,0002"},   {0.00025, "0,0002"},   {1.00005, "1"},
        {1.00015, "1,0002"},   {1.00025, "1,0002"},   {-1.00015, "-1,0002"}, {-1.00005, "-1"},
        {12.34565, "12,3456"}, {12.34575, "12,3458"}, {0.1 + 0.2, "0,3"},    {1e15, ""},
        {-1e300, ""},          {HUGE_VAL, ""},        {std::nan(""), ""}};
    for (const auto& [Value, Amount] : Rows)
        EXPECT_EQ(Montant::FromDouble(Value), Of(Amount)) << Value;
}

TEST(Montant, ToDoubleIsTheNearestOne)
{
    EXPECT_EQ(Of("0,1").value().ToDouble(), 0.1);
    EXPECT_EQ(Of("1584573917631,5931").value().ToDouble(), 1584573917631.5931); // not twice rounded
    EXPECT_EQ(Largest.ToDouble(), 922337203685477.5807);
    EXPECT_EQ(Smallest.ToDouble(), -922337203685477.5808);
}

} // namespace orvane
