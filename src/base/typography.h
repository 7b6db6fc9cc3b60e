#pragma once

#include <string>

namespace orvane {

// A French sentence written with plain blanks, with no-break ones inside guillemets and before the
// signs that take one.
std::string Typeset(std::string Text);

} // namespace orvane
