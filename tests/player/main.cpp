// Plays the scenarios of files and folders without windows, each in a fresh copy of one model
// folder. Takes the options of GoogleTest too.
//   play_scenarios FILE_OR_FOLDER... [--gtest_filter=...]

#include "player/headless_scene.h"
#include "player/model_folder.h"
#include "scenario/script.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>

namespace fs = std::filesystem;
using namespace orvane;

namespace {

const fs::path& Model()
{
    static const TempFolder Folder;
    static const bool Made = (MakeModelFolder(ORVANE_MODEL, Folder.Path()), true);
    static_cast<void>(Made);
    return Folder.Path();
}

class Evening : public testing::Test
{
  public:
    Evening(const scenario::Views& TheViews, const scenario::Scenario& Which)
        : TheViews(TheViews),
          Which(Which)
    {
    }

    void TestBody() override
    {
        const TempFolder Parent;
        const fs::path Folder = Parent / "\xE9t\xE9"; // of an old system: no UTF-8
        CopyModelFolder(Model(), Folder);
        HeadlessScene Scene(Folder);
        scenario::Stage Stage(Scene, TheViews, [](const auto& At, auto& Wanted, auto& Seen) {
            ADD_FAILURE_AT(At.File.c_str(), At.Line)
                << "expected " << Wanted << "\nseen     " << Seen;
        });
        try {
            Stage.Play(Which);
        } catch (const std::exception& Stopped) {
            ADD_FAILURE() << Stopped.what();
        }
    }

  private:
    const scenario::Views& TheViews;
    const scenario::Scenario& Which;
};

std::vector<fs::path> FilesOf(const fs::path& Given)
{
    if (!fs::is_directory(Given))
        return {Given};
    std::vector<fs::path> Files;
    for (const auto& Entry : fs::recursive_directory_iterator(Given))
        if (Entry.path().extension() == ".txt")
            Files.push_back(Entry.path());
    std::ranges::sort(Files);
    return Files;
}

void Register(const fs::path& File, const scenario::Script& Script)
{
    if (Script.Scenarios.empty())
        throw scenario::CannotGoOn(File.string() + ": no scenario");
    for (const scenario::Scenario& Each : Script.Scenarios)
        testing::RegisterTest(
            File.stem().c_str(), Each.Title.c_str(), nullptr, nullptr, Each.At.File.c_str(),
            Each.At.Line, [&]() -> testing::Test* { return new Evening(Script.TheViews, Each); });
}

} // namespace

int main(int Count, char** Arguments)
{
    testing::InitGoogleTest(&Count, Arguments);
    std::vector<std::pair<fs::path, scenario::Script>> Scripts;
    try {
        for (const char* Given : std::vector<const char*>(Arguments + 1, Arguments + Count))
            for (const fs::path& File : FilesOf(Given))
                Scripts.emplace_back(File, scenario::ReadScript(File));
        for (const auto& [File, Script] : Scripts)
            Register(File, Script);
    } catch (const std::exception& Wrong) {
        std::cerr << Wrong.what() << '\n';
        return EXIT_FAILURE;
    }
    if (Scripts.empty()) {
        std::cerr << "no scenarios to play\n";
        return EXIT_FAILURE;
    }
    return RUN_ALL_TESTS();
}
