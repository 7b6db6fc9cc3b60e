#include "tour/camera.h"

#include "tour/names.h"
#include "view/screen_window.h"

#include <QImage>
#include <QScreen>
#include <QTest>
#include <QWidget>

namespace orvane::tour {

namespace {

constexpr int Repainting = 60; // milliseconds

bool IsBlank(const QImage& Picture)
{
    for (int Y = 0; Y < Picture.height(); ++Y)
        for (int X = 0; X < Picture.width(); ++X)
            if (Picture.pixel(X, Y) != Picture.pixel(0, 0))
                return false;
    return true;
}

} // namespace

void Camera::BeginLook(const QString& Prefix, QSize NewResolution)
{
    Look = Prefix;
    Resolution = NewResolution;
    Number = 0;
}

void Camera::CheckSize() const
{
    const QSize Size = TheEyes.Window().size();
    if (Size.width() > Resolution.width() || Size.height() > Resolution.height())
        throw Because(QStringLiteral("%1 is larger than the resolution: %2 x %3")
                          .arg(ControlOf(&TheEyes.Window()))
                          .arg(Size.width())
                          .arg(Size.height()));
    const auto& Framed = static_cast<const ScreenWindow&>(TheEyes.Window());
    const QRect Room = Framed.screen()->availableGeometry();
    if (!Room.contains(Framed.Framed()))
        throw Because(QStringLiteral("%1 isn't wholly on the screen of %2 x %3")
                          .arg(ControlOf(&TheEyes.Window()))
                          .arg(Room.width())
                          .arg(Room.height()));
}

// What the screen shows at the window's place: a box above it is in the picture too.
QImage Camera::Seen() const
{
    const QWidget& Window = TheEyes.Window();
    const QRect Place = Window.geometry();
    return Window.screen()
        ->grabWindow(0, Place.x(), Place.y(), Place.width(), Place.height())
        .toImage();
}

void Camera::Photograph(const QString& Stop)
{
    CheckSize();
    QTest::qWait(Repainting);
    const QImage Picture = Seen();
    if (Picture.isNull() || IsBlank(Picture))
        throw Because(QStringLiteral("%1 shows nothing").arg(ControlOf(&TheEyes.Window())));
    LastFile = QStringLiteral("%1-%2-%3.png").arg(Look).arg(++Number, 2, 10, QChar(u'0')).arg(Stop);
    if (const QString File = Pictures.filePath(LastFile); !Picture.save(File))
        throw Because(QStringLiteral("%1 can't be written").arg(File));
    ++Total;
}

} // namespace orvane::tour
