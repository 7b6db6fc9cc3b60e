#pragma once

#include "makers/jet_file.h"

namespace orvane {

// The memos and OLE objects of a file, which lie beside their rows when they are long.
class LongValues
{
  public:
    explicit LongValues(JetFile& File) : File(File), Left(File.Size()) {}

    // The whole value from what stands of it in its row.
    // Failure (FailureKind::JetDamaged) when it is shorter than it should be.
    std::string Read(std::string_view Cell);

  private:
    std::string InPieces(std::string_view First, std::size_t Length);

    JetFile& File;
    std::size_t Left; // what values may still take: together they fit into the file
};

} // namespace orvane
