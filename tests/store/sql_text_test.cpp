#include "store/sql_text.h"
#include "support/expect_fails.h"

#include <gtest/gtest.h>

namespace orvane {

namespace {

// Kinds and contents in short: w(ord), t(ext), n(umber), s(ymbol).
std::string Short(std::string_view Sql)
{
    std::string Result;
    for (const Token& Each : Tokenize(Sql))
        Result += std::string(1, "wtns"[static_cast<int>(Each.Kind)]) + ":" + Each.Content + "/";
    return Result;
}

} // namespace

TEST(SqlText, WordsTextsNumbersAndSymbols)
{
    const std::pair<const char*, const char*> Cases[] = {
        {"SELECT Icône,Prix", "w:SELECT/w:Icône/s:,/w:Prix/"},
        {"a>=12.5 <>'b'", "w:a/s:>=/n:12.5/s:<>/t:b/"},
        {"[Table à part] = \"x\"", "w:Table à part/s:=/t:x/"},
        {"Matériaux_1.Nom=\"\"", "w:Matériaux_1.Nom/s:=/t:/"},
        {"\"dit \"\"Le Noir\"\"\"", "t:dit \"Le Noir\"/"},
        {"'l''arc'", "t:l'arc/"},
        {" \n\t", ""}};
    for (const auto& [Sql, Tokens] : Cases)
        EXPECT_EQ(Short(Sql), Tokens);
}

TEST(SqlText, AQuotedValueComesBackAsOneText)
{
    for (const std::string Value :
         {"", "\"", "\"\"", "l'arc \"du\" roi", "a\" OR \"1\"=\"1", "É*%_"}) {
        const auto Tokens = Tokenize("Nom = " + Quoted(Value) + " AND x");
        ASSERT_EQ(Tokens.size(), 5U) << Value;
        EXPECT_EQ(Tokens[2].Kind, TokenKind::Text);
        EXPECT_EQ(Tokens[2].Content, Value);
    }
}

TEST(SqlText, ATextThatDoesNotEndFails)
{
    for (const char* Sql : {"\"a", "'a", "[a", "\"a\"\"", "\""})
        EXPECT_FAILS(Store, Tokenize(Sql));
}

TEST(SqlText, AKeywordIsRecognizedWhateverItsCaseButNeverInAText)
{
    EXPECT_TRUE(Tokenize("sElEcT")[0].Is("SELECT"));
    EXPECT_FALSE(Tokenize("\"SELECT\"")[0].Is("SELECT"));
}

} // namespace orvane
