#include "view/picture_view.h"

#include "toolkit/user.h"
#include "view/act.h"
#include "view/keyboard_focus.h"
#include "view/look.h"
#include "view/qt_text.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace orvane {

PictureView::PictureView(PictureControl& Model, User& TheUser, QWidget* Parent)
    : QAbstractButton(Parent),
      ControlView(Model),
      TheModel(Model),
      TheUser(TheUser)
{
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, this,
            [this] { Act([&] { this->TheUser.Click(TheModel); }); });
}

void PictureView::Follow(PropertyId What)
{
    ControlView::Follow(What);
    if (What == PropertyId::Picture)
        FollowPicture();
    if (What == PropertyId::Tip)
        setAccessibleName(ToQt(TheModel.Tip));
}

void PictureView::FollowAll()
{
    ControlView::FollowAll();
    FollowPicture();
}

void PictureView::FollowPicture()
{
    setFocusPolicy(IsClickable() ? Qt::StrongFocus : Qt::NoFocus);
    setCursor(IsClickable() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    Source.Set(TheModel.Picture);
}

std::vector<QWidget*> PictureView::TabStops()
{
    if (!IsClickable())
        return {};
    return {this};
}

void PictureView::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    const QPixmap& Pixels =
        Source.For(size(), devicePixelRatioF(), PictureSource::Fit::KeepingProportions);
    if (!Pixels.isNull()) {
        QRectF Box(QPointF(0, 0), Pixels.deviceIndependentSize());
        Box.moveCenter(QRectF(rect()).center());
        if (IsClickable() && isDown())
            Box.translate(0, 1);
        Painter.drawPixmap(Box.topLeft(), Pixels);
    }
    if (ShowsFocus(*this)) {
        look::PaintFocusRing(Painter, rect(), look::FieldRadius);
    } else if (!IsClickable()) {
        return;
    } else if (underMouse() || Pixels.isNull()) { // a picture that is missing leaves its frame
        Painter.setRenderHint(QPainter::Antialiasing);
        Painter.setPen(QPen(look::Now().PanelBorder, 1));
        Painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), look::FieldRadius,
                                look::FieldRadius);
    }
}

void PictureView::keyPressEvent(QKeyEvent* Event)
{
    const bool Enter = Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter;
    if (Enter && IsClickable() && !Event->isAutoRepeat())
        click();
    else
        QAbstractButton::keyPressEvent(Event);
}

void PictureView::mousePressEvent(QMouseEvent* Event)
{
    if (IsClickable())
        QAbstractButton::mousePressEvent(Event);
    else
        Event->ignore();
}

} // namespace orvane
