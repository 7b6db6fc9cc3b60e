#pragma once

#include "makers/jet_cell.h"
#include "store/value.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

struct JetTable
{
    std::string Name;
    std::vector<JetColumn> Columns;
    std::vector<std::vector<Value>> Rows;
};

struct JetLink
{
    std::string Name;
    std::string Path; // as the machine that made the file wrote it
    std::string Source;
};

// What people keep in a Jet file, without its own system tables and queries.
struct JetContent
{
    std::vector<JetTable> Tables;
    std::vector<JetLink> Links;
};

// Whether the first bytes are those of every such file.
bool BeginsAsJet(std::string_view Content);
inline constexpr std::size_t JetBeginning = 20; // bytes

// The content of a file that is given by its bytes. Failure (FailureKind::NotJet, JetProtected,
// JetDamaged).
JetContent ReadJet(std::string Content);

} // namespace orvane
