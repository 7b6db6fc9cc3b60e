#pragma once

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace orvane {

// What the program does without a window, and the one thing that windows take from the command
// line, the folder.
struct CommandLine
{
    std::filesystem::path Folder; // the program's own, or the one that --dossier names
    std::optional<int> Status;    // the process ends with it: nothing is left for windows to do
};

// Runs what Arguments ask for (without the program's name). Arguments with a single dash, and the
// word behind each, are the toolkit's and pass. Status 0: done, with what is to be known
// beside the answer on Errors; 1: it failed, with one French sentence on Errors; 2: it can't be
// understood, likewise.
CommandLine RunCommandLine(const std::vector<std::string>& Arguments,
                           const std::filesystem::path& ProgramFolder, std::ostream& Out,
                           std::ostream& Errors);

} // namespace orvane
