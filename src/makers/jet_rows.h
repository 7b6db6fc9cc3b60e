#pragma once

#include "makers/jet_cell.h"

#include <cstdint>

namespace orvane {

class JetFile;

// The table whose definition begins on that page, its rows in their order.
// Failure (FailureKind::JetDamaged), also when there are more or fewer than the definition tells.
JetRows ReadRows(JetFile& File, std::uint32_t Page);

} // namespace orvane
