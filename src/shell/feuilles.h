#pragma once

#include "shell/application.h"

#include <string>
#include <vector>

namespace orvane {

// The names of the ten screens.
std::vector<std::string> NomsFeuilles();

// Makes the ten screens known by their names; each comes into being at its first touch.
void EnregistrerFeuilles(Application& App);

// Start-up: loads the home screen, whose load event does the rest, shows it, and tells what there
// is to tell. Failure: the run can't start; nothing was written.
void Démarrer(Application& App);

} // namespace orvane
