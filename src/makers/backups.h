#pragma once

#include <filesystem>
#include <string>
#include <vector>

// Copies of a database that the crafter writes, in the folder Sauvegardes beside it.
namespace orvane {

struct Copie
{
    std::filesystem::path File;
    std::string Quand; // "2026-11-23 21-04-05", in the crafter's time
};

// As a copy made at this moment is told.
std::string Maintenant();

// The latest first.
std::vector<Copie> CopiesDe(const std::filesystem::path& File);

// Makes a copy if the file has changed since the latest, and keeps the last ten: of different days
// where there are. A file that isn't whole gets none, so that damage never takes the place of what
// was good. Failure: the copies are as they were.
void Sauvegarder(const std::filesystem::path& File, const std::string& Quand);

// Whether the file isn't there, is no database, or isn't whole. One that another program holds
// passes.
bool EstAbîmé(const std::filesystem::path& File);

// Gives the file the content of a copy, after a copy of what it holds now. A damaged one stays
// beside, under its name with ".abîmé" before the ending. Failure leaves the file as it was.
void Revenir(const std::filesystem::path& Copie, const std::filesystem::path& File,
             const std::string& Quand);

} // namespace orvane
