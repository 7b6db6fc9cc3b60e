#pragma once

#include "toolkit/screen.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace orvane::tools {

// Where something of the definition stands in another arrangement of its screen: in twips of the
// definition, with the factor of what is on it.
struct Placement
{
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
    double Factor = 1;
};

// Screens arranged otherwise than their definition has them, from a table. A row moves one control;
// a row of a panel takes along all that stands on it and has no row of its own. Whatever no row
// names keeps its place.
class Arrangement
{
  public:
    Arrangement() = default; // as the definition has it

    // Columns Écran, Contrôle, X, Y, Large, Haut in pixels, Facteur in percent. A cell "-" keeps
    // what the definition has, times Facteur. The row of the screen itself enlarges all of it.
    explicit Arrangement(const std::filesystem::path& File);

    Placement Of(const Control& Which) const;
    Placement Of(const Screen& Which) const;

  private:
    struct Row
    {
        std::string Name;
        std::optional<double> X, Y, Wide, High; // twips
        double Factor = 1;
    };

    const Row* Find(const std::string& Screen, const std::string& Name) const;
    const Row* PanelUnder(const Control& Which) const;
    static Placement Moved(const Placement& From, const Row& By);

    std::map<std::string, std::vector<Row>> Screens;
};

} // namespace orvane::tools
