#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace orvane {

// Bytes that aren't a text.
struct Blob
{
    std::string Content;

    friend bool operator==(const Blob&, const Blob&) = default;
};

// What one cell holds: nothing, a whole number, a double, a text or bytes. A decimal that a double
// can't hold exactly comes as its text with a comma.
class Value
{
  public:
    Value() = default;
    Value(std::int64_t Number) : Content(Number) {}
    Value(double Number) : Content(Number) {}
    Value(std::string Text) : Content(std::move(Text)) {}
    Value(Blob Bytes) : Content(std::move(Bytes)) {}

    bool IsNull() const { return std::holds_alternative<std::monostate>(Content); }

    // Numbers with a decimal comma; the empty text for a null; two hexadecimal digits for a byte.
    std::string ToText() const;

    const std::variant<std::monostate, std::int64_t, double, std::string, Blob>& Raw() const
    {
        return Content;
    }

    friend bool operator==(const Value&, const Value&) = default;

  private:
    std::variant<std::monostate, std::int64_t, double, std::string, Blob> Content;
};

// A number text without needless zeros as SQLite holds it best: whole, a double that gives the same
// digits back, or, past a double's 15 digits, the text with a comma, which no affinity turns into a
// number.
Value ExactNumber(const std::string& Text);

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
