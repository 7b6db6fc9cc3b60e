#pragma once

#include <QVariant>
#include <QWidget>

// Where the focus is shows from the first key on, so that a hand on the mouse sees no rings.
namespace orvane {

inline void LetFocusShow(QWidget& Window)
{
    Window.setProperty("focusShows", true);
}

inline bool ShowsFocus(const QWidget& Which)
{
    return Which.hasFocus() && Which.window()->property("focusShows").toBool();
}

} // namespace orvane
