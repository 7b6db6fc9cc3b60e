#pragma once

#include "pictures/manifest.h"

namespace orvane::pictures {

// The pictures of all skins: each row of the backgrounds and of the buttons, for each skin and each
// of its image folders, and for each realm where the file's name says so.
std::vector<Picture> ReadSkins(const QString& Folder, const std::vector<Palette>& Palettes);

} // namespace orvane::pictures
