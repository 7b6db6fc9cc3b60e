#pragma once

#include <vector>

namespace orvane {

class TextBoxView;

// What the boxes of a screen share: those that stand below each other and are equally wide have one
// font, in which the longest of their texts fits; without a choice that the figures belong to, all
// are paler.
void ShowTogether(const std::vector<TextBoxView*>& Boxes, bool HasChoice);

} // namespace orvane
