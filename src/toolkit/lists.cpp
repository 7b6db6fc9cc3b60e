#include "toolkit/lists.h"

#include "base/failure.h"
#include "base/text.h"

#include <algorithm>

namespace orvane {

ListControl::IndexProperty& ListControl::IndexProperty::operator=(int Given)
{
    if (Value != Given) {
        List.Choose(Given);
        if (List.OnClick)
            List.OnClick();
    }
    return *this;
}

int ListControl::FindItem(const std::string& Text) const
{
    const auto Found = std::ranges::find(Entries, Text);
    return Found == Entries.end() ? -1 : static_cast<int>(Found - Entries.begin());
}

void ListControl::AddItem(const std::string& Text)
{
    const auto At = !Sorted ? Entries.end()
                            : std::upper_bound(Entries.begin(), Entries.end(), Text,
                                               [](const auto& Left, const auto& Right) {
                                                   return CompareFrench(Left, Right) < 0;
                                               });
    if (ListIndex.Value >= 0 && At - Entries.begin() <= ListIndex.Value)
        ++ListIndex.Value; // the chosen entry moves down, and stays chosen
    Entries.insert(At, Text);
    Changed(PropertyId::Items);
}

void ListControl::Clear()
{
    Entries.clear();
    ListIndex.Value = -1;
    ShowChoice({});
    Changed(PropertyId::Items);
}

void ListControl::Pick(int Index)
{
    Choose(Index);
    if (OnClick)
        OnClick();
}

void ListControl::Choose(int Index)
{
    if (Index < -1 || Index >= ListCount())
        throw Failure(FailureKind::Program, Name() + " [" + std::to_string(Index) + "]");
    ListIndex.Value = Index;
    ShowChoice(Index < 0 ? std::string() : Entries[static_cast<std::size_t>(Index)]);
    Changed(PropertyId::ListIndex);
}

} // namespace orvane
