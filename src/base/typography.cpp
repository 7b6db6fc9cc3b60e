#include "base/typography.h"

#include <array>
#include <string_view>
#include <utility>

namespace orvane {

std::string Typeset(std::string Text)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 6> Pairs{{
        {"« ", "«\u00A0"},
        {" »", "\u00A0»"},
        {" :", "\u00A0:"},
        {" ;", "\u00A0;"},
        {" ?", "\u00A0?"},
        {" !", "\u00A0!"},
    }};
    for (const auto& [Plain, Fine] : Pairs)
        for (std::size_t At = 0; (At = Text.find(Plain, At)) != std::string::npos;)
            Text.replace(At, Plain.size(), Fine);
    return Text;
}

} // namespace orvane
