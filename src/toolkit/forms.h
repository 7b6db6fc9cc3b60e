#pragma once

#include "toolkit/screen.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// Whoever keeps the windows of the screens.
class FormsObserver
{
  public:
    virtual ~FormsObserver() = default;
    virtual void Shown(Screen& Which) = 0; // on top, active; also when it was visible already
    virtual void Hidden(Screen& Which) = 0;
};

// The screens of a run: which are loaded, which are visible and in what order, which one is active.
// It alone decides that a screen has become active: when shown, when clicked, when the screen above
// it goes away. Coming back from another application isn't told to it at all.
class Forms
{
  public:
    using Factory = std::function<std::unique_ptr<Screen>()>;

    // A screen that can be touched from now on.
    void Register(const std::string& Name, Factory Make);

    // The screen of that name, loaded at its first touch. Failure (FailureKind::Program) when
    // unknown.
    Screen& Touch(std::string_view Name);

    // The same, by the screen's class: Get<frm_Panier>().
    template <class ScreenType>
    ScreenType& Get()
    {
        return static_cast<ScreenType&>(Touch(ScreenType::ScreenName));
    }

    // The loaded screens, index from 0, in the order of loading.
    int Count() const { return static_cast<int>(Loaded.size()); }
    Screen& operator[](int Index) const { return *Loaded.at(static_cast<std::size_t>(Index)); }

    void Show(Screen& Which);
    void Hide(Screen& Which);
    void Activate(Screen& Which); // brings a visible screen to the top; nothing if it's active
    bool IsVisible(const Screen& Which) const;

    // Visible screens from the lowest to the highest.
    const std::vector<Screen*>& Stack() const { return Visible; }
    Screen* Active() const { return TheActive; }

    void Observe(FormsObserver* NewObserver) { Observer = NewObserver; }

  private:
    void MakeActive(Screen& Which);

    std::map<std::string, Factory, std::less<>> Factories;
    std::map<std::string, Screen*, std::less<>> ByName;
    std::vector<std::unique_ptr<Screen>> Loaded;
    std::vector<Screen*> Visible;
    Screen* TheActive = nullptr;
    FormsObserver* Observer = nullptr;
};

} // namespace orvane
