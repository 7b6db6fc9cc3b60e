#pragma once

#include "toolkit/text_box.h"

#include <initializer_list>
#include <string>

namespace orvane {

// Writes one text into several boxes, one after the other in the order given.
inline void WriteAll(std::initializer_list<TextBox*> Boxes, const std::string& Text)
{
    for (TextBox* Each : Boxes)
        Each->Text = Text;
}

} // namespace orvane
