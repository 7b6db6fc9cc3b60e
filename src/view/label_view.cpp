#include "view/label_view.h"

#include "view/contrast.h"
#include "view/look.h"
#include "view/qt_text.h"
#include "view/screen_area.h"
#include "view/telling.h"
#include "view/tip.h"

#include <QPainter>

namespace orvane {

namespace {

constexpr int RightGap = 4; // to what stands at the right

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

// Whether its box, at the full size, is high enough for two lines.
bool LabelView::Wraps()
{
    return text().contains(u'\n') ||
           height() >= 2 * QFontMetrics(look::Font(Points())).lineSpacing() - 2;
}

bool LabelView::Fits(const QFontMetrics& In)
{
    if (!Wraps())
        return In.horizontalAdvance(text()) <= Room();
    const QRect Needed =
        In.boundingRect(QRect(0, 0, Room(), height()), Qt::TextWordWrap | Qt::AlignLeft, text());
    return Needed.height() <= height() && Needed.width() <= Room();
}

void LabelView::Fit()
{
    if (text() != ToQt(TheLabel.Caption))
        setText(ToQt(TheLabel.Caption));
    setFont(look::FittingFont(Points(), TheLabel.Bold ? QFont::Bold : QFont::Normal,
                              [this](const QFontMetrics& Tried) { return Fits(Tried); }));
    SetTip(*this, !Fits(fontMetrics()) && TheLabel.Tip.empty() ? text() : ToQt(TheLabel.Tip));
}

void LabelView::resizeEvent(QResizeEvent* Event)
{
    QLabel::resizeEvent(Event);
    Fit();
}

void LabelView::paintEvent(QPaintEvent*)
{
    if (IsEmptyRow(TheLabel))
        return;
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
