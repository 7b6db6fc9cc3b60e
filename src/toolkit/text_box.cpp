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

void TextBox::OpenFor(NumberKind Kind)
{
    Accepts = Kind;
    Locked = false;
    BackColor = InputGrey;
}

void TextBox::Assigned(PropertyId Id)
{
    if (Id != PropertyId::Text)
        return;
    WaitsFor = nullptr;
    Stale = false;
}

void TextBox::Changed(PropertyId Id)
{
    if (Id == PropertyId::Text)
        Marked = Accepts != NumberKind::None && !IsNumber(Text, Accepts);
    Control::Changed(Id);
    if (Id == PropertyId::Text && OnChange)
        OnChange();
}

} // namespace orvane
