#pragma once

#include "toolkit/controls.h"
#include "view/control_view.h"

#include <QWidget>

namespace orvane {

// A framed panel below the other controls. On a background picture its ground lets the picture
// through, lightened as much as the captions, made for the picture, can bear.
class ShapeView : public QWidget, public ControlView
{
  public:
    ShapeView(Shape& Model, QWidget* Parent);

    QWidget& Widget() override { return *this; }

  protected:
    void paintEvent(QPaintEvent* Event) override;

  private:
    Shape& TheShape;
};

class LineView : public QWidget, public ControlView
{
  public:
    LineView(Line& Model, QWidget* Parent);

    QWidget& Widget() override { return *this; }

  protected:
    QRect Place() override;

    void paintEvent(QPaintEvent* Event) override;

  private:
    QLine Ends(); // within the area

    Line& TheLine;
};

} // namespace orvane
