#pragma once

#include "base/failure.h"

#include <deque>
#include <string>

namespace orvane {

class Screen;

// A numbered family of controls, from 1: txt_PrixMat[1] is the control "txt_PrixMat1".
template <class ControlType, int Count>
class Family
{
  public:
    Family(Screen& Owner, const std::string& Stem)
    {
        for (int i = 1; i <= Count; ++i)
            Members.emplace_back(Owner, Stem + std::to_string(i));
    }

    ControlType& operator[](int i)
    {
        if (i < 1 || i > Count)
            throw Failure(FailureKind::Program, "family member " + std::to_string(i));
        return Members[static_cast<std::size_t>(i) - 1];
    }

    auto begin() { return Members.begin(); }
    auto end() { return Members.end(); }

  private:
    std::deque<ControlType> Members;
};

// A control or family named once: `TextBox NAMED(txt_Niveau);` makes the member txt_Niveau, the
// control "txt_Niveau" of this screen.
#define NAMED(Identifier)                                                                          \
    Identifier                                                                                     \
    {                                                                                              \
        *this, #Identifier                                                                         \
    }

} // namespace orvane
