#pragma once

#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

// Scenarios: texts that tell an evening of a crafter, one action or one look a line. How they are
// written stands in tests/scenarios/README.md.
namespace orvane::scenario {

struct Place
{
    std::string File;
    int Line = 0;
};

// A box that comes up in the middle of an action, which waits until it is answered.
struct AwaitedBox
{
    std::string Kind;   // "boîte", "question", "couleur"
    std::string Text;   // a text that ends in … is only the beginning, "…" alone any text
    std::string Answer; // to a question or a choice of colour
    std::string Photo;  // name of a picture to take of it, empty for none
};

// One action, or one look when Verb is empty.
struct Step
{
    Place At;
    std::string Verb;   // "clic"
    std::string Target; // what is acted on or looked at: "cbo_Objet", "Prix"
    std::string Text;   // what is typed or picked, what must be seen
    std::vector<AwaitedBox> Boxes;
};

struct Scenario
{
    Place At;
    std::string Title;
    std::vector<Step> Steps;
};

// What a look shows under one name: templates with controls in braces, one for each line of a bill.
using Views = std::map<std::string, std::vector<std::string>>;

struct Script
{
    Views TheViews;
    std::vector<Scenario> Scenarios;
};

// A line that isn't understood, a step that can't be done.
class CannotGoOn : public std::runtime_error
{
  public:
    explicit CannotGoOn(const std::string& Why) : std::runtime_error(Why) {}
};

// Reads a file, and what it names after "lire", which lies in the same folder or in one above it.
// Everything that is written short (gestures, paths, tables, examples) comes out as steps.
// CannotGoOn tells file and line.
Script ReadScript(const std::filesystem::path& File);

// The parts of a text between separators, without the blanks around them.
std::vector<std::string> Parts(const std::string& Text, std::string_view Separator);

} // namespace orvane::scenario
