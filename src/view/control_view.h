#pragma once

#include "toolkit/control.h"
#include "toolkit/property.h"

#include <QRect>
#include <QString>

#include <vector>

class QColor;
class QWidget;

namespace orvane {

// Twips to pixels: 96 dots per inch at scale 1.
int Pixels(int Twips, double Scale);
QRect PixelBox(const Control& Which, double Scale);

// What all kinds have in common: a widget that follows a control.
class ControlView
{
  public:
    explicit ControlView(Control& Model) : TheControl(Model) {}
    virtual ~ControlView() = default;

    virtual QWidget& Widget() = 0;

    // Brings one property over; the base knows those that every control has.
    virtual void Follow(PropertyId What);

    // Brings over everything, when the widget has just been made.
    virtual void FollowAll();

    // Where Tab stops, in order. Hidden and locked ones among them are passed over.
    virtual std::vector<QWidget*> TabStops() { return {}; }

    Control& Model() const { return TheControl; }

  protected:
    double Scale();  // of the screen's area
    double Points(); // of the words on it

    // The ground of a box, and on it its ink where that can be read, or one that can.
    void ShowBoxColours(const QColor& Ground, const QColor& Ink);
    void ShowBoxColours(); // the model's

    virtual QRect Place() { return PixelBox(TheControl, Scale()); }

  private:
    Control& TheControl;
};

} // namespace orvane
