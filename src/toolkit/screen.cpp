#include "toolkit/screen.h"

#include "base/failure.h"
#include "toolkit/forms.h"

#include <algorithm>

namespace orvane {

Control::Control(Screen& Owner, ControlKind Kind, std::string Name)
    : TheOwner(Owner),
      TheKind(Kind),
      TheName(std::move(Name))
{
    Owner.Add(*this);
}

void Control::Changed(PropertyId Id)
{
    if (TheOwner.Observer != nullptr)
        TheOwner.Observer->ControlChanged(*this, Id);
}

Screen::Screen(Forms& Owner, std::string Name, std::string Title)
    : Caption(*this, PropertyId::Caption, std::move(Title)),
      Owner(Owner),
      TheName(std::move(Name))
{
}

Screen::~Screen() = default;

Control& Screen::Find(std::string_view Name) const
{
    Control* Found = FindOrNull(Name);
    if (Found == nullptr)
        throw Failure(FailureKind::Program, TheName + "." + std::string(Name));
    return *Found;
}

Control* Screen::FindOrNull(std::string_view Name) const
{
    const auto Found = std::ranges::find_if(
        TheControls, [&](const Control* Each) { return Each->Name() == Name; });
    return Found == TheControls.end() ? nullptr : *Found;
}

void Screen::Show()
{
    Owner.Show(*this);
}

void Screen::Hide()
{
    Owner.Hide(*this);
}

bool Screen::IsVisible() const
{
    return Owner.IsVisible(*this);
}

void Screen::Changed(PropertyId Id)
{
    if (Observer != nullptr)
        Observer->ScreenChanged(Id);
}

} // namespace orvane
