#pragma once

#include "base/failure.h"

#include <string>

namespace orvane {

// For whatever in a Jet file can't be as it stands there. Who knows the file's name adds it.
[[noreturn]] inline void ThrowDamaged(const std::string& Cause)
{
    throw Failure(FailureKind::JetDamaged, {}, Cause);
}

} // namespace orvane
