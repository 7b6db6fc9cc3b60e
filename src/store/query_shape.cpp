#include "store/query_shape.h"

#include <algorithm>
#include <iterator>

namespace orvane {

std::string ShapeOf(Tokens Query, std::vector<Value>& Parameters)
{
    std::string Shape;
    for (std::size_t At = 0; At < Query.size(); ++At) {
        Shape += ' ';
        if (Query[At].Kind != TokenKind::Text && Query[At].Kind != TokenKind::Number) {
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
        if (Each.Kind == TokenKind::Text || Each.Kind == TokenKind::Number)
            Values.push_back(Each.Content);
    return Values;
}

} // namespace orvane
