#include "view/control_interface.h"

#include "view/button_view.h"
#include "view/control_view.h"
#include "view/list_box_view.h"
#include "view/list_columns.h"
#include "view/menu_bar_view.h"
#include "view/qt_text.h"
#include "view/reading_order.h"
#include "view/screen_area.h"
#include "view/telling.h"

#include <QAbstractButton>
#include <QLabel>

#include <algorithm>

namespace orvane {

namespace {

const ScreenArea& AreaOf(const QWidget& Which)
{
    return static_cast<const ScreenArea&>(*Which.parentWidget());
}

const Control& ModelOf(const QWidget& Which)
{
    return dynamic_cast<const ControlView&>(Which).Model();
}

const Control* TitledPanelOf(const Control& Which)
{
    const Control* Panel = PanelOf(Which);
    return Panel == nullptr || TitleOf(*Panel).empty() ? nullptr : Panel;
}

// Of lists side by side the first alone tells them all.
bool IsPassedOver(QWidget& Which)
{
    auto* List = dynamic_cast<ListBoxView*>(&Which);
    return List != nullptr && ColumnsOf(*List).front() != List;
}

// The widgets that stand directly in a group; none for the area itself.
QList<QWidget*> PartsOf(const ScreenArea& Area, const Control* Group)
{
    QList<QWidget*> Result;
    for (const Control* Each : ReadingOrder(Area.Model(), IsTold)) {
        const Control* Panel = TitledPanelOf(*Each);
        const Control* Part = Panel == Group ? Each : Group == nullptr ? Panel : nullptr;
        QWidget* Widget = Part == nullptr ? nullptr : Area.WidgetOf(*Part);
        if (Widget != nullptr && !IsPassedOver(*Widget) && !Result.contains(Widget))
            Result << Widget;
    }
    return Result;
}

QList<QWidget*> PartsOf(const QWidget& Panel)
{
    return PartsOf(AreaOf(Panel), &ModelOf(Panel));
}

int IndexOf(const QList<QWidget*>& Parts, const QAccessibleInterface* Child)
{
    return static_cast<int>(Parts.indexOf(qobject_cast<QWidget*>(Child->object())));
}

QAccessibleInterface* InterfaceOf(const QList<QWidget*>& Parts, int Index)
{
    return QAccessible::queryAccessibleInterface(Parts.value(Index));
}

} // namespace

QAccessibleInterface* GroupOf(const QWidget& Which)
{
    const Control* Panel = TitledPanelOf(ModelOf(Which));
    QWidget* Group = Panel == nullptr ? nullptr : AreaOf(Which).WidgetOf(*Panel);
    return QAccessible::queryAccessibleInterface(Group == nullptr ? Which.parentWidget() : Group);
}

QAccessibleInterface* ControlInterface::parent() const
{
    return GroupOf(*widget());
}

CaptionInterface::CaptionInterface(QLabel& Which)
    : ControlInterface(Which, QAccessible::StaticText),
      Label(Which)
{
}

QString CaptionInterface::text(QAccessible::Text What) const
{
    return What == QAccessible::Name ? Label.text() : QString();
}

QString PictureInterface::text(QAccessible::Text What) const
{
    if (What != QAccessible::Name)
        return {};
    return ToQt(ShownIn(static_cast<const PictureControl&>(ModelOf(*widget()))));
}

QAccessible::State PictureInterface::state() const
{
    QAccessible::State Result = ControlInterface::state();
    Result.focusable = Result.readOnly = true;
    return Result;
}

ButtonInterface::ButtonInterface(QAbstractButton& Which)
    : ControlInterface(Which, QAccessible::Button),
      Button(Which)
{
}

QString ButtonInterface::text(QAccessible::Text What) const
{
    const auto* View = dynamic_cast<const ButtonView*>(&Button);
    return What == QAccessible::Description && View != nullptr ? View->Tip()
                                                               : ControlInterface::text(What);
}

QAccessible::State ButtonInterface::state() const
{
    QAccessible::State Result = ControlInterface::state();
    Result.pressed = Button.isDown();
    if (const auto* Entry = dynamic_cast<const MenuEntryView*>(&Button)) {
        Result.checkable = true;
        Result.checked = Entry->IsInHand();
    }
    return Result;
}

QStringList ButtonInterface::actionNames() const
{
    return QStringList{pressAction()} + ControlInterface::actionNames();
}

void ButtonInterface::doAction(const QString& Name)
{
    if (Name == pressAction())
        Button.click();
    else
        ControlInterface::doAction(Name);
}

QString PanelInterface::text(QAccessible::Text What) const
{
    return What == QAccessible::Name ? ToQt(TitleOf(ModelOf(*widget()))) : QString();
}

int PanelInterface::childCount() const
{
    return static_cast<int>(PartsOf(*widget()).size());
}

QAccessibleInterface* PanelInterface::child(int Index) const
{
    return InterfaceOf(PartsOf(*widget()), Index);
}

int PanelInterface::indexOfChild(const QAccessibleInterface* Child) const
{
    return IndexOf(PartsOf(*widget()), Child);
}

AreaInterface::AreaInterface(ScreenArea& Area) : QAccessibleWidget(&Area, QAccessible::Client) {}

int AreaInterface::childCount() const
{
    return static_cast<int>(PartsOf(static_cast<ScreenArea&>(*widget()), nullptr).size());
}

QAccessibleInterface* AreaInterface::child(int Index) const
{
    return InterfaceOf(PartsOf(static_cast<ScreenArea&>(*widget()), nullptr), Index);
}

int AreaInterface::indexOfChild(const QAccessibleInterface* Child) const
{
    return IndexOf(PartsOf(static_cast<ScreenArea&>(*widget()), nullptr), Child);
}

} // namespace orvane
