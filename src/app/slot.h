#pragma once

#include "base/failure.h"

#include <optional>
#include <utility>

namespace orvane {

// A shared place for something open. It holds nothing between two events; an event nested in
// another one may fill and empty it under its caller, and emptying it once more is harmless. Using
// an empty slot fails (FailureKind::Program).
template <class Type>
class Slot
{
  public:
    Type& operator=(Type Given)
    {
        Content.emplace(std::move(Given));
        return *Content;
    }

    Type* operator->()
    {
        if (!Content)
            throw Failure(FailureKind::Program, "empty slot");
        return &*Content;
    }

    Type& operator*() { return *operator->(); }

    // What it holds, which leaves it empty.
    Type Take() { return *std::exchange(Content, std::nullopt); }

    bool IsEmpty() const { return !Content; }
    void Empty() { Content.reset(); }

  private:
    std::optional<Type> Content;
};

} // namespace orvane
