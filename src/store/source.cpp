#include "store/source.h"

#include "base/text.h"

namespace orvane {

namespace {

// Position of the only folded name that Fits.
template <class Predicate>
int OnlyOne(const std::vector<std::string>& Columns, Predicate Fits)
{
    int Found = -1;
    for (std::size_t i = 0; i < Columns.size(); ++i) {
        if (!Fits(FoldedCase(Columns[i])))
            continue;
        if (Found >= 0)
            return -1;
        Found = static_cast<int>(i);
    }
    return Found;
}

} // namespace

int FindColumn(const std::vector<std::string>& Columns, std::string_view SourceName,
               std::string_view Name)
{
    for (std::size_t i = 0; i < Columns.size(); ++i)
        if (Columns[i] == Name)
            return static_cast<int>(i);
    const std::string Wanted = FoldedCase(Name);
    if (const int Same =
            OnlyOne(Columns, [&](const std::string& Column) { return Column == Wanted; });
        Same >= 0)
        return Same;
    if (Wanted.find('.') == std::string::npos)
        return OnlyOne(Columns,
                       [&](const std::string& Column) { return Column.ends_with("." + Wanted); });
    const std::string Prefix = FoldedCase(SourceName) + ".";
    return OnlyOne(Columns, [&](const std::string& Column) { return Prefix + Column == Wanted; });
}

int ColumnNames::Find(std::string_view Name) const
{
    const auto Remembered = Known.find(Name);
    if (Remembered != Known.end())
        return Remembered->second;
    return Known[std::string(Name)] = FindColumn(Names, SourceName, Name);
}

} // namespace orvane
