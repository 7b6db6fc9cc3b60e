#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvane {

// Money: a signed count of ten-thousandths, exact over the whole 64-bit range.
// Every operation that leaves the range throws Failure (FailureKind::Overflow); nothing wraps.
class Montant
{
  public:
    constexpr Montant() = default;

    static constexpr Montant FromTenThousandths(std::int64_t Count) { return Montant(Count); }
    static Montant FromWhole(std::int64_t Value);

    // The text of a number ("12,5", " -3 "); more than four decimals round to four, ties to even.
    // Nothing for a text that is no number or out of range.
    static std::optional<Montant> FromText(std::string_view Text);

    // Through the double's 15-digit text, so that ties fall where pencil and paper put them.
    static std::optional<Montant> FromDouble(double Value);

    constexpr std::int64_t TenThousandths() const { return Count; }

    // The nearest double.
    double ToDouble() const;

    friend std::optional<Montant> SumIfFits(Montant Left, Montant Right); // nothing when it doesn't
    friend Montant operator+(Montant Left, Montant Right);
    friend Montant operator-(Montant Left, Montant Right);
    friend Montant operator*(std::int16_t Factor, Montant Amount); // exact
    friend Montant operator*(Montant Left, Montant Right);         // four decimals, ties to even
    friend constexpr bool operator==(Montant, Montant) = default;
    friend constexpr std::strong_ordering operator<=>(Montant Left, Montant Right)
    {
        return Left.Count <=> Right.Count;
    }

    // Amount × Part / Whole, rounded once, ties to even; nothing when it doesn't fit. Whole is
    // above 0.
    friend std::optional<Montant> Proportion(Montant Amount, Montant Part, Montant Whole);

  private:
    explicit constexpr Montant(std::int64_t Count) : Count(Count) {}

    std::int64_t Count = 0;
};

std::optional<Montant> SumIfFits(Montant Left, Montant Right);
std::optional<Montant> Proportion(Montant Amount, Montant Part, Montant Whole);

} // namespace orvane
