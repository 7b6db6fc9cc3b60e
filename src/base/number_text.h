#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Numbers as a crafter types and reads them: an optional sign, digits, a comma, digits; one side of
// the comma may be empty; blanks around. No point, grouping, exponent or currency. Nothing here
// depends on the C locale.
namespace orvane {

// The number times 10^Decimals, rounded once from the exact text, ties to even.
// Nothing for a text that is no number, or when the result doesn't fit 64 bits.
std::optional<std::int64_t> ScaledFromText(std::string_view Text, int Decimals);

// The inverse: no trailing zeros, no grouping: 125000 with 4 decimals is "12,5".
std::string TextOfScaled(std::int64_t Count, int Decimals);

// The nearest double of a number text.
std::optional<double> DoubleFromText(std::string_view Text);

// At most 15 significant digits, no trailing zeros, no exponent at any size, never "-0".
// Value must be finite.
std::string TextOfDouble(double Value);

// A 16-bit whole number: the text's number rounded once, ties to even ("2,50001" is 3, "2,5" is 2).
std::optional<std::int16_t> Entier16FromText(std::string_view Text);

// Exact in 16 bits, or Failure (FailureKind::Overflow).
std::int16_t Entier16(std::int64_t Value);

} // namespace orvane
