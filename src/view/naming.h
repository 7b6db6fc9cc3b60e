#pragma once

#include "toolkit/screen.h"

#include <map>
#include <string>

namespace orvane {

// For each input of a screen the text that stands beside it and tells what it is for: the label at
// its left or, without one, the heading above it.
std::map<const Control*, std::string> NamesBeside(const Screen& Which);

} // namespace orvane
