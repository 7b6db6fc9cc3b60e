#pragma once

#include "catalogue/catalogue.h"

namespace orvane {

// What a column of this type is declared as in a file.
const char* DeclaredType(ColumnType Type);

} // namespace orvane
