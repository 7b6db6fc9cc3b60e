#pragma once

#include "app/application.h"

#include <string>
#include <vector>

namespace orvane {

// The names of the ten screens.
std::vector<std::string> NomsFeuilles();

// Makes the ten screens known by their names; each comes into being at its first touch.
void EnregistrerFeuilles(Application& App);

// The longer half of start-up: loads the home screen, whose load event does the rest. Nothing is
// shown and no box comes up, so that it may run before there are windows. Failure: the run can't
// start; nothing was written.
void Charger(Application& App);

// Start-up: loads what isn't loaded yet, shows the home screen, and tells what there is to tell.
void Démarrer(Application& App);

// What "Quitter" does, from any screen.
void Quitter(Application& App);

} // namespace orvane
