#include "base/csv.h"

#include <gtest/gtest.h>
#include <utility>

namespace orvane {

TEST(Csv, ACellIsReadBackAsItIsAndNoFormula)
{
    const std::pair<std::string, std::string> Rows[] = {{"fer", "fer"},
                                                        {"-3,5", "-3,5"},
                                                        {"+5", "+5"},
                                                        {"-3.5", "'-3.5"}, // no number here
                                                        {"=1+1", "'=1+1"},
                                                        {"@or", "'@or"},
                                                        {" \t=1+1", "' \t=1+1"},
                                                        {"+", "'+"},
                                                        {"", ""},
                                                        {"a;b", "\"a;b\""},
                                                        {"l\"or", "\"l\"\"or\""},
                                                        {"=\"x\"", "\"'=\"\"x\"\"\""},
                                                        {"deux\nlignes", "\"deux\nlignes\""}};
    for (const auto& [Cell, Written] : Rows)
        EXPECT_EQ(CsvLine({Cell, "2"}), Written + ";2\n") << Cell;
    EXPECT_EQ(TabLine({"a\tb\nc", "=1", ";", ""}), "a b c\t'=1\t;\t\n");
}

} // namespace orvane
