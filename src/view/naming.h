#pragma once

#include "toolkit/screen.h"

#include <map>
#include <string>

namespace orvane {

// For each visible input of a screen the text that tells what it is for: the label at its left or,
// without one, the heading above it. A box behind "x" or "=" is the quantity or the price of what
// its row begins with.
std::map<const Control*, std::string> NamesBeside(const Screen& Which);

} // namespace orvane
