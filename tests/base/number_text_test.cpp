#include "base/number_text.h"
#include "support/expect_fails.h"

#include <cfloat>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace orvane {

namespace {

constexpr auto Smallest = std::numeric_limits<std::int64_t>::min();
constexpr auto Largest = std::numeric_limits<std::int64_t>::max();
constexpr int Rounds = 20'000;

std::string Zeros(std::size_t Count)
{
    return std::string(Count, '0');
}

const char* const NoNumbers[] = {
    "",    " ",   ",",  "-",     "+",   "-,",   "1e5", "12.5", "1 234", "1\u00A0234", "+-3",
    "--3", "- 3", "3-", "1,2,3", "12€", "0x10", "inf", "nan",  "١",     "1,-5",       "1 ,5"};

} // namespace

TEST(ScaledFromText, ReadsNumbersAndRoundsTiesToEven)
{
    const std::pair<const char*, std::int64_t> Cases[] = {
        {"12,5", 125000}, {"+3", 30000},    {" 7,50 ", 75000}, {"\t1 ", 10000},
        {"2,", 20000},    {",5", 5000},     {"-,5", -5000},    {"00", 0},
        {"-0", 0},        {"0,00005", 0},   {"0,00015", 2},    {"0,00025", 2},
        {"-0,00005", 0},  {"-0,00015", -2}, {"-0,00025", -2},  {"-0,00005001", -1}};
    for (const auto& [Text, Count] : Cases)
        EXPECT_EQ(ScaledFromText(Text, 4), Count) << Text;
    EXPECT_EQ(ScaledFromText(Zeros(40) + "1", 4), 10000);
    EXPECT_EQ(ScaledFromText("0,00005" + Zeros(40) + "1", 4), 1);
    EXPECT_EQ(ScaledFromText("0,00004" + std::string(40, '9'), 4), 0);
}

TEST(ScaledFromText, ReachesBothEndsOfSixtyFourBitsAndGivesNothingPastThem)
{
    EXPECT_EQ(ScaledFromText("922337203685477,5807", 4), Largest);
    EXPECT_EQ(ScaledFromText("922337203685477,58074999", 4), Largest);
    for (const char* Text :
         {"-922337203685477,5808", "-922337203685477,58085", "-922337203685477,58075"})
        EXPECT_EQ(ScaledFromText(Text, 4), Smallest) << Text;
    for (const char* Text :
         {"922337203685477,5808", "922337203685477,58075", "-922337203685477,5809",
          "-922337203685477,580851", "1844674407370955,1615", "1844674407370955,16155"})
        EXPECT_EQ(ScaledFromText(Text, 4), std::nullopt) << Text;
    EXPECT_EQ(ScaledFromText("18446744073709551615,5", 0), std::nullopt);
}

TEST(NumberTexts, WhatIsNoNumberIsRefusedByEveryReader)
{
    for (const char* Text : NoNumbers) {
        EXPECT_EQ(ScaledFromText(Text, 4), std::nullopt) << Text;
        EXPECT_EQ(DoubleFromText(Text), std::nullopt) << Text;
        EXPECT_EQ(Entier16FromText(Text), std::nullopt) << Text;
    }
}

TEST(TextOfScaled, WritesNoTrailingZeros)
{
    EXPECT_EQ(TextOfScaled(125000, 4), "12,5");
    EXPECT_EQ(TextOfScaled(0, 4), "0");
    EXPECT_EQ(TextOfScaled(-1, 4), "-0,0001");
    EXPECT_EQ(TextOfScaled(1200, 0), "1200");
    EXPECT_EQ(TextOfScaled(Smallest, 4), "-922337203685477,5808");
}

TEST(TextOfScaled, ComesBackFromItsTextOverTheWholeRange)
{
    std::mt19937_64 Random(1);
    for (int i = 0; i < Rounds; ++i) {
        const auto Count = static_cast<std::int64_t>(Random()) >> (Random() % 64);
        for (const int Decimals : {0, 1, 4, 9})
            ASSERT_EQ(ScaledFromText(TextOfScaled(Count, Decimals), Decimals), Count);
    }
}

