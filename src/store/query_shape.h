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
// of texts ignores case, for accented letters too, and minds accents.
struct Literal
{
    // Plain: a number, or the pattern of a LIKE. Variants: SQLite's own NOCASE covers the ASCII
    // letters and can use an ordinary index, and each way to write the accented ones is asked for.
    // Folded: where the ways are too many, each row's text is folded and compared, which would do
    // for every text but reads the whole table. A name with two accents, found among 300 rows: 4 µs
    // by variants, 55 µs folded, 130 µs by LIKE; among a hundred times as many: 4 µs, 5.4 ms, 14
    // ms.
    enum class Form { Plain, Variants, Folded };

    Form TheForm = Form::Plain;
    std::vector<Value> Values;
};

// The literal at Query[At]. Failure (FailureKind::Store) for a number that no column holds.
Literal LiteralAt(Tokens Query, std::size_t At);

// A query's words, with each literal as the question marks that it takes. Two texts of one shape
// share a prepared statement. The literals' values go to Parameters, in order.
std::string ShapeOf(Tokens Query, std::vector<Value>& Parameters);

// The values that a query looks for, as a message shows them.
std::vector<std::string> LookedFor(Tokens Query);

} // namespace orvane
