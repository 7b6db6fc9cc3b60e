#pragma once

#include "toolkit/control.h"
#include "toolkit/picture.h"
#include "toolkit/property.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace orvane {

// A menu at the side of a screen: bars with a title, and entries with an icon below each.
class SideMenu : public Control
{
  public:
    struct Item
    {
        std::string Key;
        std::string Text;
        int Icon = 0; // position in the small image list, from 0
        std::string Tip;
    };

    // Ground and text of the title, ground and text of the entries.
    using Colours = std::array<Colour, 4>;

    struct Bar
    {
        std::string Key;
        std::string Title;
        std::string Tip;
        Colours TheColours;
        orvane::Picture Picture; // beside the title; may be empty
        std::vector<Item> Items;
    };

    SideMenu(Screen& Owner, std::string Name)
        : Control(Owner, ControlKind::SideMenu, std::move(Name))
    {
    }

    // The lists that entries and bars take their pictures from; they must outlive the menu.
    void Attach(const ImageList& Small, const ImageList& Large);
    const ImageList* SmallIcons() const { return Small; }

    // The whole menu, drawn once at the end however many bars there are.
    void Build(std::vector<Bar> NewBars);
    const std::vector<Bar>& Bars() const { return TheBars; }

    // The key of the entry whose things are on the screen, empty for none.
    TextProperty InHand{AsOwner(), PropertyId::ListIndex};

    // The entry of that key, or nothing.
    const Item* FindItem(const std::string& Key) const;

    std::function<void(const Item&)> OnItemClick;

  private:
    std::vector<Bar> TheBars;
    const ImageList* Small = nullptr;
    const ImageList* Large = nullptr;
};

} // namespace orvane
