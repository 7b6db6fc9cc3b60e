#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

class QAbstractItemView;
class QWidget;

namespace orvane::tour {

class Eyes;

// The mouse and the keyboard. Events go to windows, which pass them on as they do those of a
// person: what is covered gets none.
class Hands
{
  public:
    explicit Hands(const Eyes& TheEyes) : TheEyes(TheEyes) {}

    static void Click(QWidget& Target, QPoint At);
    static void Click(QWidget& Target);
    void Click(const QString& Control) const;
    void ClickItem(const QString& Menu, const QString& Key) const;

    void Type(const QString& Box, const QString& Text) const; // in place of what it holds
    static void TypeInto(QWidget& Focused, const QString& Text);

    // Combo boxes are opened first, list boxes lie open.
    void Open(const QString& Combo) const;
    QStringList Entries(const QString& List) const;
    void Pick(const QString& List, int Row) const;

    // Leaves the mouse where it lights nothing up.
    void PutMouseAside() const;

  private:
    QAbstractItemView& Opened(const QString& List) const;

    const Eyes& TheEyes;
};

} // namespace orvane::tour
