#include "base/notation.h"
#include "base/number_text.h"
#include "support/expect_fails.h"

#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace orvane {

namespace {

constexpr auto Smallest = std::numeric_limits<std::int64_t>::min();
constexpr auto Largest = std::numeric_limits<std::int64_t>::max();
constexpr auto Refused = std::nullopt;

std::string Zeros(std::size_t Count)
{
    return std::string(Count, '0');
}

} // namespace

TEST(NumberText, IsRoundedOnceFromTheExactTextTiesToEven)
{
    const std::pair<const char*, std::int64_t> Rows[] = {
        {"12,5", 125000}, {"+3", 30000},    {" 7,50 ", 75000},  {"\t1 ", 10000}, {"2,", 20000},
        {"-,5", -5000},   {"-0", 0},        {"0,00005", 0},     {"0,00015", 2},  {"0,00025", 2},
        {"-0,00005", 0},  {"-0,00015", -2}, {"-0,00005001", -1}};
    for (const auto& [Text, Count] : Rows)
        EXPECT_EQ(ScaledFromText(Text, 4), Count) << Text;
    EXPECT_EQ(ScaledFromText("0,00005" + Zeros(40) + "1", 4), 1);
    EXPECT_EQ(ScaledFromText("0,00004" + std::string(40, '9'), 4), 0);
    EXPECT_EQ(ScaledFromText("922337203685477,58074999", 4), Largest);
    for (const char* Text :
         {"-922337203685477,5808", "-922337203685477,58085", "-922337203685477,58075"})
        EXPECT_EQ(ScaledFromText(Text, 4), Smallest) << Text;
    for (const char* Text : // past the ends, about 2^64 and 2^65 ten-thousandths
         {"922337203685477,5808", "922337203685477,58075", "-922337203685477,5809",
          "-922337203685477,580851", "1844674407370955,1615", "1844674407370955,16155",
          "3689348814741910,3232"})
        EXPECT_EQ(ScaledFromText(Text, 4), Refused) << Text;
}

TEST(NumberText, WhatIsNoNumberIsRefusedByEveryReader)
{
    for (const char* Text : {"",      " ",          ",",   "-",   "+",    "-,",  "1e5",   "12.5",
                             "1 234", "1\u00A0234", "+-3", "--3", "- 3",  "3-",  "1,2,3", "12€",
                             "0x10",  "inf",        "nan", "١",   "1,-5", "1 ,5"}) {
        EXPECT_EQ(ScaledFromText(Text, 4), Refused) << Text;
        EXPECT_EQ(DoubleFromText(Text), Refused) << Text;
        EXPECT_EQ(Entier16FromText(Text), Refused) << Text;
    }
}

TEST(NumberText, ASixteenBitNumberIsRoundedOnceToo)
{
    const std::pair<const char*, std::optional<std::int16_t>> Rows[] = {
        {"2,5", 2},          {"3,5", 4},       {"-2,5", -2},         {"-3,5", -4},
        {"2,50001", 3},      {"-2,50001", -3}, {"-0,5", 0},          {"2,4999999", 2},
        {"32767,49", 32767}, {"32767,5", {}},  {"-32768,5", -32768}, {"-32768,51", {}},
        {"32768", {}},       {"65537", {}},    {"4294967297", {}}};
    for (const auto& [Text, Value] : Rows)
        EXPECT_EQ(Entier16FromText(Text), Value) << Text;
    EXPECT_EQ(Entier16(-32768), -32768);
    EXPECT_EQ(Entier16(32767), 32767);
    for (const std::int64_t Value : {std::int64_t{32768}, std::int64_t{-32769}, Smallest}) {
        SCOPED_TRACE(Value);
        EXPECT_FAILS(Overflow, Entier16(Value));
    }
}

TEST(NumberText, ADoubleIsTheNearestOne)
{
    const std::pair<const char*, std::optional<double>> Rows[] = {
        {"0,1", 0.1}, {" -12,75", -12.75}, {",5", 0.5}, {"2,", 2.0}, {"9007199254740993", 0x1p53}};
    for (const auto& [Text, Value] : Rows)
        EXPECT_EQ(DoubleFromText(Text), Value) << Text;
    EXPECT_EQ(DoubleFromText("9007199254740993,0001"), 9007199254740994.0) << "no longer a tie";
    EXPECT_EQ(DoubleFromText("1" + Zeros(308)), 1e308);
    EXPECT_EQ(DoubleFromText("1" + Zeros(309)), Refused);
    EXPECT_EQ(DoubleFromText("-0," + Zeros(400) + "1"), 0.0);
}

TEST(NumberText, ADoubleIsWrittenInFifteenDigitsAndNeverAnExponent)
{
    const std::pair<double, const char*> Rows[] = {{-0.0, "0"},
                                                   {0.1 + 0.2, "0,3"},
                                                   {-2.0 / 3, "-0,666666666666667"},
                                                   {-1e-7, "-0,0000001"},
                                                   {999999999999999.875, "1000000000000000"},
                                                   {123456789012345678.0, "123456789012346000"}};
    for (const auto& [Value, Text] : Rows)
        EXPECT_EQ(T(Value), Text);
    EXPECT_EQ(T(DBL_MAX), "179769313486232" + Zeros(294));
    EXPECT_EQ(T(-5e-324), "-0," + Zeros(323) + "494065645841247");
    for (const double Value : {HUGE_VAL, std::nan("")}) {
        SCOPED_TRACE(Value);
        EXPECT_FAILS(Overflow, T(Value));
    }
}

TEST(NumberText, WhatIsWrittenIsReadBack)
{
    EXPECT_EQ(TextOfScaled(125000, 4), "12,5");
    EXPECT_EQ(TextOfScaled(Smallest, 4), "-922337203685477,5808");
    std::mt19937_64 Random(1);
    for (int i = 0; i < 20'000; ++i) {
        const auto Count = static_cast<std::int64_t>(Random()) >> (Random() % 64);
        ASSERT_EQ(ScaledFromText(TextOfScaled(Count, i % 10), i % 10), Count);
        const std::string Digits = TextOfScaled(Count % 1'000'000'000'000'000, i % 19);
        ASSERT_EQ(TextOfDouble(DoubleFromText(Digits).value()), Digits);
    }
}

} // namespace orvane
