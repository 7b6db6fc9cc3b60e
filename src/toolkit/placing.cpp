#include "toolkit/placing.h"

namespace orvane {

namespace {

constexpr Colour TextBrown = RGB(43, 29, 14);
constexpr Colour HeadingBrown = RGB(110, 52, 12);
constexpr Colour PanelBorder = RGB(183, 155, 107);

} // namespace

std::string WithoutColon(const std::string& Words)
{
    return Words.substr(0, Words.find_last_not_of(" :") + 1);
}

void Place(Control& Which, Box At, const std::string& Called)
{
    if (!Called.empty())
        Which.Called = WithoutColon(Called);
    Which.Left = At.X * TwipsPerPixel;
    Which.Top = At.Y * TwipsPerPixel;
    Which.Width = At.W * TwipsPerPixel;
    Which.Height = At.H * TwipsPerPixel;
}

void SizeScreen(Screen& Which, int Width, int Height)
{
    Which.Width = Width * TwipsPerPixel;
    Which.Height = Height * TwipsPerPixel;
}

void PlaceLabel(Label& Which, const std::string& Text, Box At, Alignment Align)
{
    Place(Which, At);
    Which.Caption = Text;
    Which.Align = Align;
    Which.ForeColor = TextBrown;
}

void PlaceField(Label& Name, const std::string& Text, TextBox& Value, Box LabelAt, int BoxWide,
                const std::string& Called)
{
    PlaceLabel(Name, Text, LabelAt);
    Place(Value, {LabelAt.X + LabelAt.W, LabelAt.Y, BoxWide, LabelAt.H},
          Called.empty() ? Text : Called);
}

void PlaceHeading(Label& Which, const std::string& Text, Box At)
{
    PlaceLabel(Which, Text, At);
    Which.Bold = true;
    Which.FontSize = 10;
    Which.ForeColor = HeadingBrown;
}

void PlaceTitle(Label& Which, const std::string& Text, Box At)
{
    PlaceHeading(Which, Text, At);
    Which.FontSize = 14;
}

void PlacePanel(Shape& Which, Box At)
{
    Place(Which, At);
    Which.BorderColor = PanelBorder;
}

void PlaceButton(Button& Which, const std::string& Words, const std::string& Tip, Box At,
                 const std::string& Key)
{
    Place(Which, At);
    Which.Key = Key;
    Which.Words = Words;
    Which.Tip = Tip;
}

} // namespace orvane
