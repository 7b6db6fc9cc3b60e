#pragma once

#include "app/application.h"
#include "view/window_menu.h"

namespace orvane {

// What the menu of every window holds. App outlives it. Restart ends this run and begins another.
Menus ProgramMenus(Application& App, const std::function<void()>& Restart);

} // namespace orvane
