#include "view/button_view.h"

#include "toolkit/user.h"
#include "view/act.h"
#include "view/key_words.h"
#include "view/keyboard_focus.h"
#include "view/look.h"
#include "view/qt_text.h"
#include "view/tip.h"

#include <QKeyEvent>
#include <QPainter>

namespace orvane {

namespace {

constexpr int GlowTime = 900; // milliseconds

} // namespace

ButtonView::ButtonView(Button& Model, User& TheUser, QWidget* Parent)
    : QAbstractButton(Parent),
      ControlView(Model),
      TheModel(Model),
      TheUser(TheUser)
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractButton::clicked, this,
            [this] { Act([&] { this->TheUser.Click(TheModel); }); });
    Glowing.setStartValue(1.0);
    Glowing.setEndValue(0.0);
    Glowing.setDuration(GlowTime);
    connect(&Glowing, &QVariantAnimation::valueChanged, this, [this] { update(); });
}

QString ButtonView::Tip() const
{
    return ToQt(TheModel.TipNow ? TheModel.TipNow() : TheModel.Tip);
}

void ButtonView::Glow()
{
    Glowing.stop();
    Glowing.start();
}

bool ButtonView::event(QEvent* Event)
{
    if (Event->type() == QEvent::ToolTip)
        Act([&] { FollowWords(); });
    return QAbstractButton::event(Event);
}

void ButtonView::Follow(PropertyId What)
{
    switch (What) {
    case PropertyId::Caption:
    case PropertyId::Tip:
        FollowWords();
        break;
    case PropertyId::Picture:
        Source.Set(TheModel.Picture);
        update();
        break;
    default:
        ControlView::Follow(What);
    }
}

void ButtonView::FollowAll()
{
    ControlView::FollowAll();
    Source.Set(TheModel.Picture);
}

void ButtonView::FollowWords()
{
    const QString Words = ToQt(TheModel.Words);
    QString Tip = this->Tip();
    setAccessibleName(Words);
    setAccessibleDescription(Tip);
    if (Tip.isEmpty())
        Tip = Words;
    if (!TheModel.Key.empty())
        Tip += QStringLiteral(" (%1)").arg(KeyWords(TheModel.Key));
    SetTip(*this, Tip);
    update();
}

void ButtonView::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    const QPixmap& Pixels = Source.For(size(), devicePixelRatioF(), PictureSource::Fit::Whole);
    if (Pixels.isNull())
        PaintWords(Painter);
    else
        PaintPicture(Painter, Pixels);
    if (Glowing.state() == QAbstractAnimation::Running)
        look::PaintGlow(Painter, rect(), Glowing.currentValue().toDouble());
}

void ButtonView::PaintPicture(QPainter& Painter, const QPixmap& Pixels) const
{
    const QPointF Place(0, isDown() ? 1 : 0);
    if (isDown() || underMouse()) { // a tint that keeps to the picture's own shape
        QPixmap Tinted = Pixels;
        QPainter Tint(&Tinted);
        Tint.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        Tint.fillRect(rect(), isDown() ? QColor(30, 15, 0, 70) : QColor(255, 246, 220, 48));
        Tint.end();
        Painter.drawPixmap(Place, Tinted);
    } else
        Painter.drawPixmap(Place, Pixels);
    if (ShowsFocus(*this))
        look::PaintFocusRing(Painter, rect(), look::PlateRadius);
}

void ButtonView::PaintWords(QPainter& Painter) const
{
    look::PaintPlate(Painter, rect(), {underMouse(), isDown(), ShowsFocus(*this)});
    QFont Font = font();
    Font.setBold(true);
    Painter.setFont(Font);
    Painter.setPen(look::Now().PlateInk);
    const QRect Box = rect().adjusted(6, 2, -6, isDown() ? 0 : -2);
    Painter.drawText(Box, Qt::AlignCenter | Qt::TextWordWrap, ToQt(TheModel.Words));
}

void ButtonView::keyPressEvent(QKeyEvent* Event)
{
    const bool Enter = Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter;
    if (!Enter)
        QAbstractButton::keyPressEvent(Event);
    else if (!Event->isAutoRepeat())
        click();
}

} // namespace orvane
