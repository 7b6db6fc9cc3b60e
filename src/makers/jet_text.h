#pragma once

#include <string>
#include <string_view>

namespace orvane {

// A text as JET4 keeps it, UTF-16 with or without its compression, in UTF-8.
// Failure (FailureKind::JetDamaged) for bytes that are no text.
std::string TextOfJet4(std::string_view Bytes);

} // namespace orvane
