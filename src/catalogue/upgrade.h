#pragma once

#include "catalogue/catalogue.h"

#include <filesystem>

namespace orvane {

// Brings a file of an older version, whose numbers may be given a second time after a deletion, to
// the present one: each table of Definition with a counter gets it, and everything else in the file
// stays: rows, their numbers, further columns, tables, indexes and triggers. One transaction; a
// file that can't be written to now, or is no database, stays as it is for another time.
void BringUpToDate(const std::filesystem::path& File, const DatabaseDefinition& Definition);

// Makes a table that the file lacks, empty; one that is there stays. Nobody may have the file open
// to read. Failure when the file can't be written to now, or is of a later version.
void EnsureTable(const std::filesystem::path& File, const TableDefinition& Table);

} // namespace orvane
