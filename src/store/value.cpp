#include "store/value.h"

#include "base/failure.h"
#include "base/number_text.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr int MoneyDecimals = 4;
constexpr std::ptrdiff_t DigitsOfDouble = 15;

template <class T>
T OrRefused(std::optional<T> Number, const std::string& Text)
{
    if (!Number)
        throw Failure(FailureKind::RefusedNumber, Text);
    return *Number;
}

std::string HexOf(const std::string& Bytes)
{
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string Result;
    for (const char Each : Bytes) {
        Result += Digits[static_cast<unsigned char>(Each) >> 4];
        Result += Digits[static_cast<unsigned char>(Each) & 15];
    }
    return Result;
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
    if (const auto* Bytes = std::get_if<Blob>(&Content))
        return HexOf(Bytes->Content);
    return {};
}

Value ExactNumber(const std::string& Text)
{
    if (Text.find(',') == std::string::npos) {
        const auto Whole = ScaledFromText(Text, 0);
        return Whole ? Value(*Whole) : Value(Text + ",0");
    }
    const auto Digits =
        std::ranges::count_if(Text, [](char Sign) { return Sign >= '0' && Sign <= '9'; });
    return Digits > DigitsOfDouble ? Value(Text) : Value(*DoubleFromText(Text));
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
        return ExactNumber(
            TextOfScaled(OrRefused(ScaledFromText(Text, MoneyDecimals), Text), MoneyDecimals));
    default:
        return Text;
    }
}

} // namespace orvane
