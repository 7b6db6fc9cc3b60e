#include "scenario/program_folder.h"

#include "scenario/lines.h"
#include "store/store.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <fstream>

namespace orvane::scenario {

namespace fs = std::filesystem;

namespace {

constexpr auto Away = ".absent";

} // namespace

ProgramFolder::ProgramFolder(fs::path Path) : ThePath(std::move(Path)) {}
ProgramFolder::~ProgramFolder() = default;

void ProgramFolder::Change(const std::string& File, const std::string& Sql)
{
    SQLite::Database((ThePath / File).string(), SQLite::OPEN_READWRITE).exec(Sql);
}

void ProgramFolder::Lose(const std::string& File)
{
    fs::rename(ThePath / File, ThePath / (File + Away));
}

void ProgramFolder::GiveBack(const std::string& File)
{
    fs::rename(ThePath / (File + Away), ThePath / File);
}

void ProgramFolder::Lock(const std::string& File)
{
    auto& Held = Locks[File] =
        std::make_unique<SQLite::Database>((ThePath / File).string(), SQLite::OPEN_READWRITE);
    Held->exec("BEGIN EXCLUSIVE");
}

void ProgramFolder::Unlock(const std::string& File)
{
    Locks.erase(File);
}

void ProgramFolder::Write(const std::string& File, const std::string& Content)
{
    fs::create_directories((ThePath / File).parent_path());
    std::ofstream(ThePath / File, std::ios::binary | std::ios::trunc) << Content;
}

std::string ProgramFolder::Stored(const std::string& What) const
{
    const auto [Place, Listed] = Halves(What, "(");
    const auto [Source, Condition] = Halves(Place, " où ");
    constexpr std::string_view Ending = ".mdb";
    const auto [Stem, Table] = Halves(Source, std::string(Ending) + "/");
    const std::string File = Stem + std::string(Ending);
    const auto Columns = Parts(Listed.substr(0, Listed.find(')')), ",");
    Store Bases;
    const Database Base = Bases.Open(ThePath / File);
    std::vector<std::string> Rows;
    for (Recordset Found = Base.OpenRecordset("SELECT * FROM " + Table +
                                              (Condition.empty() ? "" : " WHERE " + Condition));
         !Found.Eof(); Found.MoveNext()) {
        std::vector<std::string> Cells;
        for (const std::string& Column : Columns)
            Cells.push_back(Found.TextOrEmpty(Column));
        Rows.push_back(Joined(Cells, " | "));
    }
    return Joined(Rows, " / ");
}

} // namespace orvane::scenario
