#include "makers/jet_values.h"

#include "base/number_text.h"
#include "makers/damage.h"

#include <array>
#include <bit>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace orvane {

namespace {

constexpr int MoneyDecimals = 4;
constexpr double FirstDay = -657'434; // in the year 100
constexpr double LastDay = 2'958'466; // after the year 9999

// The number that the first bytes hold, the lowest first.
template <class Number>
Number Read(std::string_view Bytes)
{
    if (Bytes.size() < sizeof(Number))
        ThrowDamaged("a number cut off");
    std::array<char, sizeof(Number)> Copy{};
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        Copy[std::endian::native == std::endian::little ? i : sizeof(Number) - 1 - i] = Bytes[i];
    return std::bit_cast<Number>(Copy);
}

double Finite(double Number)
{
    if (!std::isfinite(Number))
        ThrowDamaged("no number");
    return Number;
}

// The double that shows the digits of a single, not those that it gains as a double.
double ShownSingle(float Number)
{
    std::array<char, 64> Text{};
    const auto End = std::to_chars(Text.begin(), Text.end(), Finite(Number) == 0 ? 0 : Number);
    double Shown = 0;
    std::from_chars(Text.begin(), End.ptr, Shown);
    return Shown;
}

// Days since 30 December 1899 and the time of that day, which counts on also before it.
std::string IsoDate(double Days)
{
    using namespace std::chrono;
    if (!(Days > FirstDay - 1 && Days < LastDay))
        ThrowDamaged("no date");
    const double Whole = std::trunc(Days);
    milliseconds Time(std::llround(std::abs(Days - Whole) * 86'400'000));
    const sys_days Day =
        sys_days(December / 30 / 1899) + days(static_cast<int>(Whole)) + floor<days>(Time);
    Time -= floor<days>(Time);
    const year_month_day Date(Day);
    const hh_mm_ss Clock(Time);
    std::array<char, 64> Text{};
    std::snprintf(Text.data(), Text.size(), "%04d-%02u-%02u %02d:%02d:%02d",
                  static_cast<int>(Date.year()), static_cast<unsigned>(Date.month()),
                  static_cast<unsigned>(Date.day()), static_cast<int>(Clock.hours().count()),
                  static_cast<int>(Clock.minutes().count()),
                  static_cast<int>(Clock.seconds().count()));
    std::string Result = Text.data();
    if (const auto Rest = Clock.subseconds().count(); Rest != 0)
        Result += "." + std::to_string(1000 + Rest).substr(1);
    return Result;
}

// A sign, then sixteen bytes in four groups, the highest first, each with its lowest byte first.
std::string NumericText(std::string_view Bytes, int Scale)
{
    __extension__ typedef unsigned __int128 Wide;
    constexpr std::size_t Size = 17;
    if (Bytes.size() < Size || Scale < 0)
        ThrowDamaged("a number cut off");
    Wide Count = 0;
    for (std::size_t i = 1; i < Size; i += 4)
        Count = Count << 32 | Read<std::uint32_t>(Bytes.substr(i));
    std::string Digits;
    for (; Count != 0 || Digits.size() <= static_cast<std::size_t>(Scale); Count /= 10)
        Digits.insert(Digits.begin(), static_cast<char>('0' + static_cast<int>(Count % 10)));
    if (Scale > 0) {
        Digits.insert(Digits.size() - static_cast<std::size_t>(Scale), ",");
        Digits.erase(Digits.find_last_not_of('0') + 1);
        if (Digits.back() == ',')
            Digits.pop_back();
    }
    return (Bytes[0] != 0 && Digits != "0" ? "-" : "") + Digits;
}

std::string GuidText(std::string_view Bytes)
{
    if (Bytes.size() < 16)
        ThrowDamaged("an identifier cut off");
    constexpr std::array Order{3,  2, 1, 0,  -1, 5,  4,  -1, 7,  6,
                               -1, 8, 9, -1, 10, 11, 12, 13, 14, 15};
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string Result = "{";
    for (const int At : Order) {
        if (At < 0) {
            Result += '-';
            continue;
        }
        const auto Byte = static_cast<unsigned char>(Bytes[static_cast<std::size_t>(At)]);
        Result += Digits[Byte >> 4];
        Result += Digits[Byte & 15];
    }
    return Result + "}";
}

} // namespace

Value ValueOf(const JetColumn& Column, const JetCell& Cell)
{
    if (Column.Type == JetType::Boolean)
        return std::int64_t{Cell ? 1 : 0};
    if (!Cell)
        return {};
    switch (Column.Type) {
    case JetType::Byte:
        return std::int64_t{Read<std::uint8_t>(*Cell)};
    case JetType::Int16:
        return std::int64_t{Read<std::int16_t>(*Cell)};
    case JetType::Int32:
        return std::int64_t{Read<std::int32_t>(*Cell)};
    case JetType::Money:
        return ExactNumber(TextOfScaled(Read<std::int64_t>(*Cell), MoneyDecimals));
    case JetType::Single:
        return ShownSingle(Read<float>(*Cell));
    case JetType::Double:
        return Finite(Read<double>(*Cell));
    case JetType::Date:
        return IsoDate(Read<double>(*Cell));
    case JetType::Numeric:
        return ExactNumber(NumericText(*Cell, Column.Scale));
    case JetType::Guid:
        return GuidText(*Cell);
    case JetType::Binary:
    case JetType::Ole:
        return Blob{*Cell};
    default:
        return *Cell;
    }
}

} // namespace orvane
