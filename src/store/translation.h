#pragma once

#include "store/query_shape.h"
#include "store/source.h"

#include <string>
#include <vector>

// Queries of the dialect as SQLite queries. What SQLite would do differently is settled here: names
// are resolved against the columns of the source, rows come in the order of insertion (saved
// queries: of their list table) behind the query's own ORDER BY, which sorts texts in French order.
namespace orvane {

struct Translation
{
    std::string Sql;
    std::string Source; // what is selected from
    std::vector<std::string>
        Columns;           // of the result, in order; a table's row key stands behind them
    std::string Table;     // set when the rows can be changed
    bool Distinct = false; // equal rows are to be dropped, the first one kept
};

// SELECT [DISTINCT] columns FROM source [WHERE condition] [ORDER BY column]. A condition compares
// columns with values: = and LIKE with texts, = and > with numbers, joined by AND, in brackets or
// not. Failure (FailureKind::Store) for anything else, as for each query here.
Translation TranslateSelect(Tokens Query, const SourceFinder& Find);

// DELETE * FROM table [WHERE condition].
std::string TranslateDelete(Tokens Query, const SourceFinder& Find);

// A saved query as a temporary view of its name. The text is a SELECT of SQLite's own whose columns
// are all written table.column, which is what the view calls them; its conditions compare numbers.
// Before them stand the places of a row in the tables, first table first, as hidden columns.
std::string ViewOf(const std::string& Name, const std::string& Text, const SourceFinder& Find);

// What the names of hidden columns begin with.
inline const std::string PlacePrefix = "#";

} // namespace orvane
