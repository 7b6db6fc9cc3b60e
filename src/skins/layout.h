#pragma once

#include "app/application.h"

#include <cstdint>
#include <string>

namespace orvane {

// The rows of a layout table, in the order in which they count. Failure when there is no such
// table.
Recordset LignesDeDisposition(const Database& Base, const std::string& Table);

// Lays out one screen from the skin's database: IndexFeuille is its index in Forms. A control
// without a row keeps what it has; only the first row for a name counts. Failure when the table, or
// the screen's own row, isn't there.
void AppliquerRésolution(Application& App, std::int16_t IndexFeuille,
                         const std::string& Résolution);

// All loaded screens; one that can't be laid out keeps what it has, which is told later. Failure
// when the database can't be opened or is locked.
void AppliquerRésolutionPartout(Application& App, const std::string& Résolution);

} // namespace orvane
