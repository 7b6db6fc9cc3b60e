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

Montant operator+(Montant Left, Montant Right)
{
    std::int64_t Count = 0;
    if (__builtin_add_overflow(Left.Count, Right.Count, &Count))
        ThrowOverflow(Left, '+', Right);
    return Montant(Count);
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
    const Wide Product = Wide{Left.Count} * Right.Count;
    Wide Quotient = Product / Unit;
    const Wide Rest = Product % Unit;
    const Wide Twice = 2 * (Rest < 0 ? -Rest : Rest);
    if (Twice > Unit || (Twice == Unit && Quotient % 2 != 0))
        Quotient += Product < 0 ? -1 : 1;
    if (Quotient < std::numeric_limits<std::int64_t>::min() ||
        Quotient > std::numeric_limits<std::int64_t>::max())
        ThrowOverflow(Left, '*', Right);
    return Montant(static_cast<std::int64_t>(Quotient));
}

} // namespace orvane
