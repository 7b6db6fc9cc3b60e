#pragma once

#include "app/application.h"

#include <string>

// What the disk holds of a skin and of a resolution, whatever the lists of the settings offer. Each
// answer is a sentence for the crafter, empty when the name can be taken. The skin's database is
// read, so that one that is locked or damaged is told as that.
namespace orvane {

std::string FauteDeSkin(Application& App, const std::string& Skin);

// The skin's faults first. A resolution is there when one of the screens that aren't common has its
// table; a skin whose screens are all common is at home in any.
std::string FauteDeRésolution(Application& App, const std::string& Skin,
                              const std::string& Résolution);

} // namespace orvane
