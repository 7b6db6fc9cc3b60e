#include "store/value.h"

#include "base/failure.h"
#include "base/number_text.h"

#include <algorithm>
#include <charconv>

namespace orvane {

namespace {

constexpr int MoneyDecimals = 4;
constexpr std::size_t DigitsOfDouble = 15;

std::string Upper(std::string_view Text)
{
    std::string Result(Text);
    std::ranges::transform(Result, Result.begin(), [](char Letter) {
        return Letter >= 'a' && Letter <= 'z' ? static_cast<char>(Letter - 32) : Letter;
    });
    return Result;
}

// The scale of "DECIMAL(19,4)": 4; of "DECIMAL(19)": 0; of "DECIMAL": as money.
int DeclaredDecimals(std::string_view Type)
{
    const auto Open = Type.find('(');
    if (Open == std::string_view::npos)
        return MoneyDecimals;
    const auto Comma = Type.find(',', Open);
    if (Comma == std::string_view::npos)
        return 0;
    const auto Digit = Type.find_first_not_of(' ', Comma + 1);
    int Scale = 0;
    if (Digit != std::string_view::npos)
        std::from_chars(Type.data() + Digit, Type.data() + Type.size(), Scale);
    return Scale;
}

bool ContainsOneOf(std::string_view Text, std::initializer_list<std::string_view> Words)
{
    return std::ranges::any_of(
        Words, [&](std::string_view Word) { return Text.find(Word) != std::string_view::npos; });
}

// A decimal as SQLite holds it best: whole, a double that gives the same digits back, or, past a
// double's 15 digits, the text with its comma, which no affinity turns into a number.
Value StoredDecimal(std::int64_t Count, int Decimals)
{
    const std::string Text = TextOfScaled(Count, Decimals);
    if (Text.find(',') == std::string::npos)
        return *ScaledFromText(Text, 0);
    const auto Digits = static_cast<std::size_t>(
        std::ranges::count_if(Text, [](char Sign) { return Sign >= '0' && Sign <= '9'; }));
    if (Digits > DigitsOfDouble)
        return Text;
    return *DoubleFromText(Text);
}

template <class T>
T OrRefused(std::optional<T> Number, const std::string& Text)
{
    if (!Number)
        throw Failure(FailureKind::RefusedNumber, Text);
    return *Number;
}

} // namespace

std::string Value::ToText() const
{
    if (const auto* Whole = std::get_if<std::int64_t>(&Content))
        return std::to_string(*Whole);
    if (const auto* Number = std::get_if<double>(&Content))
        return TextOfDouble(*Number);
    if (const auto* Text = std::get_if<std::string>(&Content))
        return *Text;
    return {};
}

ColumnKind ColumnKind::FromDeclaredType(std::string_view Declared)
{
    const std::string Type = Upper(Declared);
    ColumnKind Kind;
    if (ContainsOneOf(Type, {"CHAR", "TEXT", "CLOB"}))
        Kind.TheFamily = Family::Text;
    else if (ContainsOneOf(Type, {"DECIMAL", "NUMERIC", "MONEY", "CURRENCY"})) {
        Kind.TheFamily = Family::Decimal;
        Kind.Decimals = DeclaredDecimals(Type);
    } else if (ContainsOneOf(Type, {"INT", "COUNTER"}))
        Kind.TheFamily = Family::Whole;
    else if (ContainsOneOf(Type, {"REAL", "DOUB", "FLOA"}))
        Kind.TheFamily = Family::Real;
    return Kind;
}

Value ColumnKind::Convert(const Value& Given) const
{
    if (Given.IsNull() || TheFamily == Family::Any)
        return Given;
    const std::string Text = Given.ToText();
    switch (TheFamily) {
    case Family::Whole:
        return OrRefused(ScaledFromText(Text, 0), Text);
    case Family::Decimal:
        return StoredDecimal(OrRefused(ScaledFromText(Text, Decimals), Text), Decimals);
    case Family::Real:
        return OrRefused(DoubleFromText(Text), Text);
    default:
        return Text;
    }
}

} // namespace orvane
