#pragma once

#include "support/expect_fails.h"
#include "support/scripted_dialogs.h"
#include "toolkit/user.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace orvane {

// A screen with a control of each sort that acts, which tells what happens to it.
class SmallScreen : public Screen
{
  public:
    SmallScreen(Forms& Owner, const std::string& Name, std::function<void(const std::string&)> Tell)
        : Screen(Owner, Name, "Écran " + Name),
          Tell(std::move(Tell))
    {
    }

    TextBox NAMED(txt_Nb);
    Family<TextBox, 3> NAMED(txt_Mat);
    ComboBox NAMED(cbo_Objet);
    ListBox NAMED(lst_Objets);
    Button NAMED(cmd_Action);
    SideMenu NAMED(mnu_Menu);

    void Load() override { Tell("load " + Name()); }
    void Activate() override { Tell("activate " + Name()); }

  private:
    std::function<void(const std::string&)> Tell;
};

// Four screens, A to D, and a person before them.
class ScreenTest : public testing::Test
{
  protected:
    ScreenTest()
    {
        for (const char* Name : {"A", "B", "C", "D"})
            TheForms.Register(Name, [this, Name] {
                return std::make_unique<SmallScreen>(TheForms, Name,
                                                     [this](const std::string& What) {
                                                         Log += What + ";";
                                                         if (On.contains(What))
                                                             On[What]();
                                                     });
            });
    }

    SmallScreen& Get(const char* Name) { return static_cast<SmallScreen&>(TheForms.Touch(Name)); }

    // Names of the visible screens from the lowest to the highest.
    std::string Stack() const
    {
        std::string Names;
        for (const Screen* Each : TheForms.Stack())
            Names += Each->Name();
        return Names;
    }

    // What was logged since the last time.
    std::string Logged() { return std::exchange(Log, {}); }

    std::string Log;
    std::map<std::string, std::function<void()>> On; // what else happens at "activate A"
    Forms TheForms;
    ScriptedDialogs Boxes;
    int EventsEnded = 0;
    User Person{TheForms, Boxes, [this] { ++EventsEnded; }};
};

} // namespace orvane
