#pragma once

#include "catalogue/catalogue.h"
#include "tables/tsv.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace orvane::tools {

// Turns the names by which rows point to each other into row numbers. A row's path is its parent's
// path and its own Nom, the parent being what the row's first reference points to: a cell names a
// row by the tail of its path ("Couture / Tissu / Gants"), or by its number.
class References
{
  public:
    // The rows of a table: references may point to them from now on. Parents come first.
    void Add(const TableDefinition& Table, const TsvTable& Rows);

    // SourceError, beginning with Place, when no row or more than one fits.
    std::int64_t Resolve(const std::string& Table, const std::string& Cell,
                         const std::string& Place) const;

  private:
    struct Target
    {
        std::int64_t Num = 0;
        std::vector<std::string> Path;
    };

    std::map<std::string, std::vector<Target>> Targets;
};

} // namespace orvane::tools
