#pragma once

#include "makers/jet_cell.h"
#include "store/value.h"

namespace orvane {

// The value of a cell, exact: amounts as the store keeps them, dates as ISO texts, a true Boolean
// as 1. Failure (FailureKind::JetDamaged) for bytes that no value of the type has.
Value ValueOf(const JetColumn& Column, const JetCell& Cell);

} // namespace orvane
