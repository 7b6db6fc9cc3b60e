#include "tour/eyes.h"

#include "tour/names.h"
#include "tour/step.h"
#include "view/screen_window.h"

#include <QApplication>
#include <QTest>

#include <algorithm>

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
        throw CannotGoOn(QStringLiteral("%1 isn't the active window, which is: %2")
                             .arg(Screen, ControlOf(QApplication::activeWindow())));
}

QWidget& Eyes::Window() const
{
    if (Before == nullptr)
        throw CannotGoOn(QStringLiteral("no window to look at yet"));
    return *Before;
}

QWidget& Eyes::The(const QString& Control) const
{
    auto* Found = Window().findChild<QWidget*>(Control);
    if (Found == nullptr)
        throw CannotGoOn(QStringLiteral("%1 isn't in %2, or was never visible there")
                             .arg(Control, ControlOf(Before)));
    if (!Found->isVisible())
        throw CannotGoOn(QStringLiteral("%1 of %2 is hidden").arg(Control, ControlOf(Before)));
    return *Found;
}

bool Eyes::Sees(const QString& Control) const
{
    const auto* Found = Window().findChild<QWidget*>(Control);
    return Found != nullptr && Found->isVisible();
}

bool Eyes::SeesAll(const QString& Controls) const
{
    const QStringList Names = Controls.split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(Names, [this](const QString& Name) {
        return Name.startsWith(u'!') ? !Sees(Name.mid(1)) : Sees(Name);
    });
}

void Eyes::Expect(const QString& Controls) const
{
    for (const QString& Each : Controls.split(u' ', Qt::SkipEmptyParts))
        if (!SeesAll(Each))
            throw CannotGoOn(Each.startsWith(u'!')
                                 ? QStringLiteral("%1 can be seen").arg(Each.mid(1))
                                 : QStringLiteral("%1 can't be seen").arg(Each));
}

void Eyes::ExpectWrong(const QString& Control) const
{
    if (!The(Control).accessibleDescription().contains(QStringLiteral("pas un nombre")))
        throw CannotGoOn(QStringLiteral("%1 isn't marked").arg(Control));
}

} // namespace orvane::tour
