#pragma once

#include "toolkit/screen.h"

#include <algorithm>

namespace orvane {

// Where a control stands, in twips.
struct LayoutBox
{
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;

    int MiddleX() const { return (Left + Right) / 2; }
    int MiddleY() const { return (Top + Bottom) / 2; }
    bool Holds(const LayoutBox& Other) const
    {
        return Left <= Other.MiddleX() && Other.MiddleX() <= Right && Top <= Other.MiddleY() &&
               Other.MiddleY() <= Bottom;
    }
    bool IsBesides(const LayoutBox& Other) const // on the same row
    {
        return (Top <= Other.MiddleY() && Other.MiddleY() <= Bottom) ||
               (Other.Top <= MiddleY() && MiddleY() <= Other.Bottom);
    }
    double Area() const { return double(Right - Left) * (Bottom - Top); }
};

inline LayoutBox BoxOf(const Control& Which)
{
    return {Which.Left, Which.Top, Which.Left + Which.Width, Which.Top + Which.Height};
}

inline bool IsInput(const Control& Which)
{
    return Which.Kind() == ControlKind::TextBox || Which.Kind() == ControlKind::ComboBox ||
           Which.Kind() == ControlKind::ListBox;
}

// The smallest visible panel that a control stands on, or nothing.
inline const Control* PanelOf(const Control& Which)
{
    const Control* Result = nullptr;
    for (const Control* Each : Which.Owner().Controls())
        if (Each->Kind() == ControlKind::Shape && Each != &Which && Each->Visible &&
            BoxOf(*Each).Holds(BoxOf(Which)) &&
            (Result == nullptr || BoxOf(*Each).Area() < BoxOf(*Result).Area()))
            Result = Each;
    return Result;
}

} // namespace orvane
