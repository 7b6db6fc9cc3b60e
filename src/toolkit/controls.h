#pragma once

#include "toolkit/control.h"
#include "toolkit/picture.h"

#include <functional>
#include <string>

// The controls that show and are clicked; those that hold texts and lists have headers of their
// own.
namespace orvane {

class Label : public Control
{
  public:
    Label(Screen& Owner, std::string Name) : Control(Owner, ControlKind::Label, std::move(Name)) {}

    TextProperty Caption{AsOwner(), PropertyId::Caption};
    Property<bool> Bold{AsOwner(), PropertyId::Bold};
    Alignment Align = Alignment::Left;
};

class Shape : public Control
{
  public:
    Shape(Screen& Owner, std::string Name) : Control(Owner, ControlKind::Shape, std::move(Name)) {}

    Property<Colour> BorderColor{AsOwner(), PropertyId::BorderColor, Black};
};

// A line has four ends and no box: Left, Top, Width and Height stay unused.
class Line : public Control
{
  public:
    Line(Screen& Owner, std::string Name) : Control(Owner, ControlKind::Line, std::move(Name)) {}

    Property<int> X1{AsOwner(), PropertyId::Ends};
    Property<int> X2{AsOwner(), PropertyId::Ends};
    Property<int> Y1{AsOwner(), PropertyId::Ends};
    Property<int> Y2{AsOwner(), PropertyId::Ends};
    Property<Colour> BorderColor{AsOwner(), PropertyId::BorderColor, Black};
};

// A picture that may be clicked.
class PictureControl : public Control
{
  public:
    using Control::Control;

    Property<orvane::Picture> Picture{AsOwner(), PropertyId::Picture};
    std::function<void()> OnClick;

    // What there is to see in it, as another control says; a picture with neither this nor a tip
    // is an ornament.
    const TextProperty* Depicts = nullptr;
};

class Image : public PictureControl
{
  public:
    Image(Screen& Owner, std::string Name)
        : PictureControl(Owner, ControlKind::Image, std::move(Name))
    {
    }
};

class PictureBox : public PictureControl
{
  public:
    PictureBox(Screen& Owner, std::string Name)
        : PictureControl(Owner, ControlKind::PictureBox, std::move(Name))
    {
    }
};

// A picture button. Words stand for the picture: for a screen reader, and on a plain button as long
// as there is no picture.
class Button : public PictureControl
{
  public:
    Button(Screen& Owner, std::string Name)
        : PictureControl(Owner, ControlKind::Button, std::move(Name))
    {
    }

    TextProperty Words{AsOwner(), PropertyId::Caption};

    std::function<std::string()> TipNow; // where the tip depends on the moment

    // What presses it wherever the focus is on its screen, unless something else there takes the
    // key: "Ctrl+Return". Its tip tells it.
    std::string Key;
};

} // namespace orvane
