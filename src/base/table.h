#pragma once

#include <algorithm>
#include <string_view>

namespace orvane {

// The first row of a table whose text at that member is this one, or nothing.
template <class Table, class Row>
const Row* FindRow(const Table& Rows, const char* Row::*Member, std::string_view Text)
{
    const auto Found = std::ranges::find_if(
        Rows, [&](const Row& Each) { return std::string_view(Each.*Member) == Text; });
    return Found == std::end(Rows) ? nullptr : &*Found;
}

} // namespace orvane
