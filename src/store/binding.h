#pragma once

#include "store/value.h"

namespace SQLite {
class Statement;
}

namespace orvane {

// A value into parameter At (from 1) of a statement.
void BindValue(SQLite::Statement& Statement, int At, const Value& Given);

} // namespace orvane
