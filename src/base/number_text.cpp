#include "base/number_text.h"

#include "base/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace orvane {

namespace {

bool IsDigit(char Sign)
{
    return Sign >= '0' && Sign <= '9';
}

struct NumberParts
{
    bool Negative = false;
    std::string_view Whole;
    std::string_view Fraction;
};

std::string_view WithoutBlanksAround(std::string_view Text)
{
    const auto First = Text.find_first_not_of(" \t");
    if (First == std::string_view::npos)
        return {};
    return Text.substr(First, Text.find_last_not_of(" \t") - First + 1);
}

std::optional<NumberParts> SplitNumber(std::string_view Text)
{
    Text = WithoutBlanksAround(Text);
    NumberParts Parts;
    if (!Text.empty() && (Text.front() == '-' || Text.front() == '+')) {
        Parts.Negative = Text.front() == '-';
        Text.remove_prefix(1);
    }
    const auto Comma = Text.find(',');
    Parts.Whole = Text.substr(0, Comma);
    if (Comma != std::string_view::npos)
        Parts.Fraction = Text.substr(Comma + 1);
    if (Parts.Whole.empty() && Parts.Fraction.empty())
        return std::nullopt;
    if (!std::ranges::all_of(Parts.Whole, IsDigit) || !std::ranges::all_of(Parts.Fraction, IsDigit))
        return std::nullopt;
    return Parts;
}

bool IsBelowOne(const NumberParts& Parts)
{
    return Parts.Whole.find_first_not_of('0') == std::string_view::npos;
}

// Appends one decimal digit; false when the magnitude no longer fits.
bool Append(std::uint64_t& Magnitude, char Digit)
{
    return !__builtin_mul_overflow(Magnitude, std::uint64_t{10}, &Magnitude) &&
           !__builtin_add_overflow(Magnitude, static_cast<std::uint64_t>(Digit - '0'), &Magnitude);
}

// Whether the digits that were cut off push an even-tied magnitude up.
bool RoundsUp(std::string_view Cut, std::uint64_t Magnitude)
{
    if (Cut.empty() || Cut.front() < '5')
        return false;
    const bool Tie = Cut.front() == '5' && Cut.find_first_not_of('0', 1) == std::string_view::npos;
    return !Tie || Magnitude % 2 == 1;
}

std::optional<std::int64_t> Signed(std::uint64_t Magnitude, bool Negative)
{
    constexpr std::uint64_t Limit = std::numeric_limits<std::int64_t>::max();
    if (Magnitude > Limit + (Negative ? 1 : 0))
        return std::nullopt;
    return static_cast<std::int64_t>(Negative ? ~Magnitude + 1 : Magnitude);
}

// Digits with the comma after the first Whole of them (Whole may be negative or past the end).
std::string WithComma(const std::string& Digits, int Whole)
{
    if (Whole <= 0)
        return "0," + std::string(static_cast<std::size_t>(-Whole), '0') + Digits;
    const auto Count = static_cast<std::size_t>(Whole);
    if (Count >= Digits.size())
        return Digits + std::string(Count - Digits.size(), '0');
    return Digits.substr(0, Count) + "," + Digits.substr(Count);
}

} // namespace

std::optional<std::int64_t> ScaledFromText(std::string_view Text, int Decimals)
{
    const auto Parts = SplitNumber(Text);
    if (!Parts)
        return std::nullopt;
    const auto Places = static_cast<std::size_t>(Decimals);
    std::uint64_t Magnitude = 0;
    for (const char Digit : Parts->Whole)
        if (!Append(Magnitude, Digit))
            return std::nullopt;
    for (std::size_t i = 0; i < Places; ++i)
        if (!Append(Magnitude, i < Parts->Fraction.size() ? Parts->Fraction[i] : '0'))
            return std::nullopt;
    if (Parts->Fraction.size() > Places && RoundsUp(Parts->Fraction.substr(Places), Magnitude) &&
        ++Magnitude == 0)
        return std::nullopt;
    return Signed(Magnitude, Parts->Negative);
}

std::string TextOfScaled(std::int64_t Count, int Decimals)
{
    const auto Magnitude = static_cast<std::uint64_t>(Count);
    std::string Digits = std::to_string(Count < 0 ? ~Magnitude + 1 : Magnitude);
    const auto Places = static_cast<std::size_t>(Decimals);
    if (Digits.size() <= Places)
        Digits.insert(0, Places + 1 - Digits.size(), '0');
    std::string Text = Digits.substr(0, Digits.size() - Places);
    const std::string Fraction = Digits.substr(Digits.size() - Places);
    if (const auto Last = Fraction.find_last_not_of('0'); Last != std::string::npos)
        Text += "," + Fraction.substr(0, Last + 1);
    return Count < 0 ? "-" + Text : Text;
}

std::optional<double> DoubleFromText(std::string_view Text)
{
    const auto Parts = SplitNumber(Text);
    if (!Parts)
        return std::nullopt;
    const std::string Plain =
        "0" + std::string(Parts->Whole) + "." + std::string(Parts->Fraction) + "0";
    double Value = 0;
    const auto Read = std::from_chars(Plain.data(), Plain.data() + Plain.size(), Value);
    if (Read.ec == std::errc::result_out_of_range && IsBelowOne(*Parts))
        Value = 0; // too small for a double
    else if (Read.ec != std::errc())
        return std::nullopt;
    return Parts->Negative ? -Value : Value;
}

std::string TextOfDouble(double Value)
{
    if (Value == 0)
        return "0";
    // Scientific form "d.dddddddddddddde±xx" holds the 15 digits correctly rounded.
    std::array<char, 32> Buffer{};
    const auto End = std::to_chars(Buffer.data(), Buffer.data() + Buffer.size(), std::abs(Value),
                                   std::chars_format::scientific, 14)
                         .ptr;
    const std::string_view Form(Buffer.data(), static_cast<std::size_t>(End - Buffer.data()));
    const auto Mark = Form.find('e');
    int Exponent = 0;
    const auto* Power = Form.data() + Mark + (Form[Mark + 1] == '+' ? 2 : 1);
    std::from_chars(Power, Form.data() + Form.size(), Exponent);
    std::string Digits = std::string(1, Form[0]) + std::string(Form.substr(2, Mark - 2));
    Digits.erase(Digits.find_last_not_of('0') + 1);
    const std::string Text = WithComma(Digits, Exponent + 1);
    return Value < 0 ? "-" + Text : Text;
}

std::optional<std::int16_t> Entier16FromText(std::string_view Text)
{
    const auto Value = ScaledFromText(Text, 0);
    if (!Value || *Value < std::numeric_limits<std::int16_t>::min() ||
        *Value > std::numeric_limits<std::int16_t>::max())
        return std::nullopt;
    return static_cast<std::int16_t>(*Value);
}

std::int16_t Entier16(std::int64_t Value)
{
    const auto Narrow = static_cast<std::int16_t>(Value);
    if (Narrow != Value)
        throw Failure(FailureKind::Overflow, std::to_string(Value));
    return Narrow;
}

} // namespace orvane
