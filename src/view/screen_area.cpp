#include "view/screen_area.h"

#include "view/act.h"
#include "view/control_view.h"
#include "view/figures.h"
#include "view/look.h"
#include "view/reading_order.h"
#include "view/telling.h"
#include "view/text_box_view.h"
#include "view/view_factory.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace orvane {

namespace {

const auto ArrangeEvent = static_cast<QEvent::Type>(QEvent::User + 1);
const auto SettleEvent = static_cast<QEvent::Type>(QEvent::User + 2);

QImage Shrunk(const QPixmap& Picture, QSize Size)
{
    return Picture.scaled(Size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).toImage();
}

QColor Over(const QColor& Ground, const QColor& Veil)
{
    const float Share = Veil.alphaF();
    const auto Part = [&](float Below, float Above) { return Below + (Above - Below) * Share; };
    return QColor::fromRgbF(Part(Ground.redF(), Veil.redF()), Part(Ground.greenF(), Veil.greenF()),
                            Part(Ground.blueF(), Veil.blueF()));
}

bool IsPanel(const Control& Which)
{
    return Which.Kind() == ControlKind::Shape || Which.Kind() == ControlKind::Line;
}

} // namespace

ScreenArea::ScreenArea(Screen& Model, User& TheUser, QWidget* Parent)
    : QWidget(Parent),
      TheScreen(Model),
      TheUser(TheUser)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    PictureChanged();
    for (const bool Panels : {true, false}) // panels first, below everything else
        for (Control* Each : TheScreen.Controls())
            if (IsPanel(*Each) == Panels && Each->Visible)
                AddView(*Each);
    Arrange();
    Settle();
}

// A control that has never been visible has no widget: most holders of a screen never will.
void ScreenArea::AddView(Control& Which)
{
    ControlView* View = MakeView(Which, TheUser, this);
    Views[&Which] = View;
}

void ScreenArea::ControlChanged(Control& Which, PropertyId What)
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
    if (Which.Kind() == ControlKind::TextBox || Which.Kind() == ControlKind::ComboBox)
        SettleLater();
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

void ScreenArea::SetScale(double New)
{
    if (New == TheScale)
        return;
    TheScale = New;
    for (const auto& [Which, View] : Views)
        for (const PropertyId Each : {PropertyId::Left, PropertyId::FontSize})
            View->Follow(Each);
    Settle();
}

void ScreenArea::ShowColours()
{
    for (const auto& [Which, View] : Views)
        View->Follow(PropertyId::BackColor);
    PanelGroundOf = -1;
    update();
}

void ScreenArea::PictureChanged()
{
    Source.Set(TheScreen.Picture);
    update();
}

void ScreenArea::ArrangeLater()
{
    if (!ArrangementIsOld)
        QCoreApplication::postEvent(this, new QEvent(ArrangeEvent));
    ArrangementIsOld = true;
}

void ScreenArea::Arrange()
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

void ScreenArea::SettleLater()
{
    if (!FiguresAreOld)
        QCoreApplication::postEvent(this, new QEvent(SettleEvent));
    FiguresAreOld = true;
}

void ScreenArea::Settle()
{
    FiguresAreOld = false;
    std::vector<TextBoxView*> Boxes;
    for (const auto& [Which, View] : Views)
        if (Which->Kind() == ControlKind::TextBox)
            Boxes.push_back(static_cast<TextBoxView*>(View));
    ShowTogether(Boxes, TheScreen.HasChoice());
    for (const auto& [Which, View] : Views)
        if (Which->Kind() == ControlKind::Label && Which->RowName != nullptr)
            View->Widget().update();
}

void ScreenArea::FocusFirst(const std::function<bool(const Control&)>& IsAsked)
{
    for (const Control* Each : ReadingOrder(TheScreen))
        if (const auto Known = Views.find(Each); Known != Views.end() && IsAsked(*Each)) {
            Known->second->Widget().setFocus(Qt::OtherFocusReason);
            return;
        }
}

QWidget* ScreenArea::WidgetOf(const Control& Which) const
{
    const auto Known = Views.find(&Which);
    return Known == Views.end() ? nullptr : &Known->second->Widget();
}

void ScreenArea::WalkValues(bool Forward)
{
    auto Way = ReadingOrder(TheScreen, IsTold);
    if (!Forward)
        std::ranges::reverse(Way);
    const auto Now = std::ranges::find_if(Way, [this](const Control* Each) {
        const QWidget* Widget = WidgetOf(*Each);
        const QWidget* Focus = focusWidget();
        return Widget != nullptr && Focus != nullptr &&
               (Widget == Focus || Widget->isAncestorOf(Focus));
    });
    if (Now != Way.end()) // from the one behind it on
        std::ranges::rotate(Way, Now + 1);
    const auto Next = std::ranges::find_if(Way, [](const Control* Each) { return IsValue(*Each); });
    if (Next != Way.end())
        WidgetOf(**Next)->setFocus(Qt::TabFocusReason);
}

const QPixmap& ScreenArea::Background()
{
    return Source.For(size(), devicePixelRatioF(), PictureSource::Fit::Whole);
}

QColor ScreenArea::PanelGround()
{
    const QPixmap& Picture = Background();
    if (PanelGroundOf != Picture.cacheKey()) {
        PanelGroundOf = Picture.cacheKey();
        ThePanelGround = Picture.isNull() ? look::Now().Panel : look::Veil(Picture);
    }
    return ThePanelGround;
}

std::vector<QColor> ScreenArea::GroundsUnder(const QRect& Place)
{
    constexpr int Coarseness = 8; // pixels between two samples
    const QPixmap& Picture = Background();
    if (SmallOf != Picture.cacheKey()) {
        SmallOf = Picture.cacheKey();
        Small = Picture.isNull() ? QImage() : Shrunk(Picture, size() / Coarseness);
    }
    const QColor Veil = PanelGround();
    const auto Veils = std::ranges::count_if(TheScreen.Controls(), [&](const Control* Each) {
        return Each->Kind() == ControlKind::Shape && Each->Visible &&
               PixelBox(*Each, TheScale).contains(Place.center());
    });
    std::vector<QColor> Result;
    for (int Y = Place.top(); Y <= Place.bottom(); Y += Coarseness)
        for (int X = Place.left(); X <= Place.right(); X += Coarseness) {
            QColor There = Small.valid(X / Coarseness, Y / Coarseness)
                               ? Small.pixelColor(X / Coarseness, Y / Coarseness)
                               : look::Now().Ground;
            for (auto i = Veils; i > 0; --i)
                There = Over(There, Veil);
            Result.push_back(There);
        }
    return Result;
}

bool ScreenArea::event(QEvent* Event)
{
    if (Event->type() == ArrangeEvent)
        Act([&] { Arrange(); });
    if (Event->type() == SettleEvent)
        Settle();
    return QWidget::event(Event);
}

void ScreenArea::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    const QPixmap& Picture = Background();
    if (Picture.isNull() || Picture.hasAlpha())
        look::PaintGround(Painter, rect());
    Painter.drawPixmap(0, 0, Picture);
}

} // namespace orvane
