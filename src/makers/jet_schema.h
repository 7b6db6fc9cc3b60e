#pragma once

#include "catalogue/catalogue.h"
#include "makers/jet_content.h"

#include <filesystem>

namespace orvane {

// The database that holds a Jet file's content beside that file: its tables in the same order, each
// column in the type that our schema gives it where all its values go into it unchanged, else in
// one that fits its type in Jet; the saved queries of our schema; the links led to this folder.
DatabaseDefinition DefinitionOf(const JetContent& Content, const std::filesystem::path& Folder);

} // namespace orvane
