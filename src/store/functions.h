#pragma once

namespace SQLite {
class Database;
}

namespace orvane {

// What translated queries call: fold_case(text), text_like(text, pattern) and the collation FRENCH.
void RegisterFunctions(SQLite::Database& Base);

} // namespace orvane
