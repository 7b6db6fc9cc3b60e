#pragma once

#include "base/failure.h"

#include <SQLiteCpp/Exception.h>
#include <filesystem>
#include <string>

namespace orvane {

// What an error of SQLite on this file means to the crafter.
Failure FailureOf(const SQLite::Exception& Error, const std::filesystem::path& File);

// The file's name as a message shows it.
std::string DisplayName(const std::filesystem::path& File);

// Failure (DatabaseMissing, DatabaseUnreadable, NotADatabase) for what SQLite would make, wait for
// or take for an empty database: no file at all, a folder or a pipe, an empty file.
void RequireFile(const std::filesystem::path& File);

// Runs Action, with errors of SQLite turned into Failures, and all of them about File.
template <class Function>
auto Translated(const std::filesystem::path& File, Function Action)
{
    try {
        return Action();
    } catch (const SQLite::Exception& Error) {
        throw FailureOf(Error, File);
    } catch (const Failure& Given) {
        throw Given.In(DisplayName(File));
    }
}

} // namespace orvane
