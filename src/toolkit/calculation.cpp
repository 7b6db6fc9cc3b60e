#include "toolkit/calculation.h"

#include "base/number_text.h"

namespace orvane {

namespace {

template <class Number>
Number OrMarked(std::optional<Number> Read, TextBox& Box)
{
    Box.Marked = !Read;
    if (!Read || Box.Stale)
        throw UnusableText(Box, Read ? Box.WaitsFor : Box.Locked ? nullptr : &Box);
    return *Read;
}

} // namespace

Montant M(TextBox& Box)
{
    return OrMarked(Montant::FromText(Box.Text), Box);
}

std::int16_t I(TextBox& Box)
{
    return OrMarked(Entier16FromText(Box.Text), Box);
}

} // namespace orvane
