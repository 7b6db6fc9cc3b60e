#pragma once

#include "app/application.h"

namespace orvane {

// How a screen gives way when the crafter goes back.
enum class Retour {
    Cacher,            // what lay under it comes back
    CacherPuisAccueil, // hidden first, then the home screen is shown
    AccueilPuisCacher,
};

void Revenir(Application& App, Screen& Which, Retour Comment);

// Banner and window icon of the realm in force.
void PoserBannière(Application& App, Image& Bannière);
void PoserIcône(Application& App, Screen& Which);

} // namespace orvane
