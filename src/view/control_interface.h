#pragma once

#include <QAccessibleWidget>

class QAbstractButton;
class QLabel;

namespace orvane {

class ScreenArea;

// What screen readers meet in the place of a control: where it stands among the groups of its
// screen, what it is and what it is called.
class ControlInterface : public QAccessibleWidget
{
  public:
    ControlInterface(QWidget& Which, QAccessible::Role Role) : QAccessibleWidget(&Which, Role) {}

    QAccessibleInterface* parent() const override;
};

class CaptionInterface : public ControlInterface
{
  public:
    explicit CaptionInterface(QLabel& Which);

    QString text(QAccessible::Text What) const override;

  private:
    QLabel& Label;
};

// A result to look at: no button, but a stop of the walk through the values.
class PictureInterface : public ControlInterface
{
  public:
    explicit PictureInterface(QWidget& Which) : ControlInterface(Which, QAccessible::Graphic) {}

    QString text(QAccessible::Text What) const override;
    QAccessible::State state() const override;
};

// Anything that is pressed: buttons, shields, entries of a menu.
class ButtonInterface : public ControlInterface
{
  public:
    explicit ButtonInterface(QAbstractButton& Which);

    QString text(QAccessible::Text What) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& Name) override;

  private:
    QAbstractButton& Button;
};

// A panel with a title: what stands on it, in reading order.
class PanelInterface : public ControlInterface
{
  public:
    explicit PanelInterface(QWidget& Panel) : ControlInterface(Panel, QAccessible::Grouping) {}

    QString text(QAccessible::Text What) const override;
    int childCount() const override;
    QAccessibleInterface* child(int Index) const override;
    int indexOfChild(const QAccessibleInterface* Child) const override;
};

// A screen: its panels, and what stands on none, in reading order.
class AreaInterface : public QAccessibleWidget
{
  public:
    explicit AreaInterface(ScreenArea& Area);

    int childCount() const override;
    QAccessibleInterface* child(int Index) const override;
    int indexOfChild(const QAccessibleInterface* Child) const override;
};

// The panel's own interface for who stands on one with a title, else the area's.
QAccessibleInterface* GroupOf(const QWidget& Which);

} // namespace orvane
