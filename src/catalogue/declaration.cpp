#include "catalogue/declaration.h"

namespace orvane {

const char* DeclaredType(ColumnType Type)
{
    switch (Type) {
    case ColumnType::Key:
        return "INTEGER PRIMARY KEY";
    case ColumnType::Counter:
        return "INTEGER PRIMARY KEY AUTOINCREMENT";
    case ColumnType::Whole:
    case ColumnType::Reference:
        return "INTEGER";
    case ColumnType::Decimal:
        return "DECIMAL(19,4)";
    case ColumnType::Numeric:
        return "NUMERIC";
    case ColumnType::Double:
        return "DOUBLE";
    case ColumnType::Blob:
        return "BLOB";
    case ColumnType::Text:
        break;
    }
    return "TEXT";
}

} // namespace orvane
