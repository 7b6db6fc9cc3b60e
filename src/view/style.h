#pragma once

#include <QProxyStyle>

namespace orvane {

// Colours, font and frames of everything that no screen's definition decides: the boxes of the
// toolkit (messages, prompts, the colour dialog), tips, frames of lists.
class Style : public QProxyStyle
{
  public:
    Style() : QProxyStyle(QStringLiteral("Fusion")) {}

    void polish(QApplication* Application) override;
    using QProxyStyle::polish;
    void polish(QPalette& Colours) override;
    void polish(QWidget* Widget) override;

    void drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter,
                       const QWidget* Widget) const override;
    void drawControl(ControlElement Element, const QStyleOption* Option, QPainter* Painter,
                     const QWidget* Widget) const override;
    int pixelMetric(PixelMetric Metric, const QStyleOption* Option,
                    const QWidget* Widget) const override;
    int styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget,
                  QStyleHintReturn* Returned) const override;
    QRect subControlRect(ComplexControl Control, const QStyleOptionComplex* Option, SubControl Part,
                         const QWidget* Widget) const override;
};

} // namespace orvane
