#include "view/telling.h"

#include "base/text.h"
#include "base/typography.h"
#include "view/reading_order.h"

namespace orvane {

namespace {

// A caption of one sign joins two boxes, unless it is a level.
bool IsSaying(const Label& Which)
{
    const std::string& Caption = Which.Caption;
    return CharacterCount(Caption) > 1 ||
           (!Caption.empty() && Caption.front() >= '0' && Caption.front() <= '9');
}

} // namespace

bool IsEmptyRow(const Control& Which)
{
    return Which.RowName != nullptr && Which.RowName->Text.empty();
}

bool AwaitsPrice(const TextBox& Which)
{
    return Which.RowName != nullptr && &Which != Which.RowName && !Which.Locked &&
           Which.BackColor() == InputGrey && Which.Text == "0" && !IsEmptyRow(Which);
}

std::string ShownIn(const PictureControl& Which)
{
    if (Which.Picture().IsEmpty())
        return {};
    const std::string& Shown =
        Which.Tip.empty() && Which.Depicts != nullptr ? *Which.Depicts : Which.Tip;
    return Which.Called.empty() || Shown.empty() ? Shown : Typeset(Which.Called + " : " + Shown);
}

bool IsTold(const Control& Which)
{
    if (!Which.Visible)
        return false;
    switch (Which.Kind()) {
    case ControlKind::Line:
    case ControlKind::Shape:
        return false;
    case ControlKind::Label:
        return IsSaying(static_cast<const Label&>(Which));
    case ControlKind::TextBox: {
        const auto& Box = static_cast<const TextBox&>(Which);
        return !Box.Locked || (!Box.Text.empty() && !IsEmptyRow(Box));
    }
    case ControlKind::PictureBox:
    case ControlKind::Image: {
        const auto& Shown = static_cast<const PictureControl&>(Which);
        return Shown.OnClick || !ShownIn(Shown).empty();
    }
    default:
        return true;
    }
}

bool IsValue(const Control& Which)
{
    if (!IsTold(Which))
        return false;
    if (Which.Kind() == ControlKind::TextBox)
        return static_cast<const TextBox&>(Which).Locked;
    const bool IsPicture =
        Which.Kind() == ControlKind::Image || Which.Kind() == ControlKind::PictureBox;
    return IsPicture && !static_cast<const PictureControl&>(Which).OnClick;
}

std::string TitleOf(const Control& Panel)
{
    std::string Result;
    for (const Control* Each : ReadingOrder(Panel.Owner(), [&](const Control& Which) {
             return Which.Kind() == ControlKind::Label && IsTold(Which) &&
                    static_cast<const Label&>(Which).Bold && PanelOf(Which) == &Panel;
         })) {
        const std::string& Caption = static_cast<const Label*>(Each)->Caption;
        Result += (Result.empty() ? "" : ", ") + Caption;
    }
    return Result;
}

std::string Told(const TextBox& Figure)
{
    return Typeset(Figure.Called + " : " + Figure.Text);
}

} // namespace orvane
