#pragma once

#include "toolkit/controls.h"

#include <functional>
#include <optional>
#include <string>

namespace orvane {

// The number that an input box is meant to hold.
enum class NumberKind { None, Entier16, Montant };

class TextBox : public Control
{
  public:
    TextBox(Screen& Owner, std::string Name);

    // Assigning a different text runs OnChange inside the assignment; the same text runs nothing.
    // Whatever is written is no longer stale.
    TextProperty Text{AsOwner(), PropertyId::Text};
    Property<bool> Locked{AsOwner(), PropertyId::Locked, true};

    // The text is no number of the kind that the box accepts, or that a calculation needed.
    Property<bool> Marked{AsOwner(), PropertyId::Marked};

    // The figure is from before an input went wrong or a pick was given up: no calculation rests on
    // it.
    Property<bool> Stale{AsOwner(), PropertyId::Stale};

    // The marked input that a stale figure waits for; none when it waits for a choice.
    const TextBox* WaitsFor = nullptr;

    // What the disk holds of a setting, nothing for other boxes. A text that differs isn't kept
    // yet, and the box shows it.
    Property<std::optional<std::string>> Stored{AsOwner(), PropertyId::Stored};

    // The figure that people come to its screen for: it is told whenever it has changed.
    bool IsAnswer = false;

    // What stands in an empty row in place of its name.
    std::string WhenEmpty;

    Alignment Align = Alignment::Centre;
    NumberKind Accepts = NumberKind::None;
    std::function<void()> OnChange;
    std::function<void()> OnTyped; // behind OnChange, when a person has written the text

    // Open to typing on the input ground, meant for numbers of that kind.
    void OpenFor(NumberKind Kind);

  private:
    void Assigned(PropertyId Id) override;
    void Changed(PropertyId Id) override;
};

} // namespace orvane
