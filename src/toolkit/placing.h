#pragma once

#include "toolkit/screen.h"

#include <string>

// How a screen's definition places its controls: in pixels at 96 dots per inch, kept as twips.
namespace orvane {

inline constexpr int TwipsPerPixel = 15;

struct Box
{
    int X = 0;
    int Y = 0;
    int W = 0;
    int H = 0;
};

std::string WithoutColon(const std::string& Words); // of a label

// A box or a list takes its spoken name here; the words of its label will do, colon and all.
void Place(Control& Which, Box At, const std::string& Called = {});
void SizeScreen(Screen& Which, int Width, int Height);

// A caption, by default as high as an input box so that both stand on one line.
void PlaceLabel(Label& Which, const std::string& Text, Box At, Alignment Align = Alignment::Left);

// A caption and its box, which begins where the caption ends and is as high. It is called as the
// caption says, unless that is too short without the eye.
void PlaceField(Label& Name, const std::string& Text, TextBox& Value, Box LabelAt, int BoxWide,
                const std::string& Called = {});

// The title of a panel.
void PlaceHeading(Label& Which, const std::string& Text, Box At);

// The title of a screen, or the one figure that everybody looks for.
void PlaceTitle(Label& Which, const std::string& Text, Box At);

void PlacePanel(Shape& Which, Box At);

// A button with the words that stand for its picture.
void PlaceButton(Button& Which, const std::string& Words, const std::string& Tip, Box At,
                 const std::string& Key = {});

} // namespace orvane
