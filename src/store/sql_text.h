#pragma once

#include <string>
#include <string_view>
#include <vector>

// The words of a query in the store's dialect.
namespace orvane {

// A value between double quotes, as data: a double quote inside it is doubled.
std::string Quoted(std::string_view Text);

// A name for SQLite, accents and dots included.
std::string QuotedName(std::string_view Name);

// A name for a query of the dialect, whatever signs it has.
std::string Bracketed(std::string_view Name);

enum class TokenKind { Word, Text, Number, Symbol };

struct Token
{
    TokenKind Kind = TokenKind::Symbol;
    std::string Content; // names and texts without their quotes or brackets

    // Whether this is the keyword, whatever its case.
    bool Is(std::string_view Keyword) const;
};

// Failure (FailureKind::Store) for a sign that the dialect doesn't have, and for a text or bracket
// that doesn't end.
std::vector<Token> Tokenize(std::string_view Sql);

// Failure (FailureKind::Store) for a query that isn't of the dialect, about the file that it is
// sent to.
[[noreturn]] void ThrowUnreadable(std::string_view Sql);

// What a saved query calls a table that it joins several times, from 1: "Matériaux", "Matériaux_1",
// "Matériaux_2"...
inline std::string JoinName(const std::string& Table, int i)
{
    return i == 1 ? Table : Table + "_" + std::to_string(i - 1);
}

} // namespace orvane
