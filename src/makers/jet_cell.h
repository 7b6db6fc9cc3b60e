#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvane {

// The types of a Jet column, by their numbers in the file.
enum class JetType {
    Boolean = 1,
    Byte,
    Int16,
    Int32,
    Money,
    Single,
    Double,
    Date,
    Binary,
    Text,
    Ole,
    Memo,
    Guid = 15,
    Numeric,
};

struct JetColumn
{
    std::string Name;
    JetType Type = JetType::Text;
    int Scale = 0;          // decimals of a Numeric
    bool IsCounted = false; // Jet numbers the rows in it, or gives them identifiers
};

// What a cell holds as it stands in the file, nothing for a null: long values whole, texts in
// UTF-8. A Boolean is there when it is true.
using JetCell = std::optional<std::string>;

struct JetRows
{
    std::vector<JetColumn> Columns;
    std::vector<std::vector<JetCell>> Rows;
};

} // namespace orvane
