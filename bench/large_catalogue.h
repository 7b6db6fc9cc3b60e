#pragma once

#include <filesystem>

namespace orvane::bench {

// A copy of a program folder's databases in a new folder; with Times over 1, each manual object of
// each realm stands there that many times, under names of its own.
void CopyCatalogue(const std::filesystem::path& From, const std::filesystem::path& To, int Times);

} // namespace orvane::bench
