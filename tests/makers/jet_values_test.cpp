#include "catalogue/declaration.h"
#include "makers/jet_schema.h"
#include "makers/jet_text.h"
#include "makers/jet_values.h"
#include "support/expect_fails.h"

#include <bit>
#include <limits>

namespace orvane {

namespace {

using namespace std::string_literals;

JetCell BytesOf(double Number)
{
    const auto Bits = std::bit_cast<std::uint64_t>(Number);
    std::string Result;
    for (int i = 0; i < 8; ++i)
        Result += static_cast<char>(Bits >> 8 * i & 0xFF);
    return Result;
}

TEST(JetValues, DatesBecomeIsoTextsWhoseTimeCountsOnFromMidnightAlsoBefore1900)
{
    const std::pair<double, const char*> Dates[] = {
        {0, "1899-12-30 00:00:00"},
        {-1.25, "1899-12-29 06:00:00"},
        {61 + 2.5 / 86'400, "1900-03-01 00:00:02.500"},
        {38'046.999'999'999, "2004-03-01 00:00:00"}, // less than a millisecond before midnight
        {-657'434, "0100-01-01 00:00:00"},
        {2'958'465.5, "9999-12-31 12:00:00"},
    };
    for (const auto& [Days, Text] : Dates)
        EXPECT_EQ(ValueOf({"", JetType::Date}, BytesOf(Days)).ToText(), Text);
}

TEST(JetValues, NumbersAreExact)
{
    const auto Numeric = [](const std::string& Bytes, int Scale) {
        return ValueOf({"", JetType::Numeric, Scale}, Bytes);
    };
    const std::string Zeros(8, '\0');
    // the sign, then four groups of which the last is the lowest, each with its lowest byte first
    EXPECT_EQ(Numeric("\0"s + Zeros + "\0\0\0\0"s + "\xE2\4\0\0"s, 2), Value(12.5));
    EXPECT_EQ(Numeric("\x80"s + Zeros + "\0\0\0\0"s + "\xE8\3\0\0"s, 3), Value(std::int64_t{-1}));
    EXPECT_EQ(Numeric("\x80"s + Zeros + Zeros, 2), Value(std::int64_t{0}));
    EXPECT_EQ(Numeric("\0"s + Zeros + "\1\0\0\0"s + "\0\0\0\0"s, 4), Value(429'496.7296));
    EXPECT_EQ(Numeric("\0"s + "\0\0\0\0\1\0\0\0"s + Zeros, 0), Value("18446744073709551616,0"));
    EXPECT_EQ(Numeric("\0"s + "\0\0\0\0\1\0\0\0"s + Zeros, 18), Value("18,446744073709551616"));
    EXPECT_EQ(ValueOf({"", JetType::Single}, "\xCD\xCC\xCC\x3D"), Value(0.1)) << "as it is shown";
    EXPECT_EQ(ValueOf({"", JetType::Boolean}, {}), Value(std::int64_t{0})) << "there is no null";
}

TEST(JetValues, ATextIsPairsOrOneByteEachWithStretchesOfPairs)
{
    EXPECT_EQ(TextOfJet4("\xE9\0\xAC\x20\x34\xD8\x1E\xDD"s), "é€𝄞");
    EXPECT_EQ(TextOfJet4("\xFF\xFE\xE9t\xE9 \0\xAC\x20\x53\x01\0uf"s), "été €œuf");
    EXPECT_EQ(TextOfJet4("\xFF\xFE"s), "");
    EXPECT_EQ(TextOfJet4(""), "");
}

TEST(JetValues, BytesThatNoValueHasAreDamage)
{
    for (const std::string& Bytes : {"a"s, "\xFF\xFE\0a"s, "\x34\xD8"s, "\x1E\xDD\x34\xD8"s})
        EXPECT_FAILS(JetDamaged, TextOfJet4(Bytes));
    constexpr double Nothing = std::numeric_limits<double>::quiet_NaN();
    for (const double Days : {Nothing, 3e6, -7e5, 1e300})
        EXPECT_FAILS(JetDamaged, ValueOf({"", JetType::Date}, BytesOf(Days)));
    EXPECT_FAILS(JetDamaged, ValueOf({"", JetType::Double}, BytesOf(Nothing)));
    EXPECT_FAILS(JetDamaged, ValueOf({"", JetType::Int32}, "123"s));
    EXPECT_FAILS(JetDamaged, ValueOf({"", JetType::Guid}, "123"s));
    EXPECT_FAILS(JetDamaged, ValueOf({"", JetType::Numeric, 2}, "123"s));
}

// The types that the columns of a table get, one cell of each row given.
std::string TypesOf(const JetTable& Table)
{
    std::string Result;
    const DatabaseDefinition Definition = DefinitionOf({{Table}, {}}, ".");
    for (const ColumnDefinition& Each : Definition.Tables[0].Columns)
        Result += std::string(DeclaredType(Each.Type)) + "|";
    return Result;
}

TEST(JetSchema, AColumnTakesOurTypeOnlyWhenThatChangesNothing)
{
    const auto Whole = [](std::int64_t Number) { return Value(Number); };
    const std::vector<JetColumn> Columns{{"Num", JetType::Int32},
                                         {"Nom", JetType::Double},
                                         {"nb", JetType::Double},
                                         {"PrixCoûtant", JetType::Text},
                                         {"PrixVente", JetType::Numeric, 6}};
    const JetTable Fitting{"panierglobal",
                           Columns,
                           {{Whole(2), 1.5, 3.0, Value("12,5"), Whole(1)},
                            {Whole(1), {}, {}, Value("-3"), Value(0.25)}}};
    EXPECT_EQ(TypesOf(Fitting),
              "INTEGER PRIMARY KEY AUTOINCREMENT|TEXT|INTEGER|DECIMAL(19,4)|DECIMAL(19,4)|");
    JetTable Other = Fitting;
    Other.Rows.push_back({Whole(2), {}, 2.5, Value("12,50"), Value(0.000001)});
    EXPECT_EQ(TypesOf(Other), "INTEGER|TEXT|DOUBLE|TEXT|NUMERIC|");
}

TEST(JetSchema, ARowsNumberIsTheKeyWhereItKeepsTheOrder)
{
    const auto Rows = [](std::initializer_list<Value> Numbers) {
        JetTable Table{"Effets", {{"Num", JetType::Int32}}, {}};
        for (const Value& Each : Numbers)
            Table.Rows.push_back({Each});
        return Table;
    };
    const Value One = std::int64_t{1};
    const Value Two = std::int64_t{2};
    EXPECT_EQ(TypesOf(Rows({One, Two})), "INTEGER PRIMARY KEY|");
    EXPECT_EQ(TypesOf(Rows({Two, One})), "INTEGER|");
    EXPECT_EQ(TypesOf(Rows({One, One})), "INTEGER|");
    EXPECT_EQ(TypesOf(Rows({One, {}})), "INTEGER|");
}

} // namespace

} // namespace orvane
