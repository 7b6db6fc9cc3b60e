#include "tour/eyes.h"

#include "tour/names.h"
#include "view/screen_window.h"

#include <QApplication>
#include <QTest>

namespace orvane::tour {

namespace {

constexpr int Patience = 5000; // milliseconds

QWidget* WindowNamed(const QString& Name)
{
    for (QWidget* Each : QApplication::topLevelWidgets())
        if (dynamic_cast<ScreenWindow*>(Each) != nullptr && Each->objectName() == Name)
            return Each;
    return nullptr;
}

} // namespace

void Eyes::TurnTo(const QString& Screen)
{
    const auto IsActive = [&] {
        Before = WindowNamed(Screen);
        return Before != nullptr && QApplication::activeWindow() == Before;
    };
    if (!QTest::qWaitFor(IsActive, Patience))
        throw Because(QStringLiteral("%1 isn't the active window, which is: %2")
                          .arg(Screen, ControlOf(QApplication::activeWindow())));
}

void Eyes::Activate(const QString& Screen)
{
    if (QWidget* Wanted = WindowNamed(Screen); Wanted != nullptr)
        Wanted->activateWindow();
}

QWidget& Eyes::Window() const
{
    if (Before == nullptr)
        throw Because(QStringLiteral("no window to look at yet"));
    return *Before;
}

QWidget& Eyes::The(const QString& Control) const
{
    auto* Found = Window().findChild<QWidget*>(Control);
    if (Found == nullptr)
        throw Because(QStringLiteral("%1 isn't in %2, or was never visible there")
                          .arg(Control, ControlOf(Before)));
    if (!Found->isVisible())
        throw Because(QStringLiteral("%1 of %2 is hidden").arg(Control, ControlOf(Before)));
    return *Found;
}

bool Eyes::Sees(const QString& Control) const
{
    const auto* Found = Window().findChild<QWidget*>(Control);
    return Found != nullptr && Found->isVisible();
}

bool Eyes::SeesMark(const QString& Control) const
{
    return The(Control).accessibleDescription().contains(QStringLiteral("pas un nombre"));
}

} // namespace orvane::tour
