#include "toolkit/side_menu.h"

namespace orvane {

void SideMenu::Attach(const ImageList& SmallList, const ImageList& LargeList)
{
    Small = &SmallList;
    Large = &LargeList;
}

void SideMenu::Build(std::vector<Bar> NewBars)
{
    TheBars = std::move(NewBars);
    Changed(PropertyId::Items);
}

const SideMenu::Item* SideMenu::FindItem(const std::string& Key) const
{
    for (const Bar& Each : TheBars)
        for (const Item& Entry : Each.Items)
            if (Entry.Key == Key)
                return &Entry;
    return nullptr;
}

} // namespace orvane
