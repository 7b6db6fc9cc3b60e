#pragma once

#include "app/application.h"

#include <functional>
#include <string>

namespace orvane {

// Asks for one of the copies of the orders and of the settings, and goes back to it. Settings are
// read at the start alone: Restart is to end this run and begin another.
void GoBackToBackup(Application& App, const std::function<void()>& Restart);

// When the basket's file is damaged and a copy of it is there: offers the latest beside what went
// wrong. Whether the file is whole again.
bool OfferLatestBackup(Application& App, const std::string& WhatWentWrong);

} // namespace orvane
