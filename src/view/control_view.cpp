#include "view/control_view.h"

#include "view/contrast.h"
#include "view/look.h"
#include "view/qt_text.h"
#include "view/screen_area.h"
#include "view/tip.h"

#include <QPalette>
#include <QWidget>

#include <cmath>

namespace orvane {

int Pixels(int Twips, double Scale)
{
    return static_cast<int>(std::lround(Twips * Scale / 15));
}

QRect PixelBox(const Control& Which, double Scale)
{
    const int Left = Pixels(Which.Left, Scale);
    const int Top = Pixels(Which.Top, Scale);
    return {Left, Top, Pixels(Which.Left + Which.Width, Scale) - Left,
            Pixels(Which.Top + Which.Height, Scale) - Top};
}

double ControlView::Scale()
{
    return static_cast<ScreenArea*>(Widget().parentWidget())->Scale();
}

double ControlView::Points()
{
    return TheControl.FontSize * Scale();
}

void ControlView::Follow(PropertyId What)
{
    switch (What) {
    case PropertyId::Visible:
        Widget().setVisible(TheControl.Visible);
        break;
    case PropertyId::Left:
    case PropertyId::Top:
    case PropertyId::Width:
    case PropertyId::Height:
    case PropertyId::Ends:
        Widget().setGeometry(Place());
        break;
    case PropertyId::FontSize:
        Widget().setFont(look::Font(Points()));
        break;
    case PropertyId::Tip:
        SetTip(Widget(), ToQt(TheControl.Tip));
        break;
    case PropertyId::Called:
        Widget().setAccessibleName(ToQt(TheControl.Called));
        break;
    default:
        Widget().update();
    }
}

void ControlView::ShowBoxColours(const QColor& Ground, const QColor& Ink)
{
    QPalette Colours = look::Palette();
    Colours.setColor(QPalette::Base, Ground);
    Colours.setColor(QPalette::Text, Readable(Ink, {&Ground, 1}));
    Widget().setPalette(Colours);
}

void ControlView::ShowBoxColours()
{
    ShowBoxColours(look::GroundOf(TheControl.BackColor), look::InkOf(TheControl.ForeColor));
}

void ControlView::FollowAll()
{
    Widget().setObjectName(ToQt(TheControl.Name()));
    Widget().setGeometry(Place());
    if (!TheControl.Visible)
        Widget().hide();
    Follow(PropertyId::FontSize);
    Follow(PropertyId::Tip);
    if (!TheControl.Called.empty()) // others are called as their words or their tips say
        Follow(PropertyId::Called);
}

} // namespace orvane
