#pragma once

#include "tour/step.h"

namespace orvane::tour {

// Each from the home screen and back to it, in the realm of Valdren.
Script HomeAndSettings();
Script ManualCrafts();
Script Archery();
Script LegendaryWeapons();
Script Alchemy();
Script Gems();
Script SecondaryCrafts();
Script Basket();
Script News();
Script Realms();

// Messages, the prompt, a list that lies open: no matter of the look, so once is enough.
Script BoxesAndLists();

// On the settings screen, expressions for skin and resolution.
Script ChangeLook(const QString& Skin, const QString& Resolution);

} // namespace orvane::tour
