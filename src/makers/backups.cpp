#include "makers/backups.h"

#include "base/failure.h"
#include "makers/replacement.h"
#include "store/file_version.h"
#include "store/guard.h"
#include "store/sqlite_error.h"

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <array>
#include <ctime>
#include <set>
#include <sqlite3.h>

namespace orvane {

namespace fs = std::filesystem;

namespace {

constexpr int BusyMilliseconds = 250;
constexpr std::size_t Kept = 10;
constexpr std::size_t DayLength = 10;    // "2026-11-23"
constexpr std::size_t MomentLength = 19; // with the time

fs::path FolderOf(const fs::path& File)
{
    return File.parent_path() / "Sauvegardes";
}

// "Panier 2026-11-23 21-04-05.mdb"
fs::path NameOf(const fs::path& File, const std::string& Quand)
{
    fs::path Name = File.stem();
    Name += " " + Quand;
    Name += File.extension();
    return FolderOf(File) / Name;
}

bool IsWhole(SQLite::Database& Base)
{
    return Base.execAndGet("PRAGMA quick_check(1)").getString() == "ok";
}

// The whole content, in one durable write: SQLite's own backup reads what is committed alone.
void CopyContent(SQLite::Database& From, const fs::path& Into)
{
    SQLite::Database To(Into.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE,
                        BusyMilliseconds);
    const int Given = SQLite::Backup(To, From).executeStep();
    if (Given != SQLITE_DONE)
        throw SQLite::Exception("backup", Given);
}

void KeepTheLast(const fs::path& File)
{
    std::vector<Copie> All = CopiesDe(File);
    std::set<std::string> Days;
    std::ranges::stable_partition(All, [&](const Copie& Each) {
        return Days.insert(Each.Quand.substr(0, DayLength)).second;
    });
    std::error_code Ignored;
    for (std::size_t i = Kept; i < All.size(); ++i)
        fs::remove(All[i].File, Ignored);
}

} // namespace

std::string Maintenant()
{
    const std::time_t Now = std::time(nullptr);
    std::tm Parts{};
    localtime_r(&Now, &Parts);
    std::array<char, MomentLength + 1> Text{};
    std::strftime(Text.data(), Text.size(), "%Y-%m-%d %H-%M-%S", &Parts);
    return Text.data();
}

std::vector<Copie> CopiesDe(const fs::path& File)
{
    std::vector<Copie> All;
    std::error_code Error;
    for (fs::directory_iterator At(FolderOf(File), Error), End; !Error && At != End;
         At.increment(Error)) {
        const std::string Name = DisplayName(At->path().stem());
        if (Name.size() <= MomentLength)
            continue;
        const std::string Quand = Name.substr(Name.size() - MomentLength);
        if (At->path() == NameOf(File, Quand))
            All.push_back({At->path(), Quand});
    }
    std::ranges::sort(All, std::ranges::greater(), &Copie::Quand);
    return All;
}

void Sauvegarder(const fs::path& File, const std::string& Quand)
{
    RequireFile(File);
    const std::vector<Copie> Before = CopiesDe(File);
    std::error_code Error;
    const auto Changed = fs::last_write_time(File, Error);
    const auto IsLatest = [&] {
        return !Before.empty() && fs::last_write_time(Before.front().File, Error) == Changed;
    };
    if (Error || IsLatest())
        return;
    fs::create_directory(FolderOf(File), Error);
    fs::path Made = FolderOf(File) / File.filename();
    Made += ".partiel";
    fs::remove(Made, Error); // what a run that was killed left
    Translated(File, [&] {
        SQLite::Database Base(File.string(), SQLite::OPEN_READWRITE, BusyMilliseconds);
        Distrust(Base);
        if (IsWhole(Base))
            CopyContent(Base, Made);
    });
    if (!fs::exists(Made, Error))
        return;
    fs::last_write_time(Made, Changed, Error); // by which the next one tells whether it is needed
    fs::rename(Made, NameOf(File, Quand), Error);
    if (Error)
        throw Failure(FailureKind::WriteFailed, DisplayName(File), Error.message());
    KeepTheLast(File);
}

bool EstAbîmé(const fs::path& File)
try {
    RequireFile(File);
    SQLite::Database Base(File.string(), SQLite::OPEN_READWRITE, BusyMilliseconds);
    Distrust(Base);
    return !IsWhole(Base);
} catch (const SQLite::Exception& Error) {
    return Error.getErrorCode() == SQLITE_NOTADB || Error.getErrorCode() == SQLITE_CORRUPT;
} catch (const Failure& Given) {
    return Given.Kind() != FailureKind::DatabaseUnreadable;
}

void Revenir(const fs::path& Copie, const fs::path& File, const std::string& Quand)
{
    Translated(File, [&] {
        SQLite::Database From(Copie.string(), SQLite::OPEN_READONLY, BusyMilliseconds);
        if (!IsWhole(From)) // read, it stays readable, whatever copies go
            throw Failure(FailureKind::DatabaseUnreadable, DisplayName(Copie));
        if (!EstAbîmé(File)) {
            if (FileVersionOf(File).value_or(0) > FileVersion)
                throw Failure(FailureKind::DatabaseNewer, DisplayName(File));
            Sauvegarder(File, Quand);
            return CopyContent(From, File);
        }
        const PlaceBeside Place(File);
        CopyContent(From, Place.Successor());
        if (fs::exists(File))
            Place.Replace(".abîmé");
        else
            fs::rename(Place.Successor(), File);
    });
}

} // namespace orvane
