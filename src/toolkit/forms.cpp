#include "toolkit/forms.h"

#include "base/failure.h"

#include <algorithm>

namespace orvane {

void Forms::Register(const std::string& Name, Factory Make)
{
    Factories[Name] = std::move(Make);
}

Screen& Forms::Touch(std::string_view Name)
{
    if (const auto Known = ByName.find(Name); Known != ByName.end())
        return *Known->second;
    const auto Factory = Factories.find(Name);
    if (Factory == Factories.end())
        throw Failure(FailureKind::Program, std::string(Name));
    Screen& Made = *Loaded.emplace_back(Factory->second());
    ByName.emplace(Name, &Made); // before Load, whose own touches must find it
    Made.Load();
    return Made;
}

void Forms::Show(Screen& Which)
{
    if (!IsVisible(Which))
        Visible.push_back(&Which);
    Activate(Which);
}

void Forms::Hide(Screen& Which)
{
    const auto At = std::ranges::find(Visible, &Which);
    if (At == Visible.end())
        return;
    Visible.erase(At);
    const bool WasActive = TheActive == &Which;
    if (WasActive)
        TheActive = nullptr;
    if (Observer != nullptr)
        Observer->Hidden(Which);
    if (WasActive && !Visible.empty())
        MakeActive(*Visible.back());
}

void Forms::Activate(Screen& Which)
{
    if (&Which == TheActive || !IsVisible(Which))
        return;
    std::erase(Visible, &Which);
    Visible.push_back(&Which);
    MakeActive(Which);
}

bool Forms::IsVisible(const Screen& Which) const
{
    return std::ranges::find(Visible, &Which) != Visible.end();
}

void Forms::MakeActive(Screen& Which)
{
    TheActive = &Which;
    if (Observer != nullptr)
        Observer->Shown(Which);
    Which.Activate();
}

} // namespace orvane
