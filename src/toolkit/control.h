#pragma once

#include "toolkit/colour.h"
#include "toolkit/property.h"

#include <string>

namespace orvane {

class Screen;
class TextBox;

enum class Alignment { Left, Centre, Right };

enum class ControlKind {
    Line,
    Shape,
    Label,
    TextBox,
    ComboBox,
    ListBox,
    PictureBox,
    Image,
    Button,
    SideMenu,
};

// Anything that stands on a screen under a name. Geometry is in twips, 15 to the pixel at 96 dots
// per inch, font sizes are in points. Which of the properties a kind draws is the view's business.
class Control : private PropertyOwner
{
  public:
    Control(Screen& Owner, ControlKind Kind, std::string Name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    const std::string& Name() const { return TheName; }
    ControlKind Kind() const { return TheKind; }
    Screen& Owner() const { return TheOwner; }

    Property<bool> Visible{*this, PropertyId::Visible, true};
    Property<int> Left{*this, PropertyId::Left};
    Property<int> Top{*this, PropertyId::Top};
    Property<int> Width{*this, PropertyId::Width};
    Property<int> Height{*this, PropertyId::Height};
    Property<double> FontSize{*this, PropertyId::FontSize, 9.0};
    Property<Colour> ForeColor{*this, PropertyId::ForeColor, Black};
    Property<Colour> BackColor{*this, PropertyId::BackColor, White};
    TextProperty Tip{*this, PropertyId::Tip}; // what a hovering mouse and a reader tell

    // How a screen reader names a box or a list: no other that is visible with it is called so.
    TextProperty Called{*this, PropertyId::Called};

    // The box that names the row this one stands in, nothing outside rows. Where it is empty, so is
    // the row, whatever figures it keeps.
    const TextBox* RowName = nullptr;

  protected:
    PropertyOwner& AsOwner() { return *this; }
    void Changed(PropertyId Id) override;

  private:
    Screen& TheOwner;
    ControlKind TheKind;
    std::string TheName;
};

} // namespace orvane
