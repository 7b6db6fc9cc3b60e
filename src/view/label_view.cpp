#include "view/label_view.h"

#include "view/contrast.h"
#include "view/look.h"
#include "view/qt_text.h"
#include "view/screen_area.h"
#include "view/tip.h"

#include <QPainter>

namespace orvane {

namespace {

constexpr double SmallestShare = 0.82; // of the model's size, before a caption is cut short
constexpr int RightGap = 4;            // to what stands at the right

} // namespace

LabelView::LabelView(Label& Model, QWidget* Parent)
    : QLabel(Parent),
      ControlView(Model),
      TheLabel(Model)
{
    setTextFormat(Qt::PlainText);
}

void LabelView::Follow(PropertyId What)
{
    switch (What) {
    case PropertyId::Caption:
    case PropertyId::Bold:
    case PropertyId::FontSize:
    case PropertyId::Tip:
        Fit();
        break;
    default:
        ControlView::Follow(What);
    }
}

void LabelView::FollowAll()
{
    ControlView::FollowAll();
    Fit();
}

int LabelView::Room() const
{
    return TheLabel.Align == Alignment::Right ? width() - RightGap : width();
}

bool LabelView::Wraps() const
{
    return text().contains(u'\n') || height() >= 2 * fontMetrics().lineSpacing() - 2;
}

bool LabelView::Fits() const
{
    if (!Wraps())
        return fontMetrics().horizontalAdvance(text()) <= Room();
    const QRect Needed = fontMetrics().boundingRect(QRect(0, 0, Room(), height()),
                                                    Qt::TextWordWrap | Qt::AlignLeft, text());
    return Needed.height() <= height() && Needed.width() <= Room();
}

void LabelView::Fit()
{
    if (text() != ToQt(TheLabel.Caption))
        setText(ToQt(TheLabel.Caption));
    QFont Font = look::Font(TheLabel.FontSize, TheLabel.Bold);
    setFont(Font);
    for (double Share = 0.94; !Fits() && Share >= SmallestShare; Share -= 0.06) {
        Font.setPointSizeF(TheLabel.FontSize * Share);
        setFont(Font);
    }
    SetTip(*this, !Fits() && TheLabel.Tip.empty() ? text() : ToQt(TheLabel.Tip));
}

void LabelView::resizeEvent(QResizeEvent* Event)
{
    QLabel::resizeEvent(Event);
    Fit();
}

void LabelView::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    const auto Grounds = static_cast<ScreenArea*>(parentWidget())->GroundsUnder(geometry());
    Painter.setPen(Readable(look::InkOf(TheLabel.ForeColor), Grounds));
    int Flags = static_cast<int>(ToQt(TheLabel.Align));
    QString Caption = text();
    if (Wraps()) {
        Flags |= Qt::TextWordWrap |
                 (height() < 3 * fontMetrics().lineSpacing() ? Qt::AlignVCenter : Qt::AlignTop);
    } else {
        Flags |= Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip;
        Caption = fontMetrics().elidedText(Caption, Qt::ElideRight, Room());
    }
    Painter.drawText(QRect(0, 0, Room(), height()), Flags, Caption);
}

} // namespace orvane
