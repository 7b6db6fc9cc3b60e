#pragma once

#include <QDebug>

#include <exception>

namespace orvane {

// Hands an action to the user's door. The door meets failures itself; whatever else escapes it must
// not travel through Qt, which would end the process.
template <class Action>
void Act(Action Do) noexcept
{
    try {
        Do();
    } catch (const std::exception& Escaped) {
        qCritical("%s", Escaped.what());
    } catch (...) {
        qCritical("unknown exception");
    }
}

} // namespace orvane
