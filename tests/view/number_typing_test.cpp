#include "view/number_typing.h"

#include <gtest/gtest.h>

namespace orvane {

TEST(PastedNumbers, AreSpelledAsTheNumberTextsAre)
{
    const std::pair<const char*, const char*> Cases[] = {
        {"12.5", "12,5"},
        {"12,5", "12,5"},
        {".5", ",5"},
        {" -3 ", "-3"},
        {"1 234,50", "1234,50"},
        {"1\u00A0234.5", "1234,5"},
        {"1\u202F234\u2009567", "1234567"},
        {"12\n", "12"},
        {"1.234,50", "1.234,50"},   // two separators: left to the reader, and marked
        {"1.234.567", "1.234.567"}, // the same
        {"abc", "abc"},
    };
    for (const auto& [Pasted, Expected] : Cases)
        EXPECT_EQ(NumberText(QString::fromUtf8(Pasted)), QString::fromUtf8(Expected)) << Pasted;
}

TEST(PastedTexts, AreOneLineInComposedLetters)
{
    EXPECT_EQ(OneLine(QStringLiteral("E\u0301pe\u0301e\r\n")), QStringLiteral("Épée"));
    EXPECT_EQ(OneLine(QStringLiteral("un\tdeux\ntrois")), QStringLiteral("un deux trois"));
}

} // namespace orvane
