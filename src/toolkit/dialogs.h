#pragma once

#include "toolkit/colour.h"

#include <optional>
#include <string>

namespace orvane {

// The title that message boxes bear.
inline const std::string ProgramTitle = "Orvane - Artisanat";

// Boxes that ask or tell, and block until they are answered.
class Dialogs
{
  public:
    virtual ~Dialogs() = default;

    // A text and one OK button.
    virtual void MsgBox(const std::string& Text) = 0;

    // Whether the answer is yes. Who can't ask takes no.
    virtual bool Confirm(const std::string&) { return false; }

    // The text typed; empty when cancelled.
    virtual std::string InputBox(const std::string& Prompt, const std::string& Title) = 0;

    // The colour chosen; nothing when cancelled.
    virtual std::optional<Colour> ShowColor() = 0;
};

} // namespace orvane
