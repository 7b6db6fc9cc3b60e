#pragma once

#include "toolkit/family.h"
#include "toolkit/text_box.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace orvane {

// Writes one text into several boxes, one after the other in the order given.
inline void WriteAll(std::initializer_list<TextBox*> Boxes, const std::string& Text)
{
    for (TextBox* Each : Boxes)
        Each->Text = Text;
}

template <int Count>
void WriteAll(Family<TextBox, Count>& Boxes, const std::string& Text)
{
    for (TextBox& Each : Boxes)
        Each.Text = Text;
}

// Single boxes and whole families in one list.
template <class... Families>
std::vector<TextBox*> Together(std::vector<TextBox*> Boxes, Families&... More)
{
    const auto Append = [&](auto& Family) {
        for (TextBox& Each : Family)
            Boxes.push_back(&Each);
    };
    (Append(More), ...);
    return Boxes;
}

} // namespace orvane
