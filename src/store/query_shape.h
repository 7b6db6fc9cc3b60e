#pragma once

#include "store/sql_text.h"
#include "store/value.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

// The values that a query looks for, and what is left of it without them.
namespace orvane {

using Tokens = std::span<const Token>;

// How a literal takes part in its query: the values to bind for it, and in which form. A comparison
// of texts ignores case, for accented letters too, and minds accents. SQLite's own NOCASE covers
// the ASCII letters and can use an ordinary index; accented letters are covered by asking for each
// way to write them.
struct Literal
{
    enum class Form { Plain, Variants, Folded };

    Form TheForm = Form::Plain;
    std::vector<Value> Values;
};

// The literal at Query[At]. Failure (Kind::Store) for a number that no column holds.
Literal LiteralAt(Tokens Query, std::size_t At);

// A query's words, with each literal as the question marks that it takes. Two texts of one shape
// share a prepared statement. The literals' values go to Parameters, in order.
std::string ShapeOf(Tokens Query, std::vector<Value>& Parameters);

// The values that a query looks for, as a message shows them.
std::vector<std::string> LookedFor(Tokens Query);

} // namespace orvane
