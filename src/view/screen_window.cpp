#include "view/screen_window.h"

#include "toolkit/user.h"
#include "view/act.h"
#include "view/announcer.h"
#include "view/button_view.h"
#include "view/control_view.h"
#include "view/key_words.h"
#include "view/list_box_view.h"
#include "view/picture_source.h"
#include "view/qt_text.h"
#include "view/screen_area.h"
#include "view/telling.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr QSize FrameSize(4, 34); // of a title and borders, as desktops have them
constexpr double SmallestScale = 0.25;
constexpr double LargestScale = 3;

// At which a screen of that size just fits into the room; 1 where hardly any is left.
double ScaleFor(QSize Size, QSize Room)
{
    constexpr double Nearly = 0.005;
    const double Result =
        std::min(double(Room.width()) / Size.width(), double(Room.height()) / Size.height());
    return Result > 1 && Result < 1 + Nearly ? 1 : Result;
}

constexpr int SettlingTime = 300; // milliseconds: who types on hears of the last figure only

} // namespace

ScreenWindow::ScreenWindow(Screen& Model, User& TheUser, const Menus& TheMenus, OrderSource Order)
    : TheScreen(Model),
      TheUser(TheUser),
      TheMenu(new WindowMenu(TheMenus, this)),
      Area(new ScreenArea(Model, TheUser, this)),
      Order(std::move(Order)),
      TheAnnouncer(new Announcer(this))
{
    Settling.setSingleShot(true);
    Settling.setInterval(SettlingTime);
    Settling.callOnTimeout([this] { TellAnswers(); });
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    setObjectName(ToQt(Model.Name()));
    ShowSize();
    ScreenChanged(PropertyId::Caption);
    ScreenChanged(PropertyId::Icon);
    ScreenChanged(PropertyId::Picture);
    Model.Observe(this);
}

ScreenWindow::~ScreenWindow()
{
    TheScreen.Observe(nullptr);
}

void ScreenWindow::ControlChanged(Control& Which, PropertyId What)
{
    Area->ControlChanged(Which, What);
    if (What == PropertyId::Text && Which.Kind() == ControlKind::TextBox)
        AnswerChanged(static_cast<TextBox&>(Which));
}

void ScreenWindow::AnswerChanged(const TextBox& Figure)
{
    if (!Figure.IsAnswer || !QAccessible::isActive())
        return;
    if (std::ranges::find(Changed, &Figure) == Changed.end())
        Changed.push_back(&Figure);
    Settling.start();
}

void ScreenWindow::TellAnswers()
{
    QStringList Words;
    for (const TextBox* Each : std::exchange(Changed, {}))
        if (IsTold(*Each) && !Each->Stale && isActiveWindow())
            Words << ToQt(Told(*Each));
    if (!Words.isEmpty())
        TheAnnouncer->Say(Words.join(QStringLiteral(", ")));
}

void ScreenWindow::Answer(const Control& Pressed, const QString& Words)
{
    TheAnnouncer->Say(Words);
    if (auto* Button = dynamic_cast<ButtonView*>(Area->WidgetOf(Pressed)))
        Button->Glow();
}

void ScreenWindow::ScreenChanged(PropertyId What)
{
    switch (What) {
    case PropertyId::Caption:
        setWindowTitle(ToQt(TheScreen.Caption));
        break;
    case PropertyId::Icon:
        if (const QIcon Own = IconOf(TheScreen.Icon); !Own.isNull()) // else the program's
            setWindowIcon(Own);
        break;
    case PropertyId::Picture:
        Area->PictureChanged();
        TheMenu->TakeColours(Area->Background());
        break;
    default:
        ShowSize();
    }
}

void ScreenWindow::ShowColours()
{
    Area->ShowColours();
    TheMenu->TakeColours(Area->Background());
}

void ScreenWindow::ShowSize()
{
    if (TheScreen.Width() <= 0 || TheScreen.Height() <= 0)
        return;
    const QSize Bar(0, BarHeight());
    const QSize Room = screen()->availableGeometry().size() - FrameSize - Bar;
    const QSize Size = Natural();
    setMinimumSize(Size * SmallestScale + Bar);
    if (!isMaximized())
        resize(Size * std::min(1.0, ScaleFor(Size, Room)) + Bar);
    LayOut();
    if (isVisible() && !isMaximized())
        MoveOnScreen(Framed());
}

QSize ScreenWindow::Natural() const
{
    return {Pixels(TheScreen.Width, 1), Pixels(TheScreen.Height, 1)};
}

int ScreenWindow::BarHeight() const
{
    return TheMenu->actions().isEmpty() ? 0 : TheMenu->sizeHint().height();
}

