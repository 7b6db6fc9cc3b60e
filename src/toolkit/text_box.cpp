#include "toolkit/text_box.h"

#include "base/montant.h"
#include "base/number_text.h"

namespace orvane {

namespace {

bool IsNumber(const std::string& Text, NumberKind Kind)
{
    return Kind == NumberKind::Entier16 ? Entier16FromText(Text).has_value()
                                        : Montant::FromText(Text).has_value();
}

} // namespace

TextBox::TextBox(Screen& Owner, std::string Name)
    : Control(Owner, ControlKind::TextBox, std::move(Name))
{
}

TextBox::TextProperty& TextBox::TextProperty::operator=(const std::string& Given)
{
    Box.Stale = false;
    if (Value != Given) {
        Value = Given;
        Box.TextChanged();
    }
    return *this;
}

void TextBox::OpenFor(NumberKind Kind)
{
    Accepts = Kind;
    Locked = false;
    BackColor = InputGrey;
}

void TextBox::TextChanged()
{
    Marked = Accepts != NumberKind::None && !IsNumber(Text, Accepts);
    Changed(PropertyId::Text);
    if (OnChange)
        OnChange();
}

} // namespace orvane
