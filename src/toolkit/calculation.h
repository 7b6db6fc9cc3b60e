#pragma once

#include "base/failure.h"
#include "base/notation.h"
#include "toolkit/text_box.h"

#include <cstdint>
#include <span>
#include <vector>

// The reading half of the number rules' notation, and the frame of every calculation.
namespace orvane {

// A text that no calculation can rest on, and the marked input behind it, if there is one.
class UnusableText : public Failure
{
  public:
    UnusableText(const TextBox& Box, const TextBox* Input)
        : Failure(FailureKind::WrongText, Box.Text, Box.Name()),
          Input(Input)
    {
    }

    const TextBox* const Input;
};

// The text of a box as a Montant. A text that is no number marks the box; it ends the calculation,
// as a stale figure does (Failure, FailureKind::WrongText).
Montant M(TextBox& Box);

// The text of a box as a 16-bit whole number, likewise.
std::int16_t I(TextBox& Box);

inline double D(TextBox& Box)
{
    return D(M(Box));
}

// Runs a formula that reads all its inputs before it writes its results. A wrong text or an
// overflow ends the formula and nothing else: the results keep their last figures, shown as stale,
// and the caller goes on. Tells whether the results are good.
template <class Formula>
bool Calculate(const std::vector<TextBox*>& Results, Formula Run)
{
    bool Good = true;
    const TextBox* Input = nullptr;
    try {
        Run();
    } catch (const UnusableText& Given) {
        Good = false;
        Input = Given.Input;
    } catch (const Failure& Given) {
        if (Given.Kind() != FailureKind::WrongText && Given.Kind() != FailureKind::Overflow)
            throw;
        Good = false;
    }
    for (TextBox* Result : Results) {
        Result->WaitsFor = Input;
        Result->Stale = !Good;
    }
    return Good;
}

} // namespace orvane
