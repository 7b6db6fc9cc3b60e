#include "base/text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace orvane {

namespace {

const std::string Family = "👩‍👩‍👧";   // three people joined: one character
const std::string Decomposed = "E\u0301pe\u0301e"; // Épée with the accents apart

} // namespace

TEST(Text, CharactersAreCountedAsAReaderCountsThem)
{
    const std::pair<std::string, std::size_t> Cases[] = {
        {"", 0},         {"abc", 3},    {"Épée", 4},       {Decomposed, 4},
        {"🇫🇷", 1},       {Family, 1},   {"a👍🏽b", 3}, {"\xFF\xFE", 2},
        {"Œuvre «»", 8}, {"a\r\nb", 3}, {"é\r\nb", 3}};
    for (const auto& [Text, Count] : Cases)
        EXPECT_EQ(CharacterCount(Text), Count) << Text;
}

TEST(Text, CuttingKeepsWholeCharacters)
{
    EXPECT_EQ(FirstCharacters("Épée", 2), "Ép");
    EXPECT_EQ(FirstCharacters(Decomposed, 1), "E\u0301");
    EXPECT_EQ(FirstCharacters("a" + Family + "b", 2), "a" + Family);
    EXPECT_EQ(FirstCharacters("Épée", 9), "Épée");
    EXPECT_EQ(WithoutLastCharacters("Épée 99", 3), "Épée");
    EXPECT_EQ(WithoutLastCharacters("cafe\u0301", 1), "caf");
    EXPECT_EQ(WithoutLastCharacters("a" + Family, 1), "a");
    EXPECT_EQ(WithoutLastCharacters("Épée", 4), "");
}

TEST(Text, CuttingMoreThanAnyTextHasIsHarmless)
{
    constexpr auto Most = std::numeric_limits<std::size_t>::max(); // as "count of none, less one"
    EXPECT_EQ(FirstCharacters("Épée", Most), "Épée");
    EXPECT_EQ(FirstCharacters("", Most), "");
    EXPECT_EQ(WithoutLastCharacters("Épée", Most), "");
}

TEST(Text, MalformedBytesNeverFail)
{
    const std::string Broken = "a\xC3"
                               "b\xFF";
    EXPECT_EQ(CharacterCount(Broken), 4U);
    EXPECT_EQ(FirstCharacters(Broken, 1), "a");
    EXPECT_EQ(WithoutLastCharacters("ab\xFF", 1), "ab");
    EXPECT_TRUE(ContainsIgnoringCase(Broken, "B"));
    EXPECT_NE(CompareFrench(Broken, "a"), 0);
    EXPECT_EQ(FoldedCase("A\xF0\x9F"), FoldedCase("a\xF0\x9F"));
    EXPECT_FALSE(AccentedCaseVariants(Broken, 16).empty());
}

TEST(Text, AWordIsFoundWithoutRegardToCaseButAccentsCount)
{
    EXPECT_TRUE(ContainsIgnoringCase("Une ÉPÉE courte", "épée"));
    EXPECT_TRUE(ContainsIgnoringCase("bœuf", "ŒUF"));
    EXPECT_FALSE(ContainsIgnoringCase("Une épée courte", "epee"));
    EXPECT_FALSE(ContainsIgnoringCase("épé", "épée"));
    EXPECT_FALSE(Contains("Une Épée", "épée"));
}

TEST(Text, FoldedCaseIsTheSameForEachWayToWriteAWord)
{
    EXPECT_EQ(FoldedCase("ÉCLAT ÇÀ ŒÎÔÛŸ Az["), FoldedCase("éclat çà œîôûÿ aZ["));
    EXPECT_NE(FoldedCase("é"), FoldedCase("e"));
    EXPECT_NE(FoldedCase("["), FoldedCase("{")) << "only letters have a case";
}

TEST(Text, FoldedForSearchDropsCaseAndAccents)
{
    EXPECT_EQ(FoldedForSearch("Élégance ÇÀ"), "elegance ca");
    EXPECT_EQ(FoldedForSearch(Decomposed), "epee");
}

TEST(Text, VariantsDifferByTheCaseOfAccentedLettersOnly)
{
    using Texts = std::vector<std::string>;
    EXPECT_EQ(AccentedCaseVariants("", 16), Texts{""});
    EXPECT_EQ(AccentedCaseVariants("Lin", 16), Texts{"Lin"});
    EXPECT_EQ(AccentedCaseVariants("Éa", 16), (Texts{"Éa", "éa"}));
    EXPECT_EQ(AccentedCaseVariants(Decomposed, 16), Texts{Decomposed});
    Texts Four = AccentedCaseVariants("éxà", 4);
    ASSERT_FALSE(Four.empty());
    EXPECT_EQ(Four[0], "éxà");
    std::ranges::sort(Four);
    Texts Expected{"éxà", "Éxà", "éxÀ", "ÉxÀ"};
    std::ranges::sort(Expected);
    EXPECT_EQ(Four, Expected);
    EXPECT_TRUE(AccentedCaseVariants("éxà", 3).empty());
    EXPECT_EQ(AccentedCaseVariants("éàèç", 16).size(), 16U);
    EXPECT_TRUE(AccentedCaseVariants("éàèçê", 16).empty());
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
}

} // namespace orvane
