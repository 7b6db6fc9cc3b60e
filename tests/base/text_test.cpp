#include "base/text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace orvane {

namespace {

using Texts = std::vector<std::string>;

const std::string Family = "👩‍👩‍👧";   // three people joined: one character
const std::string Decomposed = "E\u0301pe\u0301e"; // Épée with the accents apart
const std::string Broken = "a\xC3"
                           "b\xFF";

} // namespace

TEST(Text, CharactersAreCountedAsAReaderCountsThem)
{
    const std::pair<std::string, std::size_t> Rows[] = {
        {"", 0},         {"abc", 3},    {"Épée", 4},       {Decomposed, 4},
        {"🇫🇷", 1},       {Family, 1},   {"a👍🏽b", 3}, {"\xFF\xFE", 2},
        {"Œuvre «»", 8}, {"a\r\nb", 3}, {"é\r\nb", 3},     {Broken, 4}};
    for (const auto& [Text, Count] : Rows)
        EXPECT_EQ(CharacterCount(Text), Count) << Text;
}

TEST(Text, CuttingKeepsWholeCharactersAndMayAskForMoreThanThereAre)
{
    constexpr auto Most = std::numeric_limits<std::size_t>::max(); // as "count of none, less one"
    const struct
    {
        std::string Text;
        std::size_t Count;
        std::string First;
        std::string WithoutLast;
    } Rows[] = {{"Épée 99", 3, "Épé", "Épée"},
                {Decomposed, 1, "E\u0301", "E\u0301pe\u0301"},
                {"a" + Family + "b", 2, "a" + Family, "a"},
                {"ab\xFF", 1, "a", "ab"},
                {"Épée", 4, "Épée", ""},
                {"Épée", Most, "Épée", ""},
                {"", Most, "", ""}};
    for (const auto& [Text, Count, First, WithoutLast] : Rows) {
        EXPECT_EQ(FirstCharacters(Text, Count), First);
        EXPECT_EQ(WithoutLastCharacters(Text, Count), WithoutLast);
    }
}

TEST(Text, AWordIsFoundWithoutRegardToCaseButAccentsCount)
{
    EXPECT_TRUE(ContainsIgnoringCase("Une ÉPÉE courte", "épée"));
    EXPECT_TRUE(ContainsIgnoringCase("bœuf", "ŒUF"));
    EXPECT_TRUE(ContainsIgnoringCase(Broken, "B"));
    EXPECT_FALSE(ContainsIgnoringCase("Une épée courte", "epee"));
    EXPECT_FALSE(Contains("Une Épée", "épée"));
}

TEST(Text, FoldingDropsCaseAndForASearchAccentsToo)
{
    EXPECT_EQ(FoldedCase("ÉCLAT ÇÀ ŒÎÔÛŸ Az["), FoldedCase("éclat çà œîôûÿ aZ["));
    EXPECT_EQ(FoldedCase("A\xF0\x9F"), FoldedCase("a\xF0\x9F"));
    EXPECT_NE(FoldedCase("é"), FoldedCase("e"));
    EXPECT_NE(FoldedCase("["), FoldedCase("{")) << "only letters have a case";
    EXPECT_EQ(FoldedForSearch("Élégance ÇÀ " + Decomposed + " Œil"), "elegance ca epee oeil");
}

TEST(Text, VariantsDifferByTheCaseOfAccentedLettersOnly)
{
    const struct
    {
        std::string Text;
        std::size_t Limit;
        Texts Variants; // Text itself first, then in the order of their bytes
    } Rows[] = {{"", 16, {""}},
                {"Lin", 16, {"Lin"}},
                {"Éa", 16, {"Éa", "éa"}},
                {Decomposed, 16, {Decomposed}},
                {"éxà", 4, {"éxà", "ÉxÀ", "Éxà", "éxÀ"}},
                {"éxà", 3, {}},
                {"éàèçê", 16, {}}};
    for (const auto& [Text, Limit, Expected] : Rows) {
        Texts Variants = AccentedCaseVariants(Text, Limit);
        if (!Variants.empty())
            std::sort(Variants.begin() + 1, Variants.end());
        EXPECT_EQ(Variants, Expected) << Text;
    }
    EXPECT_EQ(AccentedCaseVariants("éàèç", 16).size(), 16U);
}

TEST(Text, FrenchOrderIsThatOfADictionary)
{
    const std::string Sorted[] = {"10",   "9",     "abricot",  "cote",     "Cote",
                                  "coté", "Coté",  "côte",     "Côte",     "côté",
                                  "Côté", "cotée", "épée",     "Épervier", "odeur",
                                  "œil",  "ogre",  "or blanc", "orage",    "zèbre"};
    for (std::size_t i = 0; i < std::size(Sorted); ++i)
        for (std::size_t j = 0; j < std::size(Sorted); ++j)
            EXPECT_EQ(CompareFrench(Sorted[i], Sorted[j]) < 0, i < j)
                << Sorted[i] << " and " << Sorted[j];
    EXPECT_EQ(CompareFrench("Épée", Decomposed), 0);
    EXPECT_EQ(CompareFrench("o\u0302\u0323", "o\u0323\u0302"), 0) << "marks in either order";
    EXPECT_NE(CompareFrench(Broken, "a"), 0);
}

} // namespace orvane
