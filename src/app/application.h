#pragma once

#include "app/shared_state.h"
#include "toolkit/colour.h"
#include "toolkit/dialogs.h"
#include "toolkit/forms.h"
#include "toolkit/picture.h"
#include "toolkit/user.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace orvane {

// One run of the program: owns all that its screens share. As many can live side by side as there
// are folders.
class Application
{
  public:
    // Folder is the program's own: databases and pictures lie in it.
    Application(std::filesystem::path Folder, Dialogs& TheDialogs);

    // Folder and a relative path that begins with its separator: Chemin("/Config.mdb").
    std::string Chemin(const std::string& Relative) const;

    // The message of a handler's guard, in a box with one OK button.
    void MsgBox(const std::string& Text) { TheDialogs.MsgBox(Text); }

    // Something to be told once, after start-up, together with whatever else there is.
    // Of several about one matter the last counts.
    void Notice(const std::string& Text, const std::string& Matter = {});

    // Tells the notices and the pictures that couldn't be had, in one box if there is anything.
    void TellNotices();

    void EmptySlots();

    Store Bases;
    Variables Globals;
    Forms Feuilles;
    PictureFiles Images;
    Dialogs& TheDialogs;
    User Door;
    std::function<void()> OnQuit = [] {}; // ends the process

    // What the skin in force has its windows painted with, by name; whoever paints is told of new
    // ones.
    std::map<std::string, Colour> Couleurs;
    std::function<void()> OnColours = [] {};

    // Each event has ended: what it may have changed can be shown.
    std::function<void()> OnEventEnd = [] {};

    // A line has gone into that order from that screen: whoever keeps the windows answers it.
    std::function<void(Screen& From, const std::string& Commande)> OnAdded =
        [](Screen&, const std::string&) {};

  private:
    // What runs at the end of each event: empties the shared slots, and tells of pictures that only
    // the event asked for; once in a run, for an incomplete folder would stop a person at each
    // pick.
    void EndEvent();

    std::filesystem::path Folder;
    bool PicturesTold = false;
    struct Told
    {
        std::string Matter;
        std::string Text;
    };
    std::vector<Told> Notices;
};

} // namespace orvane
