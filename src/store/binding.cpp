#include "store/binding.h"

#include <SQLiteCpp/Statement.h>

namespace orvane {

void BindValue(SQLite::Statement& Statement, int At, const Value& Given)
{
    if (const auto* Whole = std::get_if<std::int64_t>(&Given.Raw()))
        Statement.bind(At, *Whole);
    else if (const auto* Number = std::get_if<double>(&Given.Raw()))
        Statement.bind(At, *Number);
    else if (const auto* Text = std::get_if<std::string>(&Given.Raw()))
        Statement.bind(At, *Text);
    else if (const auto* Bytes = std::get_if<Blob>(&Given.Raw()))
        Statement.bind(At, Bytes->Content.data(), static_cast<int>(Bytes->Content.size()));
    else
        Statement.bind(At);
}

} // namespace orvane
