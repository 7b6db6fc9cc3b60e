#pragma once

#include "app/application.h"

namespace orvane {

// The colours by which a skin has its windows painted, for whoever paints them. A name or a colour
// that nobody knows counts for nothing, nor does it when the skin brings none. Needs BaseDonnées2
// open on the skin's database.
void ChargerCouleurs(Application& App);

} // namespace orvane
