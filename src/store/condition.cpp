#include "store/condition.h"

#include "base/number_text.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace orvane {

namespace {

constexpr std::size_t MostVariants = 16;

bool IsKeyword(const Token& Word)
{
    constexpr std::array Keywords{"AND", "OR", "NOT", "IS", "NULL", "IN", "BETWEEN"};
    return std::ranges::any_of(Keywords, [&](const char* Keyword) { return Word.Is(Keyword); });
}

bool IsSymbol(const Token& Given, std::string_view Symbol)
{
    return Given.Kind == TokenKind::Symbol && Given.Content == Symbol;
}

bool IsEquality(const Token& Given)
{
    return IsSymbol(Given, "=") || IsSymbol(Given, "<>");
}

// A text that a column is compared with: column, = or <>, text.
bool IsComparedText(Tokens Query, std::size_t At)
{
    return At >= 2 && Query[At].Kind == TokenKind::Text && IsEquality(Query[At - 1]) &&
           Query[At - 2].Kind == TokenKind::Word;
}

Value NumberOf(const std::string& Text)
{
    const auto* End = Text.data() + Text.size();
    std::int64_t Whole = 0;
    if (const auto Read = std::from_chars(Text.data(), End, Whole);
        Read.ec == std::errc() && Read.ptr == End)
        return Whole;
    double Number = 0;
    std::from_chars(Text.data(), End, Number);
    return Number;
}

std::string Written(const Value& Given)
{
    if (std::holds_alternative<std::string>(Given.Raw())) {
        std::string Text = Given.ToText();
        for (std::size_t At = 0; (At = Text.find('\'', At)) != std::string::npos; At += 2)
            Text.insert(At, 1, '\'');
        return "'" + Text + "'";
    }
    std::string Number = Given.ToText();
    std::ranges::replace(Number, ',', '.');
    return Number;
}

std::string SqlOf(const Literal& Given, Literals How)
{
    std::string Sql;
    for (const Value& Each : Given.Values)
        Sql += (Sql.empty() ? "" : ", ") + (How == Literals::Bound ? "?" : Written(Each));
    return Sql;
}

std::string Comparison(const std::string& Column, bool Equal, const Literal& Text, Literals How)
{
    const std::string Sql = SqlOf(Text, How);
    if (Text.TheForm == Literal::Form::Folded)
        return "fold_case(" + Column + (Equal ? ") = " : ") <> ") + Sql;
    const std::string NoCase = Column + " COLLATE NOCASE ";
    if (Text.Values.size() == 1)
        return NoCase + (Equal ? "= " : "<> ") + Sql;
    return NoCase + (Equal ? "IN (" : "NOT IN (") + Sql + ")";
}

} // namespace

Literal LiteralAt(Tokens Query, std::size_t At)
{
    const std::string& Content = Query[At].Content;
    if (Query[At].Kind == TokenKind::Number)
        return {Literal::Form::Plain, {NumberOf(Content)}};
    if (!IsComparedText(Query, At))
        return {Literal::Form::Plain, {Content}};
    Literal Result{Literal::Form::Variants, {}};
    for (std::string& Variant : AccentedCaseVariants(Content, MostVariants))
        Result.Values.emplace_back(std::move(Variant));
    if (Result.Values.empty())
        return {Literal::Form::Folded, {FoldedCase(Content)}};
    return Result;
}

std::string TranslateCondition(Tokens Query, std::size_t Begin, std::size_t End,
                               const ColumnResolver& Resolve, Literals How)
{
    std::string Sql;
    for (std::size_t At = Begin; At < End; ++At) {
        const Token& Current = Query[At];
        const bool HasPair = At + 2 < End && Query[At + 2].Kind == TokenKind::Text;
        Sql += Sql.empty() ? "" : " ";
        if (Current.Kind == TokenKind::Symbol || IsKeyword(Current))
            Sql += Current.Content;
        else if (Current.Kind != TokenKind::Word)
            Sql += SqlOf(LiteralAt(Query, At), How);
        else if (HasPair && IsEquality(Query[At + 1])) {
            Sql += Comparison(Resolve(Current.Content), IsSymbol(Query[At + 1], "="),
                              LiteralAt(Query, At + 2), How);
            At += 2;
        } else if (HasPair && Query[At + 1].Is("LIKE")) {
            Sql += "text_like(" + Resolve(Current.Content) + ", " +
                   SqlOf(LiteralAt(Query, At + 2), How) + ")";
            At += 2;
        } else
            Sql += Resolve(Current.Content);
    }
    return Sql;
}

} // namespace orvane
