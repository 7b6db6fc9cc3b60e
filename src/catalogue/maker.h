#pragma once

#include "catalogue/catalogue.h"
#include "store/value.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace orvane {

// Makes a database file from its definition. The file appears whole when Finish returns; before,
// and when making fails, there is none (a former file of that name stays).
class DatabaseMaker
{
  public:
    DatabaseMaker(std::filesystem::path File, const DatabaseDefinition& Definition);
    ~DatabaseMaker();

    // A further table, such as a skin's layout tables.
    void AddTable(const TableDefinition& Table);

    // A row of a table; values come in the order of Columns and are converted to their kinds.
    // Failure (FailureKind::RefusedNumber, FailureKind::Store, FailureKind::Program).
    void Insert(const TableDefinition& Table, const std::vector<std::string>& Columns,
                const std::vector<Value>& Row);

    void Finish();

  private:
    struct Inside;
    std::unique_ptr<Inside> In;
};

} // namespace orvane
