#include "view/shape_view.h"

#include "toolkit/screen.h"
#include "view/look.h"
#include "view/screen_area.h"

#include <QPainter>

#include <algorithm>

namespace orvane {

ShapeView::ShapeView(Shape& Model, QWidget* Parent)
    : QWidget(Parent),
      ControlView(Model),
      TheShape(Model)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeView::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(QPen(look::ColourOf(TheShape.BorderColor), 1));
    Painter.setBrush(static_cast<ScreenArea*>(parentWidget())->PanelGround());
    Painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), look::PanelRadius,
                            look::PanelRadius);
}

LineView::LineView(Line& Model, QWidget* Parent)
    : QWidget(Parent),
      ControlView(Model),
      TheLine(Model)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QLine LineView::Ends()
{
    return {Pixels(TheLine.X1, Scale()), Pixels(TheLine.Y1, Scale()), Pixels(TheLine.X2, Scale()),
            Pixels(TheLine.Y2, Scale())};
}

QRect LineView::Place()
{
    return QRect(Ends().p1(), Ends().p2()).normalized().adjusted(-1, -1, 1, 1);
}

void LineView::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    const bool Straight = TheLine.X1() == TheLine.X2() || TheLine.Y1() == TheLine.Y2();
    Painter.setRenderHint(QPainter::Antialiasing, !Straight);
    Painter.setPen(QPen(look::ColourOf(TheLine.BorderColor), 1));
    Painter.translate(-Place().topLeft());
    Painter.drawLine(Ends());
}

} // namespace orvane
