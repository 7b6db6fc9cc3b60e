#pragma once

#include <vector>

namespace orvane {

class ListBoxView;

// List boxes side by side with as many entries each are the columns of one table: they scroll
// together, by the bar of the rightmost, and the leftmost keeps the keyboard for all of them.
using ListColumns = std::vector<ListBoxView*>;

// The columns of a list's table from the left, itself among them.
ListColumns ColumnsOf(ListBoxView& One);

void ScrollColumns(ListBoxView& From, int Row);
void ArrangeColumns(ListBoxView& Changed);

} // namespace orvane
