#pragma once

#include "command_line/options.h"

namespace orvane {

// The shopping list of an order, in one realm or in all, as CSV. Failure when there is no such
// order.
int ListPurchases(const Given& What, std::ostream& Out, std::ostream& Remarks);

} // namespace orvane
