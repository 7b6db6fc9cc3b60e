#pragma once

#include "catalogue/catalogue.h"

#include <string>

namespace orvane {

// What a column of this type is declared as in a file.
const char* DeclaredType(ColumnType Type);

// The statements that make a table with the indexes that queries of it need.
std::string MakingOf(const TableDefinition& Table);

} // namespace orvane
