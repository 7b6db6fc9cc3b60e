#include "command_line/command_line.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace orvane {
namespace {

struct Answer
{
    CommandLine Line;
    std::string Out;
    std::string Errors;
};

Answer Ask(const std::vector<std::string>& Arguments)
{
    std::ostringstream Out;
    std::ostringstream Errors;
    CommandLine Line = RunCommandLine(Arguments, "/programme", Out, Errors);
    return {std::move(Line), Out.str(), Errors.str()};
}

TEST(CommandLine, WithoutACommandTheWindowsOpen)
{
    const TempFolder Elsewhere;
    for (const std::vector<std::string>& Plain :
         {std::vector<std::string>{}, {"-platform", "offscreen"}, {"-reverse"}}) {
        EXPECT_EQ(Ask(Plain).Line.Status, std::nullopt);
        EXPECT_EQ(Ask(Plain).Line.Folder, "/programme");
    }
    const Answer There = Ask({"-platform", "offscreen", "--dossier", Elsewhere.Path().string()});
    EXPECT_EQ(There.Line.Status, std::nullopt);
    EXPECT_EQ(There.Line.Folder, Elsewhere.Path());
}

TEST(CommandLine, WhatCannotBeUnderstoodIsToldInOneSentence)
{
    for (const std::vector<std::string>& Wrong : {std::vector<std::string>{"--truc"},
                                                  {"truc"},
                                                  {"--dossier"},
                                                  {"--dossier", "--help"},
                                                  {"--help", "--version"},
                                                  {"--royaume", "Valdren"},
                                                  {"--liste", "Zoé", "--royaume"},
                                                  {"--dossier", "/", "--dossier", "/"}}) {
        const Answer Told = Ask(Wrong);
        EXPECT_EQ(Told.Line.Status, 2) << Wrong[0];
        EXPECT_EQ(Told.Out, "");
        EXPECT_EQ(Told.Errors.find('\n'), Told.Errors.size() - 1) << Told.Errors;
    }
}

TEST(CommandLine, AFolderThatIsNotThereFails)
{
    const Answer Told = Ask({"--dossier", "/n'existe pas"});
    EXPECT_EQ(Told.Line.Status, 1);
    EXPECT_EQ(Told.Errors, "Le dossier «\u00a0/n'existe pas\u00a0» n’existe pas.\n");
}

TEST(CommandLine, HelpTellsEveryOption)
{
    const Answer Told = Ask({"--help"});
    EXPECT_EQ(Told.Line.Status, 0);
    for (const char* Each :
         {"--help", "--version", "--dossier DOSSIER", "--liste COMMANDE [--royaume ROYAUME]"})
        EXPECT_NE(Told.Out.find(Each), std::string::npos) << Each;
    EXPECT_EQ(Ask({"--version"}).Out.substr(0, 7), "orvane ");
}

} // namespace
} // namespace orvane
