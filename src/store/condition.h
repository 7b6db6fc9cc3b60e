#pragma once

#include "store/sql_text.h"
#include "store/value.h"

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

// Conditions of the dialect as SQLite conditions. A comparison of texts ignores case, for accented
// letters too, and minds accents. SQLite's own NOCASE covers the ASCII letters and can use an
// ordinary index; accented letters are covered by asking for each way to write them.
namespace orvane {

using Tokens = std::span<const Token>;

// How a literal takes part in its query: the values to bind for it, and in which form.
struct Literal
{
    enum class Form { Plain, Variants, Folded };

    Form TheForm = Form::Plain;
    std::vector<Value> Values;
};

// The literal at Query[At].
Literal LiteralAt(Tokens Query, std::size_t At);

// SQL of a column from the name by which the query calls it.
using ColumnResolver = std::function<std::string(const std::string& Name)>;

enum class Literals {
    Bound,   // one question mark for each value
    Written, // spelled out, for the text of a saved query
};

// SQL of the tokens from Begin to End (not included) of a query.
std::string TranslateCondition(Tokens Query, std::size_t Begin, std::size_t End,
                               const ColumnResolver& Resolve, Literals How);

} // namespace orvane
