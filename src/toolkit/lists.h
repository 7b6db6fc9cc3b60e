#pragma once

#include "toolkit/control.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orvane {

// What combo and list boxes share: entries, and the index of the chosen one, -1 for none.
class ListControl : public Control
{
  public:
    using Control::Control;

    // Assigning another index shows its entry and runs OnClick inside the assignment; the same
    // index runs nothing. Failure (FailureKind::Program) for an index that isn't there.
    class IndexProperty
    {
      public:
        explicit IndexProperty(ListControl& List) : List(List) {}
        IndexProperty(const IndexProperty&) = delete;

        IndexProperty& operator=(int Given);
        IndexProperty& operator=(const IndexProperty& Other) { return *this = Other.Value; }
        operator int() const { return Value; }

      private:
        friend class ListControl;

        ListControl& List;
        int Value = -1;
    };

    IndexProperty ListIndex{*this};
    Alignment Align = Alignment::Left;
    bool Sorted = false; // entries keep French alphabetical order, whatever the order of adding
    std::function<void()> OnClick;

    int ListCount() const { return static_cast<int>(Entries.size()); }
    const std::vector<std::string>& Items() const { return Entries; }

    // Position of the first entry that is exactly this text, -1 for none.
    int FindItem(const std::string& Text) const;

    void AddItem(const std::string& Text); // runs nothing

    // Empties the list, the text and the choice; runs nothing.
    void Clear();

    // What a person's pick does: as an assignment, but OnClick runs also for the entry chosen
    // already.
    void Pick(int Index);

  protected:
    // Shows the entry as the control's text; an index of -1 comes with the empty text.
    virtual void ShowChoice(const std::string& Entry) = 0;

  private:
    void Choose(int Index);

    std::vector<std::string> Entries;
};

// A list that opens below its text. The text takes typing, which runs and chooses nothing.
class ComboBox : public ListControl
{
  public:
    ComboBox(Screen& Owner, std::string Name)
        : ListControl(Owner, ControlKind::ComboBox, std::move(Name))
    {
    }

    // Assigning runs nothing and leaves the index alone.
    TextProperty Text{AsOwner(), PropertyId::Text};

    // Whether a typed text that is no entry means something, so that it stays when the person goes
    // on; elsewhere the text of before comes back.
    bool KeepsTyping = false;

    // What the disk holds of a setting, nothing for other lists.
    Property<std::optional<std::string>> Stored{AsOwner(), PropertyId::Stored};

  protected:
    void ShowChoice(const std::string& Entry) override { Text = Entry; }
};

class ListBox : public ListControl
{
  public:
    ListBox(Screen& Owner, std::string Name)
        : ListControl(Owner, ControlKind::ListBox, std::move(Name))
    {
    }

    // The chosen entry, or the empty text; written by the choice alone.
    TextProperty Text{AsOwner(), PropertyId::Text};

    // What stands in the list's place while it has no entry.
    TextProperty WhenEmpty{AsOwner(), PropertyId::WhenEmpty};

  protected:
    void ShowChoice(const std::string& Entry) override { Text = Entry; }
};

} // namespace orvane
