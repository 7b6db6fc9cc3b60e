#include "tour/keyboard.h"

#include "tour/eyes.h"
#include "tour/hands.h"
#include "tour/names.h"
#include "view/combo_box_view.h"
#include "view/entry_popup.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace orvane::tour {

namespace {

constexpr int Patience = 5000;   // milliseconds
constexpr int MostStops = 120;   // of Tab on one screen
constexpr int MostEntries = 400; // of a list or a menu

void Press(const QWidget& In, Qt::Key Key, Qt::KeyboardModifiers With = {})
{
    QTest::keyClick(In.window()->windowHandle(), Key, With);
    QCoreApplication::processEvents();
}

bool HasFocus(const QWidget& Target)
{
    const QWidget* There = QApplication::focusWidget();
    return There != nullptr && (There == &Target || Target.isAncestorOf(There));
}

} // namespace

QWidget& Keyboard::Reach(const QString& Control) const
{
    QWidget& Target = TheEyes.The(Control);
    if (!QTest::qWaitForWindowActive(Target.window(), Patience))
        throw Because(QStringLiteral("the window of %1 doesn't get the keyboard").arg(Control));
    for (int i = 0; !HasFocus(Target); ++i) {
        if (i == MostStops)
            throw Because(QStringLiteral("%1 can't be reached by Tab").arg(Control));
        Press(Target, Qt::Key_Tab);
    }
    return Target;
}

void Keyboard::Click(const QString& Control) const
{
    Press(Reach(Control), Qt::Key_Return);
}

void Keyboard::ClickItem(const QString& Menu, const QString& Key) const
{
    const QWidget& Bars = Reach(Menu);
    for (const Qt::Key Way : {Qt::Key_Up, Qt::Key_Down})
        for (int i = 0; i < MostEntries && QApplication::focusWidget()->objectName() != Key; ++i)
            Press(Bars, Way);
    if (QApplication::focusWidget()->objectName() != Key)
        throw Because(QStringLiteral("the arrows don't lead to %1").arg(Key));
    Press(Bars, Qt::Key_Return);
}

void Keyboard::Type(const QString& Box, const QString& Text) const
{
    Hands::TypeInto(Reach(Box), Text);
}

void Keyboard::Pick(const QString& List, int Row) const
{
    QWidget& Target = Reach(List);
    const auto* Box = dynamic_cast<ComboBoxView*>(&Target);
    if (Box == nullptr) { // a list that lies open
        Press(Target, Qt::Key_Home);
        for (int i = 0; i < Row; ++i)
            Press(Target, Qt::Key_Down);
        return;
    }
    if (Box->Popup() == nullptr || !Box->Popup()->isVisible())
        Press(Target, Qt::Key_Down, Qt::AltModifier);
    for (int i = 0; i < MostEntries && Box->Popup()->Highlighted() != Row; ++i)
        Press(Target, Box->Popup()->Highlighted() < Row ? Qt::Key_Down : Qt::Key_Up);
    Press(Target, Qt::Key_Return);
}

} // namespace orvane::tour
