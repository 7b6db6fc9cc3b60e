#pragma once

#include "support/temp_folder.h"

#include <filesystem>

namespace orvane {

// A program's folder made from small tables whose figures are easy to work out by hand, with
// pictures of a beginning and an end, and layouts that move nothing.
void MakeModelFolder(const std::filesystem::path& Tables, const std::filesystem::path& Folder);

// A copy to play in; whatever a run never changes is shared with the model.
void CopyModelFolder(const std::filesystem::path& Model, const std::filesystem::path& Copy);

} // namespace orvane
