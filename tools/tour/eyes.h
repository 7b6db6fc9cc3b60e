#pragma once

#include <QString>

class QWidget;

namespace orvane::tour {

// Looks at one window at a time, and finds what stands in it under a control's name.
class Eyes
{
  public:
    // Turns to the window of a screen, once it is the active one.
    void TurnTo(const QString& Screen);
    QWidget& Window() const;

    // The visible widget of a control in that window.
    QWidget& The(const QString& Control) const;
    bool Sees(const QString& Control) const;

    // Whether all controls of the list can be seen, and none of those with a ! before their name.
    bool SeesAll(const QString& Controls) const;
    void Expect(const QString& Controls) const;
    void ExpectWrong(const QString& Control) const;

  private:
    QWidget* Before = nullptr; // the window in sight
};

} // namespace orvane::tour
