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

// The nearest thing that Counts at the left on the same row, if it stands on the same panel.
template <class Predicate>
const Control* NearestAtLeft(const Control& Input, Predicate Counts)
{
    const LayoutBox Box = BoxOf(Input);
    const Control* Nearest = nullptr;
    for (const Control* Each : Input.Owner().Controls()) {
        if (!Each->Visible || Each == &Input || !Counts(*Each))
            continue;
        const LayoutBox Other = BoxOf(*Each);
        if (Other.Right <= Box.Left + Slack && Other.Left < Box.Left && Other.IsBesides(Box) &&
            (Nearest == nullptr || Other.Right > BoxOf(*Nearest).Right))
            Nearest = Each;
    }
    return Nearest != nullptr && PanelOf(*Nearest) == PanelOf(Input) ? Nearest : nullptr;
}

const Label* LabelAtLeft(const Control& Input)
{
    const Control* Nearest = NearestAtLeft(
        Input, [](const Control& Each) { return IsInput(Each) || AsLabel(Each) != nullptr; });
    return Nearest == nullptr ? nullptr : AsLabel(*Nearest);
}

// What the sign between two boxes of a row says of the second: "name x count = price".
std::string RoleAfterSign(const Control& Input)
{
    const auto* Sign = dynamic_cast<const Label*>(NearestAtLeft(Input, [](const Control& Each) {
        return IsInput(Each) || dynamic_cast<const Label*>(&Each) != nullptr;
    }));
    if (Sign == nullptr)
        return {};
    return Sign->Caption == "x" ? ", quantité" : Sign->Caption == "=" ? ", prix" : "";
}

// The first box of a row whose boxes stand behind signs.
const Control& RowStart(const Control& Input)
{
    const Control* Before = RoleAfterSign(Input).empty() ? nullptr : NearestAtLeft(Input, IsInput);
    return Before == nullptr ? Input : RowStart(*Before);
}

// The nearest label above, one of the same panel before any other.
const Label* LabelAbove(const Control& Input, const std::set<const Label*>& Taken)
{
    const LayoutBox Box = BoxOf(Input);
    const Label* Nearest = nullptr;
    const auto IsNearer = [&](const Label& Given) {
        if (Nearest == nullptr)
            return true;
        const bool Here = PanelOf(Given) == PanelOf(Input);
        const bool There = PanelOf(*Nearest) == PanelOf(Input);
        return Here == There ? BoxOf(Given).Bottom > BoxOf(*Nearest).Bottom : Here;
    };
    for (const Control* Each : Input.Owner().Controls()) {
        const Label* Given = Each->Visible ? AsLabel(*Each) : nullptr;
        if (Given == nullptr || Taken.contains(Given))
            continue;
        const LayoutBox Other = BoxOf(*Each);
        if (Other.Bottom <= Box.Top + Slack && Other.Left < Box.Right && Box.Left < Other.Right &&
            IsNearer(*Given))
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
        if (!IsInput(*Each) || !Each->Visible)
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
    for (const Control* Each : Nameless)
        if (const Control& Start = RowStart(*Each); &Start != Each && Result.contains(&Start))
            Result[Each] = Result[&Start] + RoleAfterSign(*Each);
    return Result;
}

} // namespace orvane
