#pragma once

#include <chrono>
#include <functional>

namespace orvane {

// Runs Action in a process of its own, in which a crash, an endless loop and words on the error
// output do no harm, and waits for its end. What Action changes in memory is lost. A Failure that
// it throws comes back by its kind and cause; any other end is FailureKind::JetDamaged, so is one
// that isn't there after Patience. Other threads aren't in that process, what they hold locked
// stays so. On a system without such processes Action would just be called.
void RunIsolated(const std::function<void()>& Action, std::chrono::seconds Patience);

} // namespace orvane
