#include "view/naming.h"

#include "base/text.h"
#include "view/layout_box.h"

#include <set>

namespace orvane {

namespace {

constexpr int Slack = 75; // boxes that touch or overlap a little

bool TrimTail(std::string& Text)
{
    for (const std::string_view Tail : {" ", ":", "\u00A0", "\u202F"})
        if (Text.ends_with(Tail)) {
            Text.resize(Text.size() - Tail.size());
            return true;
        }
    return false;
}

// "Prix coûtant :" without its colon; a sign such as "x" or "=" names nothing.
std::string NameOf(const Label& Which)
{
    std::string Result = Which.Caption;
    while (TrimTail(Result)) {
    }
    return CharacterCount(Result) < 2 ? std::string() : Result;
}

const Label* AsLabel(const Control& Which)
{
    const auto* Given = dynamic_cast<const Label*>(&Which);
    return Given != nullptr && !NameOf(*Given).empty() ? Given : nullptr;
}

// The nearest thing at the left on the same row and panel, if it is a label.
const Label* LabelAtLeft(const Control& Input)
{
    const LayoutBox Box = BoxOf(Input);
    const Control* Nearest = nullptr;
    for (const Control* Each : Input.Owner().Controls()) {
        if (!Each->Visible || Each == &Input || (!IsInput(*Each) && AsLabel(*Each) == nullptr))
            continue;
        const LayoutBox Other = BoxOf(*Each);
        if (Other.Right <= Box.Left + Slack && Other.Left < Box.Left && Other.IsBesides(Box) &&
            (Nearest == nullptr || Other.Right > BoxOf(*Nearest).Right))
            Nearest = Each;
    }
    if (Nearest == nullptr || PanelOf(*Nearest) != PanelOf(Input))
        return nullptr;
    return AsLabel(*Nearest);
}

const Label* LabelAbove(const Control& Input, const std::set<const Label*>& Taken)
{
    const LayoutBox Box = BoxOf(Input);
    const Label* Nearest = nullptr;
    for (const Control* Each : Input.Owner().Controls()) {
        const Label* Given = Each->Visible ? AsLabel(*Each) : nullptr;
        if (Given == nullptr || Taken.contains(Given))
            continue;
        const LayoutBox Other = BoxOf(*Each);
        if (Other.Bottom <= Box.Top + Slack && Other.Left < Box.Right && Box.Left < Other.Right &&
            (Nearest == nullptr || Other.Bottom > BoxOf(*Nearest).Bottom))
            Nearest = Given;
    }
    return Nearest;
}

} // namespace

std::map<const Control*, std::string> NamesBeside(const Screen& Which)
{
    std::map<const Control*, std::string> Result;
    std::set<const Label*> Taken;
    std::vector<const Control*> Nameless;
    for (const Control* Each : Which.Controls()) {
        if (!IsInput(*Each))
            continue;
        if (const Label* Found = LabelAtLeft(*Each)) {
            Result[Each] = NameOf(*Found);
            Taken.insert(Found);
        } else {
            Nameless.push_back(Each);
        }
    }
    for (const Control* Each : Nameless)
        if (const Label* Found = LabelAbove(*Each, Taken))
            Result[Each] = NameOf(*Found);
    return Result;
}

} // namespace orvane
