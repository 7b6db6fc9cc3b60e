#pragma once

#include "app/application.h"

namespace orvane {

// The developer's capture: asks for one of the loaded screens and adds its present geometry to the
// table Temp of the skin's database, one row for each control and a last one for the screen, in the
// form that the layout reads.
void RécupérerRésolution(Application& App);

} // namespace orvane
