#include "scenario/stage.h"

#include "scenario/lines.h"

#include <algorithm>

namespace orvane::scenario {

namespace {

constexpr std::string_view HiddenSign = "-";

// Two texts that a reader takes for the same: no-break blanks are blanks, and blanks beside the
// bars between cells don't count.
std::string Compared(std::string Text)
{
    for (const std::string_view Blank : {"\u00A0", "\u202F"})
        Text = Replaced(std::move(Text), Blank, " ");
    Text = Replaced(std::move(Text), "\n", "\\n");
    return Joined(Parts(Joined(Parts(Text, "|"), "|"), " / "), "/");
}

// Whether an entry fits a pattern, in which * stands for any letters.
bool Fits(std::string_view Entry, std::string_view Pattern)
{
    const auto Star = Pattern.find('*');
    if (Star == std::string_view::npos)
        return Entry == Pattern;
    if (!Entry.starts_with(Pattern.substr(0, Star)))
        return false;
    for (std::size_t i = Star; i <= Entry.size(); ++i)
        if (Fits(Entry.substr(i), Pattern.substr(Star + 1)))
            return true;
    return false;
}

} // namespace

bool IsWanted(const std::string& Seen, std::string Wanted)
{
    constexpr std::string_view AndSoOn = "…";
    const bool Begins = Wanted.ends_with(AndSoOn);
    if (Begins)
        Wanted.resize(Wanted.size() - AndSoOn.size());
    return Begins ? Compared(Seen).starts_with(Compared(Wanted))
                  : Compared(Seen) == Compared(Wanted);
}

void Stage::Play(const Scenario& Which)
{
    for (const Step& Each : Which.Steps)
        try {
            if (Each.Verb.empty())
                Look(Each);
            else {
                TheScene.Await(Each.Boxes);
                Act(Each);
                TheScene.CheckBoxes();
            }
        } catch (const CannotGoOn& Given) {
            throw CannotGoOn(Each.At.File + ":" + std::to_string(Each.At.Line) + ": " + Each.Verb +
                             " " + Each.Target + ": " + Given.what());
        }
}

void Stage::Act(const Step& Which)
{
    if (Which.Verb == "clic")
        TheScene.Click(Which.Target);
    else if (Which.Verb == "menu")
        TheScene.ClickItem(Which.Target);
    else if (Which.Verb == "choisir")
        Pick(Which.Target, Which.Text);
    else if (Which.Verb == "parcourir")
        PickUntilSeen(Which.Target, Which.Text);
    else if (Which.Verb == "taper")
        TheScene.Type(Which.Target, Which.Text);
    else if (Which.Verb == "fermer")
        TheScene.CloseByFrame();
    else if (Which.Verb == "retenir")
        Kept[Which.Target] = Shown(Which.Target);
    else
        TheScene.Act(Which);
}

// By its text, by a pattern, or by its place: "#2" is the second.
void Stage::Pick(const std::string& List, const std::string& Entry)
{
    const auto Given = TheScene.Entries(List);
    const auto Found =
        Entry.starts_with('#')
            ? Given.begin() + std::stoi(Entry.substr(1)) - 1
            : std::ranges::find_if(Given, [&](const auto& Each) { return Fits(Each, Entry); });
    if (Found < Given.begin() || Found >= Given.end())
        throw CannotGoOn("no entry « " + Entry + " »");
    TheScene.Pick(List, static_cast<std::size_t>(Found - Given.begin()));
}

void Stage::PickUntilSeen(const std::string& List, const std::string& Controls)
{
    const auto Count = TheScene.Entries(List).size();
    for (std::size_t Row = 0; Row < Count; ++Row) {
        TheScene.Pick(List, Row);
        if (SeesAll(Controls))
            return;
    }
    throw CannotGoOn("no entry shows " + Controls);
}

void Stage::Look(const Step& Which)
{
    std::string Wanted = Which.Text;
    std::string Seen;
    if (Which.Target == "visible" || Which.Target == "caché") {
        for (const std::string& Each : Parts(Which.Text, " "))
            if (TheScene.IsVisible(Each) != (Which.Target == "visible"))
                Report(Which.At, Which.Target + " " + Each, "the contrary");
        return;
    }
    Seen = Shown(Which.Target);
    if (Wanted == "inchangé") {
        const auto Before = Kept.find(Which.Target);
        if (Before == Kept.end())
            throw CannotGoOn("nothing was kept of it");
        Wanted = Before->second;
    }
    if (!IsWanted(Seen, Wanted))
        Report(Which.At, Which.Target + ": " + Which.Text, Seen);
}

bool Stage::SeesAll(const std::string& Controls)
{
    return std::ranges::all_of(Parts(Controls, " "), [this](const std::string& Each) {
        return Each.starts_with('!') ? !TheScene.IsVisible(Each.substr(1))
                                     : TheScene.IsVisible(Each);
    });
}

std::string Stage::Shown(const std::string& What)
{
    const auto Found = TheViews.find(What);
    if (Found == TheViews.end())
        return TheScene.Look(What);
    std::vector<std::string> Lines;
    for (const std::string& Each : Found->second)
        Lines.push_back(Filled(Each));
    return Joined(Lines, " | ");
}

// The template with what is seen in the place of each name in braces, or one sign for the whole of
// it when all its controls are hidden.
std::string Stage::Filled(const std::string& Template)
{
    if (Template.find('{') == std::string::npos)
        return Shown(Template);
    std::string Result;
    bool AllHidden = true;
    std::size_t Start = 0;
    for (auto At = Template.find('{'); At != std::string::npos; At = Template.find('{', Start)) {
        const auto End = Template.find('}', At);
        if (End == std::string::npos)
            throw CannotGoOn("a brace that isn't closed: " + Template);
        const std::string Seen = Shown(Template.substr(At + 1, End - At - 1));
        AllHidden = AllHidden && Seen == HiddenSign;
        Result += Template.substr(Start, At - Start) + Seen;
        Start = End + 1;
    }
    return AllHidden ? std::string(HiddenSign) : Result + Template.substr(Start);
}

} // namespace orvane::scenario
