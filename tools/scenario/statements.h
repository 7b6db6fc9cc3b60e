#pragma once

#include "scenario/lines.h"

#include <map>
#include <string>
#include <vector>

namespace orvane::scenario {

// What a file has defined for its scenarios.
struct Shorthands
{
    struct Gesture
    {
        std::vector<std::string> Parameters;
        std::string Body;
    };

    std::map<std::string, Gesture> Gestures;
    std::map<std::string, std::vector<std::string>> Paths; // controls, from the first pick down
    std::vector<ScriptLine> Before;                        // what every scenario begins with

    // "Compter(n) = taper txt_NbObjet = <n>" after "geste", "Objet = Bar_Menus / cbo_Produit" after
    // "chemin".
    void Add(const std::string& Kind, const std::string& Definition);
};

// The steps that lines come to. CannotGoOn.
std::vector<Step> StepsOf(const std::vector<ScriptLine>& Lines, const Shorthands& Short);

} // namespace orvane::scenario
