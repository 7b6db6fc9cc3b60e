#include "base/montant.h"

#include "base/failure.h"
#include "base/number_text.h"

#include <cmath>
#include <limits>

namespace orvane {

namespace {

constexpr int Decimals = 4;
constexpr std::int64_t Unit = 10'000;

__extension__ typedef __int128 Wide;

[[noreturn]] void ThrowOverflow(Montant Left, char Operation, Montant Right)
{
    throw Failure(FailureKind::Overflow, TextOfScaled(Left.TenThousandths(), Decimals) + " " +
                                             Operation + " " +
                                             TextOfScaled(Right.TenThousandths(), Decimals));
}

// Rounded, ties to even. Nothing when it doesn't fit.
std::optional<std::int64_t> Quotient(Wide Dividend, Wide Divisor)
{
    Wide Result = Dividend / Divisor;
    const Wide Rest = Dividend % Divisor;
    const Wide Twice = 2 * (Rest < 0 ? -Rest : Rest);
    if (Twice > Divisor || (Twice == Divisor && Result % 2 != 0))
        Result += Dividend < 0 ? -1 : 1;
    if (Result < std::numeric_limits<std::int64_t>::min() ||
        Result > std::numeric_limits<std::int64_t>::max())
        return {};
    return static_cast<std::int64_t>(Result);
}

} // namespace

Montant Montant::FromWhole(std::int64_t Value)
{
    std::int64_t Count = 0;
    if (__builtin_mul_overflow(Value, Unit, &Count))
        throw Failure(FailureKind::Overflow, std::to_string(Value));
    return Montant(Count);
}

std::optional<Montant> Montant::FromText(std::string_view Text)
{
    const auto Count = ScaledFromText(Text, Decimals);
    return Count ? std::optional(Montant(*Count)) : std::nullopt;
}

std::optional<Montant> Montant::FromDouble(double Value)
{
    return std::isfinite(Value) ? FromText(TextOfDouble(Value)) : std::nullopt;
}

double Montant::ToDouble() const
{
    constexpr std::int64_t ExactInDouble = std::int64_t{1} << 53;
    if (Count >= -ExactInDouble && Count <= ExactInDouble)
        return static_cast<double>(Count) / static_cast<double>(Unit);
    // Past 2^53 the division would round a second time; the decimal text rounds once.
    return *DoubleFromText(TextOfScaled(Count, Decimals));
}

std::optional<Montant> SumIfFits(Montant Left, Montant Right)
{
    std::int64_t Count = 0;
    if (__builtin_add_overflow(Left.Count, Right.Count, &Count))
        return {};
    return Montant(Count);
}

Montant operator+(Montant Left, Montant Right)
{
    const auto Sum = SumIfFits(Left, Right);
    if (!Sum)
        ThrowOverflow(Left, '+', Right);
    return *Sum;
}

Montant operator-(Montant Left, Montant Right)
{
    std::int64_t Count = 0;
    if (__builtin_sub_overflow(Left.Count, Right.Count, &Count))
        ThrowOverflow(Left, '-', Right);
    return Montant(Count);
}

Montant operator*(std::int16_t Factor, Montant Amount)
{
    std::int64_t Count = 0;
    if (__builtin_mul_overflow(std::int64_t{Factor}, Amount.Count, &Count))
        ThrowOverflow(Montant::FromWhole(Factor), '*', Amount);
    return Montant(Count);
}

Montant operator*(Montant Left, Montant Right)
{
    const auto Count = Quotient(Wide{Left.Count} * Right.Count, Unit);
    if (!Count)
        ThrowOverflow(Left, '*', Right);
    return Montant(*Count);
}

std::optional<Montant> Proportion(Montant Amount, Montant Part, Montant Whole)
{
    const auto Count = Quotient(Wide{Amount.Count} * Part.Count, Whole.Count);
    return Count ? std::optional(Montant(*Count)) : std::nullopt;
}

} // namespace orvane
