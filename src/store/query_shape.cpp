#include "store/query_shape.h"

#include "base/number_text.h"
#include "base/text.h"

#include <algorithm>
#include <iterator>

namespace orvane {

namespace {

constexpr std::size_t MostVariants = 16;

bool IsLiteral(const Token& Given)
{
    return Given.Kind == TokenKind::Text || Given.Kind == TokenKind::Number;
}

} // namespace

Literal LiteralAt(Tokens Query, std::size_t At)
{
    const std::string& Content = Query[At].Content;
    if (Query[At].Kind == TokenKind::Number) {
        const auto Number = ScaledFromText(Content, 0);
        if (!Number)
            ThrowUnreadable(Content);
        return {Literal::Form::Plain, {*Number}};
    }
    if (At == 0 || !Query[At - 1].Is("="))
        return {Literal::Form::Plain, {Content}};
    Literal Result{Literal::Form::Variants, {}};
    for (std::string& Variant : AccentedCaseVariants(Content, MostVariants))
        Result.Values.emplace_back(std::move(Variant));
    if (Result.Values.empty())
        return {Literal::Form::Folded, {FoldedCase(Content)}};
    return Result;
}

std::string ShapeOf(Tokens Query, std::vector<Value>& Parameters)
{
    std::string Shape;
    for (std::size_t At = 0; At < Query.size(); ++At) {
        Shape += ' ';
        if (!IsLiteral(Query[At])) {
            Shape += Query[At].Content;
            continue;
        }
        Literal Given = LiteralAt(Query, At);
        Shape += Query[At].Kind == TokenKind::Number      ? "#"
                 : Given.TheForm == Literal::Form::Folded ? "~"
                                                          : "";
        Shape.append(Given.Values.size(), '?');
        std::move(Given.Values.begin(), Given.Values.end(), std::back_inserter(Parameters));
    }
    return Shape;
}

std::vector<std::string> LookedFor(Tokens Query)
{
    std::vector<std::string> Values;
    for (const Token& Each : Query)
        if (IsLiteral(Each))
            Values.push_back(Each.Content);
    return Values;
}

} // namespace orvane
