#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace orvane::tour {

class Eyes;

// Hands that leave the mouse alone: what they can't reach by Tab and the arrows stops the walk.
class Keyboard
{
  public:
    explicit Keyboard(const Eyes& TheEyes) : TheEyes(TheEyes) {}

    void Click(const QString& Control) const;
    void ClickItem(const QString& Menu, const QString& Key) const;
    void Type(const QString& Box, const QString& Text) const;
    void Pick(const QString& List, int Row) const;

  private:
    QWidget& Reach(const QString& Control) const;

    const Eyes& TheEyes;
};

} // namespace orvane::tour
