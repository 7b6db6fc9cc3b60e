#pragma once

#include "app/application.h"

#include <filesystem>
#include <string>

// What the program gives out beside its screens, lines divided by " / ".
namespace orvane::scenario {

// What a command line answers in a folder: orvane --liste "Nouvelle commande". A status other than
// 0 stands in front of it.
std::string Answer(const std::string& Command, const std::filesystem::path& Folder);

// "copie achats", "copie acheteur": of the order in hand, in all realms; tabs as bars.
std::string Copied(const std::string& What, Application& App);

} // namespace orvane::scenario
