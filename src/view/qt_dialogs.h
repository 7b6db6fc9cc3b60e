#pragma once

#include "toolkit/dialogs.h"
#include "toolkit/forms.h"

class QWidget;

namespace orvane {

// The boxes, above the window of the active screen, which gets the focus back.
class QtDialogs : public Dialogs
{
  public:
    void StandAbove(const Forms& NewForms) { TheForms = &NewForms; }

    void MsgBox(const std::string& Text) override;
    bool Confirm(const std::string& Question) override;
    std::string InputBox(const std::string& Prompt, const std::string& Title) override;
    std::optional<Colour> ShowColor() override;

  private:
    QWidget* ActiveWindow() const;

    const Forms* TheForms = nullptr; // none before there are screens
    Colour LastColour = White;
};

} // namespace orvane
