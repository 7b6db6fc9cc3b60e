#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace orvane {

// What an observer can be told to have changed.
enum class PropertyId {
    Text,
    Caption,
    Visible,
    Locked,
    Left,
    Top,
    Width,
    Height,
    FontSize,
    Bold,
    ForeColor,
    BackColor,
    BorderColor,
    Ends, // of a line
    Picture,
    Icon,
    Items,
    ListIndex,
    Marked,
    Stale,
    Tip,
};

// Whoever owns properties and hears of their changes.
class PropertyOwner
{
  public:
    virtual void Changed(PropertyId Id) = 0;

  protected:
    ~PropertyOwner() = default;
};

// A value that is assigned and read like a plain member. Assigning another value tells the owner;
// assigning the same one does nothing.
template <class Type>
class Property
{
  public:
    Property(PropertyOwner& Owner, PropertyId Id, Type Initial = {})
        : Owner(Owner),
          Id(Id),
          Value(std::move(Initial))
    {
    }
    Property(const Property&) = delete;

    Property& operator=(Type Given)
    {
        if (Value != Given) {
            Value = std::move(Given);
            Owner.Changed(Id);
        }
        return *this;
    }
    Property& operator=(const Property& Other) { return *this = Other.Value; }

    operator const Type&() const { return Value; }
    const Type& operator()() const { return Value; }

    friend bool operator==(const Property& Left, const Type& Right) { return Left.Value == Right; }

  private:
    PropertyOwner& Owner;
    PropertyId Id;
    Type Value;
};

// Texts are joined as handlers write them: cbo_Objet.Text + " " + cbo_Degré.Text.
inline std::string operator+(const std::string& Left, const Property<std::string>& Right)
{
    return Left + Right();
}
inline std::string operator+(const Property<std::string>& Left, const std::string& Right)
{
    return Left() + Right;
}

} // namespace orvane
