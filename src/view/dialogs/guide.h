#pragma once

#include "app/application.h"

namespace orvane {

// The guide, beside the windows, at the chapter of the active screen. A box says so when its file
// isn't there.
void OpenGuide(Application& App);

} // namespace orvane
