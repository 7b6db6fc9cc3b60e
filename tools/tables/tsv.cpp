#include "tables/tsv.h"

#include <fstream>

namespace orvane::tools {

namespace {

std::vector<std::string> Split(const std::string& Line)
{
    std::vector<std::string> Cells;
    std::size_t Start = 0;
    for (std::size_t Tab = 0; Tab != std::string::npos; Start = Tab + 1) {
        Tab = Line.find('\t', Start);
        Cells.push_back(Line.substr(Start, Tab == std::string::npos ? Tab : Tab - Start));
    }
    return Cells;
}

} // namespace

TsvTable ReadTsv(const std::filesystem::path& File)
{
    std::ifstream Stream(File);
    if (!Stream)
        throw SourceError(File.string() + " : fichier introuvable ou illisible");
    TsvTable Table;
    std::string Line;
    for (int Number = 1; std::getline(Stream, Line); ++Number) {
        if (!Line.empty() && Line.back() == '\r')
            Line.pop_back();
        if (Line.find_first_not_of(" \t") == std::string::npos || Line.front() == '#')
            continue;
        TsvTable::Row Row{File.filename().string() + ", ligne " + std::to_string(Number),
                          Split(Line)};
        if (Table.Columns.empty()) {
            Table.Columns = std::move(Row.Cells);
            continue;
        }
        if (Row.Cells.size() != Table.Columns.size())
            throw SourceError(Row.Place + " : " + std::to_string(Row.Cells.size()) +
                              " colonnes au lieu de " + std::to_string(Table.Columns.size()));
        Table.Rows.push_back(std::move(Row));
    }
    return Table;
}

} // namespace orvane::tools
