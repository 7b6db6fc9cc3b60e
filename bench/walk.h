#pragma once

#include "app/application.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "raw_queries.h"

#include <filesystem>
#include <string>

namespace orvane::bench {

class SilentDialogs : public Dialogs
{
  public:
    void MsgBox(const std::string&) override {}
    std::string InputBox(const std::string&, const std::string&) override { return {}; }
    std::optional<Colour> ShowColor() override { return {}; }
};

// A run of the program, and raw access to one of its databases for the floor.
struct Walk
{
    Walk(const std::filesystem::path& Folder, const std::string& RawFile);

    frm_ArtisanatsManuels& Manuels() { return App.Feuilles.Get<frm_ArtisanatsManuels>(); }
    frm_ArtisanatsMagiques& Magiques() { return App.Feuilles.Get<frm_ArtisanatsMagiques>(); }

    SilentDialogs Boxes;
    Application App;
    RawQueries Raw;
};

inline constexpr const char* Skin = "Parchemin";
inline constexpr const char* Résolution = "1024 x 768";

// Where a measure takes place: walks down to it through the user's door and fails if it doesn't
// arrive.
void WalkToSword(Walk& On);
void WalkToPotion(Walk& On);
void WalkToGem(Walk& On);

// The same queries as the program sends there.
void AddPick(Walk& On);   // of an object of the manual crafts
void AddDegree(Walk& On); // of that object
void AddPotion(Walk& On); // the pick of an alchemy object
void AddGem(Walk& On);    // a degree click on a gem
void AddLayout(Walk& On); // one query for each control of each screen, and one for the screen

} // namespace orvane::bench
