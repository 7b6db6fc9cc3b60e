#include "view/desktop.h"

#include "toolkit/user.h"
#include "view/accessibility.h"
#include "view/act.h"
#include "view/keyboard_focus.h"
#include "view/look.h"
#include "view/screen_window.h"

#include <QApplication>
#include <QToolTip>

namespace orvane {

namespace {

constexpr int FocusPatience = 700; // milliseconds

} // namespace

Desktop::Desktop(Forms& TheForms, User& TheUser, Menus TheMenus, OrderSource Order)
    : TheForms(TheForms),
      TheUser(TheUser),
      TheMenus(std::move(TheMenus)),
      Order(std::move(Order))
{
    QApplication::setQuitOnLastWindowClosed(false);
    InstallInterfaces();
    qApp->installEventFilter(this);
    TheForms.Observe(this);
}

Desktop::~Desktop()
{
    TheForms.Observe(nullptr);
}

ScreenWindow* Desktop::WindowOf(const Screen& Which) const
{
    const auto Known = Windows.find(&Which);
    return Known == Windows.end() ? nullptr : Known->second.get();
}

void Desktop::TakeColours(const std::map<std::string, Colour>& Given)
{
    look::Take(Given);
    QApplication::setPalette(look::Palette());
    QToolTip::setPalette(look::Palette());
    for (const auto& [Which, Window] : Windows)
        Window->ShowColours();
}

void Desktop::ShowInMenuBars(const QString& Words)
{
    InMenuBars = Words;
    for (const auto& [Which, Window] : Windows)
        Window->ShowInMenuBar(Words);
}

void Desktop::Answer(const Control& Pressed, const QString& Words)
{
    if (ScreenWindow* Window = WindowOf(Pressed.Owner()))
        Window->Answer(Pressed, Words);
}

ScreenWindow& Desktop::Built(Screen& Which)
{
    std::unique_ptr<ScreenWindow>& Window = Windows[&Which];
    if (Window == nullptr) {
        Window = std::make_unique<ScreenWindow>(Which, TheUser, TheMenus, Order);
        Window->ShowInMenuBar(InMenuBars);
        if (KeysAreUsed)
            LetFocusShow(*Window);
        Window->OnFocused = [this, Made = Window.get()] { Focused(*Made); };
    }
    return *Window;
}

void Desktop::Shown(Screen& Which)
{
    ScreenWindow& Window = Built(Which);
    if (!Window.isVisible()) {
        Place(Window);
        Window.FocusFirstInput();
    }
    if (Window.isMinimized())
        Window.showNormal();
    else
        Window.show();
    LastShown = &Window;
    // Who has the focus asks for nothing: what answers an old focus comes after what has been
    // clicked since, and two windows would take the focus from each other for ever.
    if (QApplication::activeWindow() != &Window || Awaits()) {
        Expected = &Window;
        SinceExpected.start();
        Window.raise();
        Window.activateWindow();
    }
}

void Desktop::Hidden(Screen& Which)
{
    ScreenWindow* Window = WindowOf(Which);
    if (Window == nullptr)
        return;
    if (Expected == Window)
        Expected = nullptr;
    Window->hide();
}

// In the middle of the window before it, as if the screens took turns in one place.
void Desktop::Place(ScreenWindow& Window) const
{
    if (LastShown == nullptr || LastShown == &Window)
        return;
    QRect Frame = Window.Framed();
    Frame.moveCenter(LastShown->Framed().center());
    Window.MoveOnScreen(Frame);
}

bool Desktop::Awaits() const
{
    return Expected != nullptr && !SinceExpected.hasExpired(FocusPatience);
}

void Desktop::Focused(ScreenWindow& Window)
{
    if (Expected == &Window)
        Expected = nullptr;
    if (Awaits())
        return;
    Expected = nullptr;
    if (TheForms.Active() != &Window.Model() && QApplication::activeModalWidget() == nullptr)
        Act([&] { TheUser.Activate(Window.Model()); });
}

void Desktop::ShowFocus()
{
    KeysAreUsed = true;
    for (const auto& [Which, Window] : Windows)
        LetFocusShow(*Window);
    if (QWidget* Now = QApplication::focusWidget())
        Now->update();
}

// A press anywhere in a window makes its screen the active one, before the press does its work.
bool Desktop::eventFilter(QObject* Target, QEvent* Event)
{
    if (Event->type() == QEvent::MouseButtonPress && Target->isWidgetType()) {
        auto* Window = dynamic_cast<ScreenWindow*>(static_cast<QWidget*>(Target)->window());
        if (Window != nullptr && TheForms.Active() != &Window->Model())
            Act([&] { TheUser.Activate(Window->Model()); });
    }
    if (Event->type() == QEvent::KeyPress && !KeysAreUsed)
        ShowFocus();
    return QObject::eventFilter(Target, Event);
}

} // namespace orvane
