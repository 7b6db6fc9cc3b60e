#pragma once

#include "base/montant.h"

#include <cstdint>
#include <string>

// The writing half of the number rules' notation: T(m) and T(d) give a number as text, D takes a
// Montant or a whole number as a double. The reading half, M and I, works on boxes (toolkit).
namespace orvane {

std::string T(Montant Amount);
std::string T(double Value); // Failure (FailureKind::Overflow) when the value isn't finite

inline double D(Montant Amount)
{
    return Amount.ToDouble();
}

inline double D(std::int16_t Value)
{
    return Value;
}

} // namespace orvane
