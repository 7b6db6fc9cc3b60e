#include "view/view_factory.h"

#include "toolkit/screen.h"
#include "view/button_view.h"
#include "view/combo_box_view.h"
#include "view/label_view.h"
#include "view/list_box_view.h"
#include "view/picture_view.h"
#include "view/shape_view.h"
#include "view/side_menu_view.h"
#include "view/text_box_view.h"

namespace orvane {

namespace {

ControlView* Made(Control& Model, User& TheUser, QWidget* Parent)
{
    switch (Model.Kind()) {
    case ControlKind::Line:
        return new LineView(static_cast<Line&>(Model), Parent);
    case ControlKind::Shape:
        return new ShapeView(static_cast<Shape&>(Model), Parent);
    case ControlKind::Label:
        return new LabelView(static_cast<Label&>(Model), Parent);
    case ControlKind::TextBox:
        return new TextBoxView(static_cast<TextBox&>(Model), TheUser, Parent);
    case ControlKind::ComboBox:
        return new ComboBoxView(static_cast<ComboBox&>(Model), TheUser, Parent);
    case ControlKind::ListBox:
        return new ListBoxView(static_cast<ListBox&>(Model), TheUser, Parent);
    case ControlKind::PictureBox:
    case ControlKind::Image:
        return new PictureView(static_cast<PictureControl&>(Model), TheUser, Parent);
    case ControlKind::Button:
        return new ButtonView(static_cast<Button&>(Model), TheUser, Parent);
    case ControlKind::SideMenu:
        return new SideMenuView(static_cast<SideMenu&>(Model), TheUser, Parent);
    }
    return nullptr;
}

} // namespace

ControlView* MakeView(Control& Model, User& TheUser, QWidget* Parent)
{
    ControlView* Result = Made(Model, TheUser, Parent);
    Result->FollowAll();
    return Result;
}

} // namespace orvane