void ScreenWindow::LayOut()
{
    const QSize Size = Natural();
    const int Bar = BarHeight();
    const QRect Room(0, Bar, width(), height() - Bar);
    TheMenu->setGeometry(0, 0, width(), Bar);
    if (Size.isEmpty() || Room.isEmpty())
        return;
    const double Scale = std::clamp(ScaleFor(Size, Room.size()), SmallestScale, LargestScale);
    QRect Place(QPoint(), Size * Scale);
    const int Beside = std::min(Room.width() - Place.width(), OrderPanel::Widest);
    const bool HasOrder = Order && Beside >= OrderPanel::Narrowest;
    Place.moveCenter(Room.center());
    if (HasOrder)
        Place.moveLeft((Room.width() - Place.width() - Beside) / 2);
    Area->SetScale(Scale);
    Area->setGeometry(Place);
    LayOutOrder(HasOrder ? QRect(Place.right() + 1, Place.top(), Beside, Place.height()) : QRect());
}

// Nothing for no place.
void ScreenWindow::LayOutOrder(QRect Place)
{
    if (TheOrder == nullptr && Place.isEmpty())
        return;
    if (TheOrder == nullptr)
        TheOrder = new OrderPanel(Order, this);
    TheOrder->setGeometry(Place);
    TheOrder->setVisible(!Place.isEmpty());
    if (!Place.isEmpty())
        Act([this] { TheOrder->Refresh(); });
}

void ScreenWindow::ShowInMenuBar(const QString& Words)
{
    TheMenu->ShowAtTheEnd(Words);
    TheMenu->ShowOffers();
    if (TheOrder != nullptr && TheOrder->isVisible())
        TheOrder->Refresh();
}

QRect ScreenWindow::Framed() const
{
    const QRect Known = frameGeometry();
    return Known == geometry() ? QRect(Known.topLeft(), Known.size() + FrameSize) : Known;
}

void ScreenWindow::MoveOnScreen(QRect Frame)
{
    const QRect Room = screen()->availableGeometry();
    move(std::max(Room.left(), std::min(Frame.left(), Room.right() + 1 - Frame.width())),
         std::max(Room.top(), std::min(Frame.top(), Room.bottom() + 1 - Frame.height())));
}

void ScreenWindow::FocusFirstInput()
{
    Area->FocusFirst([](const Control& Each) {
        const auto* Box = dynamic_cast<const TextBox*>(&Each);
        return Each.Kind() == ControlKind::ComboBox || (Box != nullptr && !Box->Locked);
    });
}

void ScreenWindow::FocusFirstWrong()
{
    Area->FocusFirst([](const Control& Each) {
        const auto* Box = dynamic_cast<const TextBox*>(&Each);
        return Box != nullptr && Box->Marked && !Box->Locked;
    });
}

bool ScreenWindow::event(QEvent* Event)
{
    if (Event->type() == QEvent::WindowActivate && OnFocused)
        OnFocused();
    return QWidget::event(Event);
}

void ScreenWindow::resizeEvent(QResizeEvent* Event)
{
    QWidget::resizeEvent(Event);
    LayOut();
}

void ScreenWindow::closeEvent(QCloseEvent* Event)
{
    Event->ignore(); // the model decides
    Close();
}

void ScreenWindow::contextMenuEvent(QContextMenuEvent* Event)
{
    for (QWidget* At = childAt(Event->pos()); At != nullptr; At = At->parentWidget())
        if (dynamic_cast<ListBoxView*>(At) != nullptr)
            return TheMenu->OpenForList(Event->globalPos());
    QWidget::contextMenuEvent(Event);
}

void ScreenWindow::keyPressEvent(QKeyEvent* Event)
{
    if (Event->key() == Qt::Key_F6)
        Area->WalkValues(!Event->modifiers().testFlag(Qt::ShiftModifier));
    else if (Event->key() != Qt::Key_Escape)
        PressButton(*Event);
    else if (TheScreen.LeadsBack() &&
             !Event->isAutoRepeat()) // holding the key down leaves one screen only
        Close();
}

void ScreenWindow::PressButton(QKeyEvent& Pressed)
{
    for (Control* Each : TheScreen.Controls()) {
        auto* Which = dynamic_cast<Button*>(Each);
        if (Which == nullptr || !Which->Visible || !IsKey(Pressed, Which->Key))
            continue;
        if (!Pressed.isAutoRepeat())
            Act([&] { TheUser.Click(*Which); });
        return;
    }
    QWidget::keyPressEvent(&Pressed);
}

void ScreenWindow::Close()
{
    Act([&] { TheUser.Close(TheScreen); });
}

} // namespace orvane
