#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace orvane {

// What one cell holds: nothing, a whole number, a double or a text. A decimal that a double can't
// hold exactly comes as its text with a comma.
class Value
{
  public:
    Value() = default;
    Value(std::int64_t Number) : Content(Number) {}
    Value(double Number) : Content(Number) {}
    Value(std::string Text) : Content(std::move(Text)) {}

    bool IsNull() const { return std::holds_alternative<std::monostate>(Content); }

    // Numbers with a decimal comma; the empty text for a null.
    std::string ToText() const;

    const std::variant<std::monostate, std::int64_t, double, std::string>& Raw() const
    {
        return Content;
    }

    friend bool operator==(const Value&, const Value&) = default;

  private:
    std::variant<std::monostate, std::int64_t, double, std::string> Content;
};

// How a column holds its values, read from its declared SQL type.
class ColumnKind
{
  public:
    // "INTEGER", "DECIMAL(19,4)", "TEXT"; any other type holds anything.
    explicit ColumnKind(std::string_view DeclaredType);

    // The value as this column holds it. A text written to a number column is converted by the
    // decimal-comma rule, more than four decimals by ties to even.
    // Failure (FailureKind::RefusedNumber) for a text that is no number.
    Value Convert(const Value& Given) const;

  private:
    enum class Family { Any, Text, Whole, Decimal };

    Family TheFamily;
};

} // namespace orvane
