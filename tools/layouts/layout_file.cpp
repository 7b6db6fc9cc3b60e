#include "layouts/layout_file.h"

#include "catalogue/catalogue.h"
#include "tables/tsv.h"

#include <fstream>

namespace orvane::tools {

namespace {

void WriteLine(std::ostream& Stream, const std::vector<std::string>& Cells)
{
    for (std::size_t i = 0; i < Cells.size(); ++i)
        Stream << (i == 0 ? "" : "\t") << Cells[i];
    Stream << '\n';
}

} // namespace

std::vector<std::string> LayoutColumns()
{
    std::vector<std::string> Names;
    for (const ColumnDefinition& Column : LayoutTable("").Columns)
        Names.push_back(Column.Name);
    return Names;
}

void LayoutFile::Write(const std::filesystem::path& File) const
{
    std::filesystem::create_directories(File.parent_path());
    std::ofstream Stream(File);
    WriteLine(Stream, LayoutColumns());
    for (const auto& Row : Rows)
        WriteLine(Stream, Row);
    if (!Stream.flush())
        throw SourceError(File.string() + " : écriture impossible");
}

} // namespace orvane::tools
