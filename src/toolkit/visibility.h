#pragma once

#include "toolkit/control.h"

#include <initializer_list>

namespace orvane {

// Shows or hides several controls, in the order given.
inline void ShowAll(std::initializer_list<Control*> Controls, bool Visible)
{
    for (Control* Each : Controls)
        Each->Visible = Visible;
}

} // namespace orvane
