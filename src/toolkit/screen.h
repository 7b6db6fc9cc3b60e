#pragma once

#include "toolkit/controls.h"
#include "toolkit/family.h"
#include "toolkit/lists.h"
#include "toolkit/side_menu.h"
#include "toolkit/text_box.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

class Forms;

// Whoever draws a screen. Told of each change as it happens.
class ScreenObserver
{
  public:
    virtual ~ScreenObserver() = default;
    virtual void ControlChanged(Control& Which, PropertyId What) = 0;
    virtual void ScreenChanged(PropertyId What) = 0;
};

// A screen: a class whose members are its controls, under their own names. It exists once, keeps
// its state while hidden, and is never destroyed before the run ends.
class Screen : private PropertyOwner
{
  public:
    Screen(Forms& Owner, std::string Name, std::string Caption);
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen();

    const std::string& Name() const { return TheName; }

    // Every control of the screen, in the order of its definition.
    const std::vector<Control*>& Controls() const { return TheControls; }

    // The control of that name. Failure (FailureKind::Program) when there is none.
    Control& Find(std::string_view Name) const;
    Control* FindOrNull(std::string_view Name) const;

    TextProperty Caption{*this, PropertyId::Caption};
    Property<int> Width{*this, PropertyId::Width};
    Property<int> Height{*this, PropertyId::Height};
    Property<orvane::Picture> Picture{*this, PropertyId::Picture}; // the background
    Property<orvane::Picture> Icon{*this, PropertyId::Icon};

    // On top and active; Activate runs inside, unless the screen was the active one already.
    void Show();

    // Activates the screen below inside, if this was the active one.
    void Hide();

    bool IsVisible() const;

    // Runs once, at the first touch of the screen, before that touch returns.
    virtual void Load() {}

    // Runs each time the screen becomes the active one.
    virtual void Activate() {}

    // What closing the window by its frame does.
    virtual void WayBack() { Hide(); }

    // Whether something is chosen that the figures belong to; they may be what a former choice
    // left.
    virtual bool HasChoice() const { return true; }

    // Whether that leads to another screen: what ends the run is no matter for the Escape key.
    virtual bool LeadsBack() const { return true; }

    void Observe(ScreenObserver* NewObserver) { Observer = NewObserver; }

  private:
    friend class Control;

    void Add(Control& Which) { TheControls.push_back(&Which); }
    void Changed(PropertyId Id) override;

    Forms& Owner;
    std::string TheName;
    std::vector<Control*> TheControls;
    ScreenObserver* Observer = nullptr;
};

} // namespace orvane
