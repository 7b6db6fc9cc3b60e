#include "base/below.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace orvane {

namespace fs = std::filesystem;

TEST(StaysBelow, WhatClimbsOrFollowsALinkOutDoesNot)
{
    const TempFolder Elsewhere;
    const TempFolder Real;
    const fs::path Folder = Elsewhere / "le dossier"; // a link itself, as is one of its entries
    fs::create_directory_symlink(Real.Path(), Folder);
    fs::create_directories(Elsewhere / "images/Valdren");
    fs::create_directories(Elsewhere / "images-2");
    fs::create_directory_symlink(Elsewhere / "images", Real / "Objets");
    for (const auto& [From, To] : {std::pair{Real / "Objets/lien", Elsewhere / "images/Valdren"},
                                   {Real / "Objets/voisin", Elsewhere / "images-2"},
                                   {Real / "Objets/dehors", Elsewhere.Path()},
                                   {Real / "Objets/cercle", Real / "Objets/cercle"}})
        fs::create_symlink(To, From);
    const std::pair<const char*, bool> Rows[] = {
        {"", true},
        {"Config.mdb", true},
        {"Objets//Valdren/a.png", true},
        {"Objets/lien/a.png", true},
        {"Objets/absent/a.png", true},
        {"Objets/a..b/..a", true},
        {"Objets/../Config.mdb", false},
        {"Objets/../../etc/a.png", false},
        {"..", false},
        {"Objets/dehors/a.png", false},
        {"Objets/voisin/a.png", false},
        {"Objets/dehors/images/Valdren", true},
        {"Objets/cercle", false},
    };
    for (const auto& [File, Stays] : Rows)
        EXPECT_EQ(StaysBelow(Folder, Folder / File), Stays) << File;
    for (const fs::path& File :
         {fs::path("/etc/a.png"), fs::path("a.png"), Elsewhere / "le dossier 2/a", fs::path()})
        EXPECT_FALSE(StaysBelow(Folder, File)) << File;
}

} // namespace orvane
