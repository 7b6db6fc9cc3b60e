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
    // Brings another window up, as a click on its title does.
    static void Activate(const QString& Screen);

    QWidget& Window() const;

    // The visible widget of a control in that window.
    QWidget& The(const QString& Control) const;
    bool Sees(const QString& Control) const;

    // The box bears the mark of a wrong text, for eyes and ears.
    bool SeesMark(const QString& Control) const;

  private:
    QWidget* Before = nullptr; // the window in sight
};

} // namespace orvane::tour
