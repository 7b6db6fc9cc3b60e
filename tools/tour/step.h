#pragma once

#include <QString>

#include <stdexcept>
#include <vector>

namespace orvane::tour {

// What a person does on a screen, or looks for there.
enum class Deed {
    On,     // Target: a screen, whose window must be the active one from here on
    Click,  // Target: a button or a picture
    Item,   // Target: a side menu; Text: the key of one of its entries
    Pick,   // Target: a list; Text: an expression, of which the first entry that fits is picked
    Search, // Target: a list, picked entry by entry until Text can be seen
    Type,   // Target: a box; Text: what is typed in place of what it holds
    Open,   // Target: a combo box, whose list is opened
    See,    // Target: controls that must be visible; those with a ! before their name, hidden
    Wrong,  // Target: a box that must be marked as wrong
    Await,  // Target: words of a box that the next step brings up; Text: typed in it before OK;
            // Picture: the name of its picture, empty for none
    Photo,  // Target: the name of the picture
};

struct Step
{
    Deed What;
    QString Target{};
    QString Text{};
    QString Picture{};
};

using Script = std::vector<Step>;

// The step as a reader of a message knows it: Pick cbo_Objet « .+ ».
QString Told(const Step& Which);

// A step that can't be done.
class CannotGoOn : public std::runtime_error
{
  public:
    explicit CannotGoOn(const QString& Why) : std::runtime_error(Why.toStdString()) {}
};

} // namespace orvane::tour
