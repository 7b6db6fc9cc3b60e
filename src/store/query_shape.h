#pragma once

#include "store/condition.h"

#include <string>
#include <vector>

namespace orvane {

// A query's shape: its words, with each literal as the question marks that it takes. Two texts of
// one shape share a prepared statement. The literals' values go to Parameters, in order.
std::string ShapeOf(Tokens Query, std::vector<Value>& Parameters);

// The values that a query looks for, as a message shows them.
std::vector<std::string> LookedFor(Tokens Query);

} // namespace orvane
