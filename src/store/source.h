#pragma once

#include "store/value.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// What a query can select from: a table, a saved query or a linked table.
struct Source
{
    std::string Name;
    std::vector<std::string> Columns; // as the source calls them, such as "Matériaux_1.Nom"
    std::vector<ColumnKind> Kinds;    // of Columns
    std::vector<std::string> Order;   // SQL terms of the order that rows have by themselves
    bool IsTable = false;             // of this file, so that its rows can be changed
};

// A row to be written: columns and their new values, by the table's own column names.
using Assignments = std::vector<std::pair<std::string, Value>>;

// The source of that name. Failure (FailureKind::DatabaseIncomplete) when there is none.
using SourceFinder = std::function<const Source&(const std::string& Name)>;

// Position of the column that a query or a caller calls Name: by its whole name; by its short name
// (the part behind the dot) when only one column has it; or, for a column without a dot, by the
// source's name, a dot and the column's. Case is ignored. -1 when there is none, or more than one.
int FindColumn(const std::vector<std::string>& Columns, std::string_view SourceName,
               std::string_view Name);

// The columns of one prepared query. What callers name them is looked up once and remembered.
class ColumnNames
{
  public:
    ColumnNames(std::vector<std::string> Names, std::string SourceName)
        : Names(std::move(Names)),
          SourceName(std::move(SourceName))
    {
    }

    std::size_t Count() const { return Names.size(); }
    const std::string& operator[](std::size_t At) const { return Names[At]; }
    int Find(std::string_view Name) const; // as FindColumn

  private:
    std::vector<std::string> Names;
    std::string SourceName;
    mutable std::map<std::string, int, std::less<>> Known;
};

} // namespace orvane
