#include "view/style.h"

#include "view/keyboard_focus.h"
#include "view/look.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>
#include <QWidget>

namespace orvane {

namespace {

constexpr int ListFrame = 2; // room for the focus

} // namespace

void Style::polish(QApplication* Application)
{
    QProxyStyle::polish(Application);
    QApplication::setFont(look::Font(look::DialogPoints));
    QToolTip::setPalette(look::Palette());
}

void Style::polish(QPalette& Colours)
{
    Colours = look::Palette(); // whatever the desktop's theme says
}

// A list that takes no typing is painted as a plate.
void Style::polish(QWidget* Widget)
{
    QProxyStyle::polish(Widget);
    const auto* List = qobject_cast<QComboBox*>(Widget);
    if (List == nullptr || List->isEditable())
        return;
    QPalette OnPlate = Widget->palette();
    OnPlate.setColor(QPalette::ButtonText, look::Now().PlateInk);
    Widget->setPalette(OnPlate);
}

void Style::drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter,
                          const QWidget* Widget) const
{
    const bool Focused =
        Option->state.testFlag(State_HasFocus) && (Widget == nullptr || ShowsFocus(*Widget));
    switch (Element) {
    case PE_PanelButtonCommand:
        look::PaintPlate(*Painter, Option->rect,
                         {Option->state.testFlag(State_MouseOver),
                          Option->state.testFlag(State_Sunken), Focused});
        return;
    case PE_PanelLineEdit: // a field without a frame is painted by its owner
        if (const auto* Frame = qstyleoption_cast<const QStyleOptionFrame*>(Option);
            Frame == nullptr || Frame->lineWidth <= 0)
            return;
        [[fallthrough]];
    case PE_Frame:
    case PE_FrameLineEdit:
        look::PaintField(
            *Painter, Option->rect,
            {.FieldGround = Option->palette.color(QPalette::Base), .Focused = Focused});
        return;
    case PE_FrameFocusRect: // the widgets show their focus themselves
        return;
    default:
        QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
    }
}

void Style::drawControl(ControlElement Element, const QStyleOption* Option, QPainter* Painter,
                        const QWidget* Widget) const
{
    const auto* Button = qstyleoption_cast<const QStyleOptionButton*>(Option);
    if (Element == CE_PushButtonLabel && Button != nullptr) {
        QStyleOptionButton OnPlate(*Button);
        OnPlate.palette.setColor(QPalette::ButtonText, look::Now().PlateInk);
        QProxyStyle::drawControl(Element, &OnPlate, Painter, Widget);
        return;
    }
    QProxyStyle::drawControl(Element, Option, Painter, Widget);
}

int Style::pixelMetric(PixelMetric Metric, const QStyleOption* Option, const QWidget* Widget) const
{
    if (Metric == PM_DefaultFrameWidth && Widget != nullptr && Widget->inherits("QListView"))
        return ListFrame;
    if (Metric == PM_ScrollBarExtent)
        return 13;
    if (Metric == PM_ButtonMargin)
        return 16;
    return QProxyStyle::pixelMetric(Metric, Option, Widget);
}

int Style::styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget,
                     QStyleHintReturn* Returned) const
{
    if (Hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(Hint, Option, Widget, Returned);
}

QRect Style::subControlRect(ComplexControl Control, const QStyleOptionComplex* Option,
                            SubControl Part, const QWidget* Widget) const
{
    if (Control == CC_ComboBox && Part == SC_ComboBoxEditField)
        return Option->rect.adjusted(3, 2, -look::ArrowWidth(Option->rect.height()), -2);
    if (Control == CC_ComboBox && Part == SC_ComboBoxArrow)
        return Option->rect.adjusted(Option->rect.width() - look::ArrowWidth(Option->rect.height()),
                                     0, 0, 0);
    return QProxyStyle::subControlRect(Control, Option, Part, Widget);
}

} // namespace orvane
