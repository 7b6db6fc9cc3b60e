#pragma once

#include "support/expect_fails.h"
#include "support/scripted_dialogs.h"
#include "toolkit/user.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace orvane {

// A screen with a control of each sort that acts, which logs what happens to it.
class SmallScreen : public Screen
{
  public:
    SmallScreen(Forms& Owner, const std::string& Name, std::string& Log)
        : Screen(Owner, Name, "Écran " + Name),
          Log(Log)
    {
    }

    TextBox NAMED(txt_Nb);
    TextBox NAMED(txt_Prix);
    Family<TextBox, 3> NAMED(txt_Mat);
    ComboBox NAMED(cbo_Objet);
    ListBox NAMED(lst_Objets);
    Button NAMED(cmd_Action);
    SideMenu NAMED(mnu_Menu);

    std::function<void()> OnLoad;
    std::function<void()> OnActivate;

    void Load() override { Note("load", OnLoad); }
    void Activate() override { Note("activate", OnActivate); }

  private:
    void Note(const std::string& What, const std::function<void()>& Then)
    {
        Log += What + " " + Name() + ";";
        if (Then)
            Then();
    }

    std::string& Log;
};

// Three screens, A, B and C, and a person before them.
class ScreenTest : public testing::Test
{
  protected:
    ScreenTest()
    {
        for (const char* Name : {"A", "B", "C"})
            TheForms.Register(
                Name, [this, Name] { return std::make_unique<SmallScreen>(TheForms, Name, Log); });
    }

    // Loaded and shown, with a log that begins behind it.
    SmallScreen& Shown(const char* Name)
    {
        SmallScreen& Which = Get(Name);
        Which.Show();
        Log.clear();
        return Which;
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

    std::string Log;
    int EventsEnded = 0;
    Forms TheForms;
    ScriptedDialogs Boxes;
    User Person{TheForms, Boxes, [this] { ++EventsEnded; }};
};

} // namespace orvane
