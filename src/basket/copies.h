#pragma once

#include "basket/shopping_list.h"

#include <string>

// What one takes out of an order as text: the very figures that are shown.
namespace orvane {

// For who buys it: objects, counts, sale prices and their total, and nothing of the cost.
std::string CopiePourAcheteur(const ListeDAchats& De);

// The purchases, divided by tabs: they land in the cells of a spreadsheet.
std::string CopieDesAchats(const ListeDAchats& De);

// As CSV, without the mark that a file begins with (base/csv.h): the purchases, and the order's own
// rows.
std::string AchatsEnCsv(const ListeDAchats& De);
std::string CommandeEnCsv(const ListeDAchats& De);

} // namespace orvane
