#pragma once

#include "toolkit/screen.h"
#include "view/picture_source.h"

#include <QColor>
#include <QImage>
#include <QWidget>

#include <functional>
#include <unordered_map>
#include <vector>

namespace orvane {

class ControlView;
class User;

// What a layout lays out: a screen's background and a widget for each of its controls, told of each
// change.
class ScreenArea : public QWidget
{
  public:
    ScreenArea(Screen& Model, User& TheUser, QWidget* Parent);

    // Everything on it is as much larger or smaller than its layout has it, its words too.
    double Scale() const { return TheScale; }
    void SetScale(double New);

    QColor PanelGround();
    const QPixmap& Background(); // null without a picture

    // What lies behind a place, as a few colours out of it: the background, panels on it counted.
    std::vector<QColor> GroundsUnder(const QRect& Place);

    Screen& Model() const { return TheScreen; }
    QWidget* WidgetOf(const Control& Which) const; // nothing before it has been visible

    // Moves the focus to the next value, as the eye goes, or to the one before; round the ends.
    void WalkValues(bool Forward);

    // The first one, as the eye goes, that is as asked for.
    void FocusFirst(const std::function<bool(const Control&)>& IsAsked);

    void ShowColours(); // that a skin has brought

    void ControlChanged(Control& Which, PropertyId What);
    void PictureChanged();

  protected:
    bool event(QEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;

  private:
    void AddView(Control& Which);
    void ArrangeLater();
    void Arrange(); // the order of Tab
    void SettleLater();
    void Settle(); // what its boxes share

    Screen& TheScreen;
    User& TheUser;
    double TheScale = 1;
    PictureSource Source;
    QColor ThePanelGround;
    qint64 PanelGroundOf = -1; // the background that it was found for
    QImage Small;              // the background for GroundsUnder, made when it is first asked for
    qint64 SmallOf = -1;
    bool ArrangementIsOld = false;
    bool FiguresAreOld = false;
    std::unordered_map<const Control*, ControlView*> Views; // of what has been visible
};

} // namespace orvane
