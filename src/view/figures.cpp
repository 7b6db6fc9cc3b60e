#include "view/figures.h"

#include "view/look.h"
#include "view/text_box_view.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace orvane {

void ShowTogether(const std::vector<TextBoxView*>& Boxes, bool HasChoice)
{
    std::map<std::tuple<int, int, double, int>, std::vector<TextBoxView*>> Columns;
    for (TextBoxView* Each : Boxes)
        if (Each->Model().Visible)
            Columns[{Each->x(), Each->width(), Each->FullPoints(), Each->Weight()}].push_back(Each);
    for (const auto& [Place, Column] : Columns) {
        TextBoxView& First = *Column.front();
        const QFont Shared =
            look::FittingFont(First.FullPoints(), First.Weight(), [&](const QFontMetrics& Tried) {
                return std::ranges::all_of(
                    Column, [&](const TextBoxView* Each) { return Each->Fits(Tried); });
            });
        for (TextBoxView* Each : Column)
            Each->TakeFont(Shared);
    }
    for (TextBoxView* Each : Boxes) {
        Each->SetPale(!HasChoice);
        Each->update(); // its row may have been filled or emptied
    }
}

} // namespace orvane
