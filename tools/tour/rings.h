#pragma once

class QWidget;

namespace orvane::tour {

// Gives the keyboard to each stop of Tab in a window, and it back to who had it. CannotGoOn at one
// whose ring can't be seen: around most of it, what the ring covers must differ from the ring by a
// contrast of 3 to 1, measured on the pixels. Returns how many there are.
int CheckRings(QWidget& Window);

} // namespace orvane::tour
