#pragma once

#include "settings/frm_configuration.h"

#include <cstdint>
#include <string>

namespace orvane {

// Paints how difficult an object is for the crafter: one of seven bands by the object's level, the
// text of a label just filled, less the craft level.
void ChangerCouleurCraft(Application& App, const std::string& NiveauObjet, std::int16_t NiveauCraft,
                         Image& Indicateur);

} // namespace orvane
