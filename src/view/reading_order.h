#pragma once

#include "toolkit/screen.h"

#include <functional>
#include <vector>

namespace orvane {

// The controls of a screen that are as asked for, as the eye goes through them: panel by panel,
// columns of panels from left to right, rows inside a panel from top to bottom.
std::vector<Control*> ReadingOrder(const Screen& Which,
                                   const std::function<bool(const Control&)>& IsAsked);

// The visible ones that may take the focus.
std::vector<Control*> ReadingOrder(const Screen& Which);

// The smallest visible panel that a control stands on, or nothing.
const Control* PanelOf(const Control& Which);

} // namespace orvane
