#pragma once

#include "layouts/arrangement.h"
#include "layouts/layout_file.h"
#include "toolkit/screen.h"

#include <map>

namespace orvane::tools {

// Colours of the definition and what a skin puts in their place.
using Palette = std::map<std::int32_t, std::int32_t>;

// The two columns Définition and Skin of a file, colours written RRGGBB.
Palette ReadPalette(const std::filesystem::path& File);

// The geometry that a screen has in that arrangement, Factor times as large, in the skin's colours.
LayoutFile Draw(const Screen& Which, const Arrangement& Arranged, double Factor,
                const Palette& Colours);

} // namespace orvane::tools
