#include "view/reading_order.h"

#include <algorithm>
#include <cstdint>
#include <map>

namespace orvane {

namespace {

// Where a control stands, in twips. Layouts come from files: a box may be as large as it likes, or
// end before it begins.
struct LayoutBox
{
    std::int64_t Left = 0;
    std::int64_t Top = 0;
    std::int64_t Right = 0;
    std::int64_t Bottom = 0;

    std::int64_t MiddleX() const { return (Left + Right) / 2; }
    std::int64_t MiddleY() const { return (Top + Bottom) / 2; }
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
    double Area() const { return double(Right - Left) * double(Bottom - Top); }
};

LayoutBox BoxOf(const Control& Which)
{
    const std::int64_t Left = Which.Left, Top = Which.Top;
    return {Left, Top, Left + Which.Width, Top + Which.Height};
}

bool IsInput(const Control& Which)
{
    return Which.Kind() == ControlKind::TextBox || Which.Kind() == ControlKind::ComboBox ||
           Which.Kind() == ControlKind::ListBox;
}

// A panel with what stands on it, or a single control outside all panels.
struct Block
{
    LayoutBox Box;
    bool IsPanel = false;
    std::vector<Control*> Members;
};
using Blocks = std::vector<Block>;

bool TakesFocus(const Control& Which)
{
    const auto* Clickable = dynamic_cast<const PictureControl*>(&Which);
    return IsInput(Which) || Which.Kind() == ControlKind::SideMenu ||
           Which.Kind() == ControlKind::Button ||
           (Clickable != nullptr && static_cast<bool>(Clickable->OnClick));
}

Blocks BlocksOf(const Screen& Which, const std::function<bool(const Control&)>& IsAsked)
{
    Blocks Result;
    std::map<const Control*, std::size_t> OfPanel;
    for (Control* Each : Which.Controls()) {
        if (!IsAsked(*Each))
            continue;
        const Control* Panel = PanelOf(*Each);
        if (Panel == nullptr) {
            Result.push_back({BoxOf(*Each), Each->Kind() == ControlKind::SideMenu, {Each}});
            continue;
        }
        const auto [At, IsNew] = OfPanel.emplace(Panel, Result.size());
        if (IsNew)
            Result.push_back({BoxOf(*Panel), true, {}});
        Result[At->second].Members.push_back(Each);
    }
    return Result;
}

bool HasPanel(const Blocks& Given)
{
    return std::ranges::any_of(Given, &Block::IsPanel);
}

// Groups with a free strip between one and the next.
std::vector<Blocks> Parted(Blocks Given, std::int64_t LayoutBox::*From, std::int64_t LayoutBox::*To)
{
    std::ranges::sort(Given, {}, [&](const Block& Each) { return Each.Box.*From; });
    std::vector<Blocks> Result;
    std::int64_t End = 0;
    for (Block& Each : Given) {
        if (Result.empty() || Each.Box.*From >= End)
            Result.emplace_back();
        End = std::max(End, Each.Box.*To);
        Result.back().push_back(std::move(Each));
    }
    return Result;
}

Blocks Joined(std::vector<Blocks>::const_iterator From, std::vector<Blocks>::const_iterator To)
{
    Blocks Result;
    for (; From != To; ++From)
        Result.insert(Result.end(), From->begin(), From->end());
    return Result;
}

void ReadRows(std::vector<Control*> Given, std::vector<Control*>& Result)
{
    std::ranges::stable_sort(Given, {}, [](const Control* Each) { return BoxOf(*Each).MiddleY(); });
    for (auto Row = Given.begin(); Row != Given.end();) {
        const auto End = std::find_if(Row + 1, Given.end(), [&](const Control* Each) {
            return !BoxOf(**Row).IsBesides(BoxOf(*Each));
        });
        std::stable_sort(Row, End, [](const Control* Left, const Control* Right) {
            return Left->Left() < Right->Left();
        });
        Result.insert(Result.end(), Row, End);
        Row = End;
    }
}

void ReadTogether(const Blocks& Given, std::vector<Control*>& Result)
{
    std::vector<Control*> Members;
    for (const Block& Each : Given)
        Members.insert(Members.end(), Each.Members.begin(), Each.Members.end());
    ReadRows(std::move(Members), Result);
}

// Rows of loose controls at the top or the bottom first part from the panels, then the panels part
// into columns, then into rows.
void Read(const Blocks& Given, std::vector<Control*>& Result)
{
    if (Given.size() <= 1 || !HasPanel(Given)) {
        ReadTogether(Given, Result);
        return;
    }
    const auto Rows = Parted(Given, &LayoutBox::Top, &LayoutBox::Bottom);
    const auto Columns = Parted(Given, &LayoutBox::Left, &LayoutBox::Right);
    if (Rows.size() > 1 && !HasPanel(Rows.back())) {
        Read(Joined(Rows.begin(), Rows.end() - 1), Result);
        Read(Rows.back(), Result);
    } else if (Columns.size() > 1 && (Rows.size() == 1 || HasPanel(Rows.front()))) {
        Read(Columns.front(), Result);
        Read(Joined(Columns.begin() + 1, Columns.end()), Result);
    } else if (Rows.size() > 1) {
        Read(Rows.front(), Result);
        Read(Joined(Rows.begin() + 1, Rows.end()), Result);
    } else {
        ReadTogether(Given, Result);
    }
}

} // namespace

const Control* PanelOf(const Control& Which)
{
    const Control* Result = nullptr;
    for (const Control* Each : Which.Owner().Controls())
        if (Each->Kind() == ControlKind::Shape && Each != &Which && Each->Visible &&
            BoxOf(*Each).Holds(BoxOf(Which)) &&
            (Result == nullptr || BoxOf(*Each).Area() < BoxOf(*Result).Area()))
            Result = Each;
    return Result;
}

std::vector<Control*> ReadingOrder(const Screen& Which,
                                   const std::function<bool(const Control&)>& IsAsked)
{
    std::vector<Control*> Result;
    Read(BlocksOf(Which, IsAsked), Result);
    return Result;
}

std::vector<Control*> ReadingOrder(const Screen& Which)
{
    return ReadingOrder(Which,
                        [](const Control& Each) { return Each.Visible && TakesFocus(Each); });
}

} // namespace orvane
