#pragma once

#include <filesystem>
#include <string>

namespace orvane::bench {

// A copy of a program folder's databases in a new folder; with Times over 1, each manual object,
// gem and alchemy object stands there that many times, under names of its own.
void CopyCatalogue(const std::filesystem::path& From, const std::filesystem::path& To, int Times);

// The realm, the skin and the resolution that a run in that folder starts with.
void ChooseStart(const std::filesystem::path& Folder, const std::string& Realm,
                 const std::string& Skin, const std::string& Resolution);

} // namespace orvane::bench