TEST(ScaledFromText, RoundsOnceFromTheExactText)
{
    std::mt19937_64 Random(2);
    for (int i = 0; i < Rounds; ++i) {
        const auto Count = static_cast<std::int64_t>(Random() >> (2 + Random() % 60));
        const auto Extra = static_cast<std::int64_t>(Random() % 1000);
        const std::string Digits = std::to_string(1000 + Extra).substr(1);
        const std::string Whole = std::to_string(Count);
        const std::int64_t Up = Extra > 500 || (Extra == 500 && Count % 2 == 1) ? 1 : 0;
        ASSERT_EQ(ScaledFromText(Whole + "," + Digits, 0), Count + Up) << Whole << "," << Digits;
        ASSERT_EQ(ScaledFromText("-" + Whole + "," + Digits, 0), -Count - Up);
    }
}

TEST(Entier16, RoundsTheExactTextOnceWithinSixteenBits)
{
    const std::pair<const char*, std::int16_t> Cases[] = {
        {"2,5", 2},       {"3,5", 4},          {"-2,5", -2},        {"-3,5", -4},
        {"2,50001", 3},   {"-2,50001", -3},    {"0,5", 0},          {"-0,5", 0},
        {"2,4999999", 2}, {"32767,49", 32767}, {"-32768,5", -32768}};
    for (const auto& [Text, Value] : Cases)
        EXPECT_EQ(Entier16FromText(Text), Value) << Text;
    for (const char* Text : {"32767,5", "-32768,51", "32768", "40000", "65537", "4294967297"})
        EXPECT_EQ(Entier16FromText(Text), std::nullopt) << Text;
}

TEST(Entier16, OfANumberIsExactOrFails)
{
    EXPECT_EQ(Entier16(-32768), -32768);
    EXPECT_EQ(Entier16(32767), 32767);
    EXPECT_FAILS(Overflow, Entier16(32768));
    EXPECT_FAILS(Overflow, Entier16(-32769));
    EXPECT_FAILS(Overflow, Entier16(65536));
    EXPECT_FAILS(Overflow, Entier16(Smallest));
}

TEST(DoubleFromText, GivesTheNearestDouble)
{
    EXPECT_EQ(DoubleFromText("0,1"), 0.1);
    EXPECT_EQ(DoubleFromText(" -12,75"), -12.75);
    EXPECT_EQ(DoubleFromText(",5"), 0.5);
    EXPECT_EQ(DoubleFromText("2,"), 2.0);
    EXPECT_EQ(DoubleFromText("9007199254740993"), 9007199254740992.0) << "tie to even";
    EXPECT_EQ(DoubleFromText("9007199254740993,0001"), 9007199254740994.0);
    EXPECT_EQ(DoubleFromText("1" + Zeros(308)), 1e308);
    EXPECT_EQ(DoubleFromText("1" + Zeros(309)), std::nullopt);
}

TEST(DoubleFromText, OfATextTooSmallForADoubleIsZero)
{
    EXPECT_EQ(DoubleFromText("0," + Zeros(400) + "1"), 0.0);
    EXPECT_EQ(DoubleFromText("-0," + Zeros(400) + "1"), 0.0);
}

TEST(TextOfDouble, WritesFifteenDigitsAndNeverAnExponent)
{
    const std::pair<double, std::string> Cases[] = {{-0.0, "0"},
                                                    {0.1 + 0.2, "0,3"},
                                                    {1.0 / 3, "0,333333333333333"},
                                                    {-2.0 / 3, "-0,666666666666667"},
                                                    {-1e-7, "-0,0000001"},
                                                    {1e15, "1000000000000000"},
                                                    {999999999999999.875, "1000000000000000"},
                                                    {123456789012345678.0, "123456789012346000"}};
    for (const auto& [Value, Text] : Cases)
        EXPECT_EQ(TextOfDouble(Value), Text);
    EXPECT_EQ(TextOfDouble(1e300), "1" + Zeros(300));
    EXPECT_EQ(TextOfDouble(DBL_MAX), "179769313486232" + Zeros(294));
    EXPECT_EQ(TextOfDouble(-5e-324), "-0," + Zeros(323) + "494065645841247");
}

TEST(TextOfDouble, GivesBackEveryTextOfFifteenDigits)
{
    std::mt19937_64 Random(3);
    for (int i = 0; i < Rounds; ++i) {
        const auto Digits = static_cast<std::int64_t>(Random() % 1'000'000'000'000'000);
        const std::string Text = TextOfScaled(i % 2 == 0 ? Digits : -Digits, i % 19);
        ASSERT_EQ(TextOfDouble(*DoubleFromText(Text)), Text);
    }
}

} // namespace orvane
