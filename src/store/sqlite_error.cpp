#include "store/sqlite_error.h"

#include <array>
#include <sqlite3.h>
#include <utility>

namespace orvane {

namespace {

// An extended code stands before the code that it belongs to.
constexpr std::array Kinds = std::to_array<std::pair<int, FailureKind>>({
    {SQLITE_BUSY, FailureKind::DatabaseLocked},
    {SQLITE_LOCKED, FailureKind::DatabaseLocked},
    {SQLITE_READONLY, FailureKind::DatabaseReadOnly},
    {SQLITE_FULL, FailureKind::DiskFull},
    {SQLITE_NOTADB, FailureKind::NotADatabase},
    {SQLITE_CORRUPT, FailureKind::DatabaseUnreadable},
    {SQLITE_IOERR_WRITE, FailureKind::WriteFailed},
    {SQLITE_IOERR_FSYNC, FailureKind::WriteFailed},
    {SQLITE_IOERR_DIR_FSYNC, FailureKind::WriteFailed},
    {SQLITE_IOERR_TRUNCATE, FailureKind::WriteFailed},
    {SQLITE_IOERR_DELETE, FailureKind::WriteFailed},
    {SQLITE_IOERR, FailureKind::DatabaseUnreadable},
    {SQLITE_CANTOPEN, FailureKind::DatabaseUnreadable},
});

} // namespace

std::string DisplayName(const std::filesystem::path& File)
{
    const auto Name = File.filename().u8string();
    return {Name.begin(), Name.end()};
}

void RequireFile(const std::filesystem::path& File)
{
    std::error_code Error;
    const bool Exists = std::filesystem::exists(File, Error);
    if (Error == std::errc::permission_denied) // a folder on the way: nobody knows
        throw Failure(FailureKind::DatabaseUnreadable, DisplayName(File), File.string());
    if (!Exists)
        throw Failure(FailureKind::DatabaseMissing, DisplayName(File), File.string());
    if (!std::filesystem::is_regular_file(File, Error) ||
        std::filesystem::file_size(File, Error) == 0)
        throw Failure(FailureKind::NotADatabase, DisplayName(File), File.string());
}

Failure FailureOf(const SQLite::Exception& Error, const std::filesystem::path& File)
{
    for (const auto& [Code, Kind] : Kinds)
        if (Error.getErrorCode() == Code || Error.getExtendedErrorCode() == Code)
            return {Kind, DisplayName(File), Error.what()};
    const std::string Cause = Error.what();
    if (Cause.starts_with("no such ")) // "no such column: Objets.Prix"
        return {FailureKind::DatabaseIncomplete, Cause.substr(Cause.rfind(": ") + 2), Cause,
                DisplayName(File)};
    return {FailureKind::Store, DisplayName(File), Cause};
}

} // namespace orvane
