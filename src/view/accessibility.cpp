#include "view/accessibility.h"

#include "view/announcer.h"
#include "view/button_view.h"
#include "view/combo_box_view.h"
#include "view/label_view.h"
#include "view/line_interface.h"
#include "view/list_box_view.h"
#include "view/list_table.h"
#include "view/menu_bar_view.h"
#include "view/picture_view.h"
#include "view/screen_area.h"
#include "view/shape_view.h"
#include "view/text_box_view.h"

namespace orvane {

namespace {

QAccessibleInterface* InterfaceOf(const QString&, QObject* Object)
{
    if (auto* List = dynamic_cast<ListBoxView*>(Object))
        return new ListTable(*List);
    if (auto* Area = dynamic_cast<ScreenArea*>(Object))
        return new AreaInterface(*Area);
    if (auto* Panel = dynamic_cast<ShapeView*>(Object))
        return new PanelInterface(*Panel);
    if (auto* Label = dynamic_cast<LabelView*>(Object))
        return new CaptionInterface(*Label);
    if (auto* Box = dynamic_cast<TextBoxView*>(Object))
        return new LineInterface(*Box, QAccessible::EditableText, *Box);
    if (auto* Box = dynamic_cast<ComboBoxView*>(Object))
        return new ComboInterface(*Box);
    if (auto* Picture = dynamic_cast<PictureView*>(Object); Picture && !Picture->IsClickable())
        return new PictureInterface(*Picture);
    if (auto* Bar = dynamic_cast<MenuBarView*>(Object))
        return new QAccessibleWidget(Bar, QAccessible::Grouping);
    if (auto* Said = dynamic_cast<Announcer*>(Object))
        return new QAccessibleWidget(Said, QAccessible::Notification);
    if (dynamic_cast<ControlView*>(Object) != nullptr ||
        dynamic_cast<MenuEntryView*>(Object) != nullptr)
        if (auto* Button = qobject_cast<QAbstractButton*>(Object))
            return new ButtonInterface(*Button);
    return nullptr;
}

} // namespace

void InstallInterfaces()
{
    QAccessible::installFactory(InterfaceOf);
}

} // namespace orvane
