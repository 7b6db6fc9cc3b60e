#include "view/screen_window.h"

#include "toolkit/user.h"
#include "view/act.h"
#include "view/control_view.h"
#include "view/look.h"
#include "view/qt_text.h"
#include "view/reading_order.h"
#include "view/view_factory.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>

namespace orvane {

namespace {

const auto ArrangeEvent = static_cast<QEvent::Type>(QEvent::User + 1);

bool IsPanel(const Control& Which)
{
    return Which.Kind() == ControlKind::Shape || Which.Kind() == ControlKind::Line;
}

} // namespace

ScreenWindow::ScreenWindow(Screen& Model, User& TheUser) : TheScreen(Model), TheUser(TheUser)
{
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setObjectName(ToQt(Model.Name()));
    ShowSize();
    ScreenChanged(PropertyId::Caption);
    ScreenChanged(PropertyId::Icon);
    ScreenChanged(PropertyId::Picture);
    Build();
    Model.Observe(this);
}

ScreenWindow::~ScreenWindow()
{
    TheScreen.Observe(nullptr);
}

void ScreenWindow::Build()
{
    for (const bool Panels : {true, false}) // panels first, below everything else
        for (Control* Each : TheScreen.Controls())
            if (IsPanel(*Each) == Panels && Each->Visible)
                AddView(*Each);
    Arrange();
}

// A control that has never been visible has no widget: most holders of a screen never will.
void ScreenWindow::AddView(Control& Which)
{
    ControlView* View = MakeView(Which, TheUser, this);
    Views[&Which] = View;
}

void ScreenWindow::ControlChanged(Control& Which, PropertyId What)
{
    const auto Known = Views.find(&Which);
    if (Known != Views.end())
        Known->second->Follow(What);
    else if (Which.Visible) {
        AddView(Which);
        QWidget& Late = Views.at(&Which)->Widget();
        if (IsPanel(Which))
            Late.lower(); // below what stands on it, however late it comes
        Late.show();
    } else
        return;
    switch (What) {
    case PropertyId::Left:
    case PropertyId::Top:
    case PropertyId::Width:
    case PropertyId::Height:
    case PropertyId::Visible:
    case PropertyId::Picture:
        ArrangeLater();
        break;
    case PropertyId::Items:
        if (Which.Kind() == ControlKind::SideMenu)
            ArrangeLater();
        break;
    default:
        break;
    }
}

void ScreenWindow::ScreenChanged(PropertyId What)
{
    switch (What) {
    case PropertyId::Caption:
        setWindowTitle(ToQt(TheScreen.Caption));
        break;
    case PropertyId::Icon:
        setWindowIcon(QIcon(ToQt(TheScreen.Icon().File.string())));
        break;
    case PropertyId::Picture:
        Source.Set(TheScreen.Picture);
        update();
        break;
    default:
        ShowSize();
    }
}

void ScreenWindow::ShowSize()
{
    if (TheScreen.Width() > 0 && TheScreen.Height() > 0)
        setFixedSize(Pixels(TheScreen.Width), Pixels(TheScreen.Height));
}

void ScreenWindow::ArrangeLater()
{
    if (!ArrangementIsOld)
        QCoreApplication::postEvent(this, new QEvent(ArrangeEvent));
    ArrangementIsOld = true;
}

void ScreenWindow::Arrange()
{
    ArrangementIsOld = false;
    QWidget* Last = nullptr;
    for (const Control* Each : ReadingOrder(TheScreen)) {
        const auto Known = Views.find(Each);
        if (Known == Views.end())
            continue;
        for (QWidget* Stop : Known->second->TabStops()) {
            if (Last != nullptr)
                setTabOrder(Last, Stop);
            Last = Stop;
        }
    }
}

const QPixmap& ScreenWindow::Background()
{
    return Source.For(size(), devicePixelRatioF(), PictureSource::Fit::Whole);
}

QColor ScreenWindow::PanelGround()
{
    const QPixmap& Picture = Background();
    if (PanelGroundOf != Picture.cacheKey()) {
        PanelGroundOf = Picture.cacheKey();
        ThePanelGround = Picture.isNull() ? look::Panel : look::Veil(Picture);
    }
    return ThePanelGround;
}

bool ScreenWindow::event(QEvent* Event)
{
    if (Event->type() == ArrangeEvent)
        Act([&] { Arrange(); });
    else if (Event->type() == QEvent::WindowActivate && OnFocused)
        OnFocused();
    return QWidget::event(Event);
}

void ScreenWindow::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    const QPixmap& Picture = Background();
    if (Picture.isNull() || Picture.hasAlpha())
        look::PaintGround(Painter, rect());
    Painter.drawPixmap(0, 0, Picture);
}

void ScreenWindow::closeEvent(QCloseEvent* Event)
{
    Event->ignore(); // the model decides
    Close();
}

void ScreenWindow::keyPressEvent(QKeyEvent* Event)
{
    if (Event->key() != Qt::Key_Escape)
        QWidget::keyPressEvent(Event);
    else if (TheScreen.LeadsBack() &&
             !Event->isAutoRepeat()) // holding the key down leaves one screen only
        Close();
}

void ScreenWindow::Close()
{
    Act([&] { TheUser.Close(TheScreen); });
}

} // namespace orvane
