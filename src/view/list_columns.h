#pragma once

namespace orvane {

class ListBoxView;

// List boxes side by side with as many entries each are the columns of one table: they scroll
// together, by the bar of the rightmost.

void ScrollColumns(ListBoxView& From, int Row);
void ArrangeColumns(ListBoxView& Changed);

} // namespace orvane
