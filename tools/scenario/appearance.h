#pragma once

#include "toolkit/screen.h"

#include <filesystem>
#include <string>

namespace orvane::scenario {

// How scenarios tell what a screen and its controls show.
class Appearance
{
  public:
    // Files of pictures are told as they lie in that folder.
    explicit Appearance(std::filesystem::path Folder) : Folder(std::move(Folder)) {}

    // What a glance shows: a text, with " !" behind it when it is marked as wrong and " ?" when it
    // is stale; the name of a picture; the bars of a menu; "-" for what is hidden.
    std::string Of(const Control& Which) const;

    // "*" for a box that is open to typing, nothing for one that isn't; the ground is told when it
    // doesn't go with that.
    static std::string Openness(const Control& Which);

    // One side of it: "liste", "largeur", "encre". CannotGoOn when it has no such side.
    std::string Of(const Control& Which, const std::string& Side) const;
    std::string Of(const Screen& Which, const std::string& Side) const;

  private:
    std::string File(const Picture& Given) const;

    std::filesystem::path Folder;
};

} // namespace orvane::scenario
