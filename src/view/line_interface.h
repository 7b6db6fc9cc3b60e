#pragma once

#include "view/control_interface.h"

class QComboBox;
class QLineEdit;

namespace orvane {

// A text in one line, as screen readers go through it and write into it. What they write goes the
// way of what a person types.
class LineInterface : public ControlInterface,
                      public QAccessibleTextInterface,
                      public QAccessibleEditableTextInterface
{
  public:
    LineInterface(QWidget& Which, QAccessible::Role Role, QLineEdit& Line);

    QString text(QAccessible::Text What) const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType Type) override;

    void selection(int Index, int* Start, int* End) const override;
    int selectionCount() const override;
    void addSelection(int Start, int End) override;
    void removeSelection(int Index) override;
    void setSelection(int Index, int Start, int End) override;
    int cursorPosition() const override;
    void setCursorPosition(int Position) override;
    QString text(int Start, int End) const override;
    int characterCount() const override;
    QRect characterRect(int Offset) const override;
    int offsetAtPoint(const QPoint& Point) const override;
    void scrollToSubstring(int Start, int End) override;
    QString attributes(int Offset, int* Start, int* End) const override;

    void deleteText(int Start, int End) override;
    void insertText(int Offset, const QString& Text) override;
    void replaceText(int Start, int End, const QString& Text) override;

  private:
    QLineEdit& Line;
};

// A list that opens below its text is one thing: the text within tells nothing by itself.
class ComboInterface : public LineInterface
{
  public:
    explicit ComboInterface(QComboBox& Which);

    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* focusChild() const override { return nullptr; }
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& Name) override;

  private:
    QComboBox& Box;
};

} // namespace orvane
