#include "view/offers.h"

#include "base/text.h"

namespace orvane {

std::vector<int> Offers::For(const std::string& Typed)
{
    if (Typed.empty())
        return {};
    Fold();
    const std::string Wanted = FoldedForSearch(Typed);
    std::vector<int> Beginning;
    std::vector<int> Inside;
    for (std::size_t i = 0; i < Folded.size(); ++i) {
        const std::size_t At = Folded[i].find(Wanted);
        if (At == 0)
            Beginning.push_back(static_cast<int>(i));
        else if (At != std::string::npos)
            Inside.push_back(static_cast<int>(i));
    }
    Beginning.insert(Beginning.end(), Inside.begin(), Inside.end());
    return Beginning;
}

bool Offers::Is(int Entry, const std::string& Typed)
{
    Fold();
    return Folded.at(static_cast<std::size_t>(Entry)) == FoldedForSearch(Typed);
}

void Offers::Fold()
{
    if (Folded.size() == List.Items().size())
        return;
    Folded.clear();
    Folded.reserve(List.Items().size());
    for (const std::string& Each : List.Items())
        Folded.push_back(FoldedForSearch(Each));
}

} // namespace orvane
