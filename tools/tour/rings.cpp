#include "tour/rings.h"

#include "tour/names.h"
#include "view/contrast.h"
#include "view/keyboard_focus.h"

#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QPointer>

#include <cmath>

namespace orvane::tour {

namespace {

constexpr double LeastRing = 3;
constexpr double LeastShare = 0.8; // of the outline
constexpr int Edge = 5;            // pixels in from the outline in which a ring lies

QImage Grabbed(const QWidget& Target)
{
    QWidget& Window = *Target.window();
    QCoreApplication::processEvents();
    return Window.grab(QRect(Target.mapTo(&Window, QPoint(0, 0)), Target.size())).toImage();
}

bool IsOnEdge(int X, int Y, QSize Size)
{
    return X < Edge || Y < Edge || X >= Size.width() - Edge || Y >= Size.height() - Edge;
}

// The outline's share along which the ring stands out.
double ShareSeen(const QImage& Before, const QImage& After)
{
    const QSize Size = Before.size();
    int Seen = 0;
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X)
            if (IsOnEdge(X, Y, Size) && Before.pixel(X, Y) != After.pixel(X, Y) &&
                Contrast(Before.pixelColor(X, Y), After.pixelColor(X, Y)) >= LeastRing)
                ++Seen;
    return Seen / (2.0 * (Size.width() + Size.height()));
}

} // namespace

int CheckRings(QWidget& Window)
{
    const QPointer<QWidget> Former = Window.focusWidget();
    LetFocusShow(Window);
    int Count = 0;
    for (QWidget* Each : Window.findChildren<QWidget*>()) {
        if (!Each->isVisible() || (Each->focusPolicy() & Qt::TabFocus) == 0 ||
            Each->focusProxy() != nullptr || Each->visibleRegion().isEmpty())
            continue;
        if (QWidget* Now = Window.focusWidget())
            Now->clearFocus();
        const QImage Before = Grabbed(*Each);
        Each->setFocus(Qt::OtherFocusReason);
        const double Share = ShareSeen(Before, Grabbed(*Each));
        if (Share < LeastShare)
            throw Because(QStringLiteral("the focus can't be seen on %1: along %2 % of its outline")
                              .arg(ControlOf(Each))
                              .arg(std::lround(100 * Share)));
        ++Count;
    }
    if (Former != nullptr)
        Former->setFocus(Qt::OtherFocusReason);
    return Count;
}

} // namespace orvane::tour
