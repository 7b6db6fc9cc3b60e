#pragma once

class QWidget;

namespace orvane {

class Control;
class ControlView;
class User;

// The widget for a control of any kind, showing it as it stands, owned by Parent.
ControlView* MakeView(Control& Model, User& TheUser, QWidget* Parent);

} // namespace orvane
