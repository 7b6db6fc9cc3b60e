#pragma once

#include "toolkit/screen.h"

#include <vector>

namespace orvane {

// The visible controls of a screen that may take the focus, as the eye goes through them: panel by
// panel, columns of panels from left to right, rows inside a panel from top to bottom.
std::vector<Control*> ReadingOrder(const Screen& Which);

} // namespace orvane
