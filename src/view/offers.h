#pragma once

#include "toolkit/lists.h"

#include <string>
#include <vector>

namespace orvane {

// The entries of a list that a text being typed may be meant for, without regard to case and
// accents.
class Offers
{
  public:
    explicit Offers(const ListControl& List) : List(List) {}

    // Those that begin with the text, then those that contain it. None for an empty text.
    std::vector<int> For(const std::string& Typed);

    // Whether that entry is the text, but for case and accents.
    bool Is(int Entry, const std::string& Typed);

    void Forget() { Folded.clear(); } // the list has changed

  private:
    void Fold();

    const ListControl& List;
    std::vector<std::string> Folded;
};

} // namespace orvane
