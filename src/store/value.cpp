#include "store/value.h"

#include "base/failure.h"
#include "base/number_text.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr int MoneyDecimals = 4;
constexpr std::size_t DigitsOfDouble = 15;

// A decimal as SQLite holds it best: whole, a double that gives the same digits back, or, past a
// double's 15 digits, the text with its comma, which no affinity turns into a number.
Value StoredDecimal(std::int64_t Count)
{
    const std::string Text = TextOfScaled(Count, MoneyDecimals);
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

ColumnKind::ColumnKind(std::string_view DeclaredType)
    : TheFamily(DeclaredType == "TEXT"                 ? Family::Text
                : DeclaredType == "INTEGER"            ? Family::Whole
                : DeclaredType.starts_with("DECIMAL(") ? Family::Decimal
                                                       : Family::Any)
{
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
        return StoredDecimal(OrRefused(ScaledFromText(Text, MoneyDecimals), Text));
    default:
        return Text;
    }
}

} // namespace orvane
