#pragma once

#include "toolkit/dialogs.h"
#include "toolkit/forms.h"

#include <functional>
#include <string>

namespace orvane {

// The user's door: what a person does to a screen. It alone respects Visible and Locked, activates
// a visible screen that isn't the active one before acting on it, and meets every failure with one
// box. The view and the tests come in by this door.
class User
{
  public:
    // AfterEvent runs at the end of each event, by return or by failure.
    User(Forms& TheForms, Dialogs& TheDialogs, std::function<void()> AfterEvent);

    void Type(TextBox& Box, const std::string& NewText);  // the whole text, as it then stands
    void Type(ComboBox& Box, const std::string& NewText); // runs and chooses nothing
    void Pick(ListControl& List, int Index);
    void Pick(ListControl& List, const std::string& Entry); // nothing if there is no such entry
    void Click(PictureControl& Which);
    void ClickItem(SideMenu& Menu, const std::string& Key);
    void Activate(Screen& Which);
    void Close(Screen& Which); // by the frame

    // Runs an event that comes from elsewhere, with failures met as above.
    void Event(const std::function<void()>& Action);

  private:
    // Runs Action if the person can reach the control and it is enabled.
    void On(Control& Which, const std::function<void()>& Action);

    Forms& TheForms;
    Dialogs& TheDialogs;
    std::function<void()> AfterEvent;
};

} // namespace orvane
