#include "tour/hands.h"

#include "tour/eyes.h"
#include "tour/names.h"

#include <QApplication>
#include <QCursor>
#include <QLineEdit>
#include <QScrollArea>
#include <QTest>
#include <QWindow>

namespace orvane::tour {

namespace {

constexpr int Patience = 5000; // milliseconds

void ScrollTo(QWidget& Target)
{
    for (QWidget* Each = Target.parentWidget(); Each != nullptr; Each = Each->parentWidget())
        if (auto* Area = dynamic_cast<QScrollArea*>(Each))
            Area->ensureWidgetVisible(&Target, 0, 0);
}

} // namespace

void Hands::Click(QWidget& Target, QPoint At)
{
    ScrollTo(Target);
    QWidget& Window = *Target.window();
    const QPoint Place = Target.mapTo(&Window, At);
    const QWidget* Hit = Window.childAt(Place);
    if (Hit == nullptr || (Hit != &Target && !Target.isAncestorOf(Hit)))
        throw Because(QStringLiteral("%1 can't be reached by the mouse: %2 lies there")
                          .arg(ControlOf(&Target), ControlOf(Hit)));
    QCursor::setPos(Window.mapToGlobal(Place)); // what lies there lights up
    QTest::mouseClick(Window.windowHandle(), Qt::LeftButton, {}, Place);
}

void Hands::Click(QWidget& Target)
{
    Click(Target, Target.rect().center());
}

void Hands::Click(const QString& Control) const
{
    Click(TheEyes.The(Control));
}

void Hands::ClickItem(const QString& Menu, const QString& Key) const
{
    auto* Entry = TheEyes.The(Menu).findChild<QWidget*>(Key);
    if (Entry == nullptr)
        throw Because(QStringLiteral("%1 has no entry %2").arg(Menu, Key));
    Click(*Entry);
}

void Hands::Type(const QString& Box, const QString& Text) const
{
    QWidget& Target = TheEyes.The(Box);
    Click(Target);
    const auto HasKeyboard = [&] { // a window gets it back some time after a box has closed
        const QWidget* Focused = QApplication::focusWidget();
        return Focused == &Target || (Focused != nullptr && Target.isAncestorOf(Focused));
    };
    if (!QTest::qWaitFor(HasKeyboard, Patience))
        throw Because(QStringLiteral("%1 doesn't take the keyboard").arg(Box));
    if (const auto* Field = dynamic_cast<const QLineEdit*>(QApplication::focusWidget());
        Field != nullptr && Field->isReadOnly())
        throw Because(QStringLiteral("%1 is locked").arg(Box));
    TypeInto(Target, Text);
}

void Hands::TypeInto(QWidget& Focused, const QString& Text)
{
    QWindow* Window = Focused.window()->windowHandle();
    QTest::keyClick(Window, Qt::Key_A, Qt::ControlModifier);
    if (Text.isEmpty())
        QTest::keyClick(Window, Qt::Key_Delete);
    for (const QChar Each : Text)
        QTest::sendKeyEvent(QTest::Click, Window, Qt::Key_unknown, QString(Each), Qt::NoModifier);
}

void Hands::PutMouseAside() const
{
    const QWidget& Window = TheEyes.Window();
    QCursor::setPos(Window.mapToGlobal(QPoint(1, Window.height() - 2)));
}

} // namespace orvane::tour
