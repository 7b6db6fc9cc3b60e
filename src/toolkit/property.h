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
    Called,
    Stored,
    WhenEmpty,
};

// Whoever owns properties and hears of their changes.
class PropertyOwner
{
  public:
    virtual void Changed(PropertyId Id) = 0;
    virtual void Assigned(PropertyId) {} // a text was written, perhaps the same one

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

// A text of a control: read, joined and compared as a text is.
// cbo_Objet.Text + " " + cbo_Degré.Text
class TextProperty
{
  public:
    TextProperty(PropertyOwner& Owner, PropertyId Id, std::string Initial = {})
        : Owner(Owner),
          Id(Id),
          Value(std::move(Initial))
    {
    }
    TextProperty(const TextProperty&) = delete;

    TextProperty& operator=(const std::string& Given)
    {
        Owner.Assigned(Id);
        if (Value != Given) {
            Value = Given;
            Owner.Changed(Id);
        }
        return *this;
    }
    TextProperty& operator=(const TextProperty& Other) { return *this = Other.Value; }

    // The text of a screen's definition: nobody is told.
    void StartWith(std::string Initial) { Value = std::move(Initial); }

    operator const std::string&() const { return Value; }
    operator std::string_view() const { return Value; }
    bool empty() const { return Value.empty(); }

    friend bool operator==(const TextProperty& Left, std::string_view Right)
    {
        return Left.Value == Right;
    }
    friend bool operator==(const TextProperty& Left, const TextProperty& Right)
    {
        return Left.Value == Right.Value;
    }
    friend std::string operator+(const TextProperty& Left, std::string_view Right)
    {
        return std::string(Left.Value).append(Right);
    }
    friend std::string operator+(std::string_view Left, const TextProperty& Right)
    {
        return std::string(Left).append(Right.Value);
    }
    friend std::string operator+(const TextProperty& Left, const TextProperty& Right)
    {
        return Left.Value + Right.Value;
    }

  private:
    PropertyOwner& Owner;
    PropertyId Id;
    std::string Value;
};

} // namespace orvane
