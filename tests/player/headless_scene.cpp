#include "player/headless_scene.h"

#include "base/failure.h"
#include "home/feuilles.h"
#include "scenario/lines.h"

#include <algorithm>
#include <set>

namespace orvane {

using scenario::AwaitedBox;
using scenario::CannotGoOn;

namespace {

bool AreSlotsEmpty(const Variables& Globals)
{
    return Globals.Enregistrements.IsEmpty() && Globals.Enregistrements2.IsEmpty() &&
           Globals.BaseDonnées.IsEmpty() && Globals.BaseDonnées2.IsEmpty();
}

// The first box or list in sight that a screen reader couldn't tell from all others, or nothing.
const Control* Indistinct(const Screen& Which)
{
    std::set<std::string> Names{""};
    for (const Control* Each : Which.Controls())
        if (Each->Visible &&
            (dynamic_cast<const TextBox*>(Each) || dynamic_cast<const ListControl*>(Each)) &&
            !Names.insert(Each->Called).second)
            return Each;
    return nullptr;
}

} // namespace

Application& HeadlessScene::Running()
{
    if (!App)
        Start();
    return *App;
}

// What stops the start is told in a box, as by the program.
void HeadlessScene::Start()
{
    Dialogs& Boxes = *this;
    App.emplace(Folder.Path(), Boxes);
    App->OnQuit = [this] { ++Quits; };
    EnregistrerFeuilles(*App);
    try {
        Démarrer(*App);
    } catch (const Failure& Given) {
        MsgBox(Given.Sentence());
    }
}

void HeadlessScene::Click(const std::string& Control)
{
    Running().Door.Click(Reached<PictureControl>(Control));
}

void HeadlessScene::ClickItem(const std::string& Entry)
{
    auto& Menu = Reached<SideMenu>("Bar_Menus");
    for (const SideMenu::Bar& Bar : Menu.Bars())
        for (const SideMenu::Item& Each : Bar.Items)
            if (Each.Key == Entry)
                return Running().Door.ClickItem(Menu, Entry);
    throw CannotGoOn("no such entry");
}

void HeadlessScene::Pick(const std::string& List, std::size_t Row)
{
    Running().Door.Pick(Reached<ListControl>(List), static_cast<int>(Row));
}

void HeadlessScene::Type(const std::string& Box, const std::string& Text)
{
    auto& Target = Reached<Control>(Box);
    if (auto* Combo = dynamic_cast<ComboBox*>(&Target))
        return Running().Door.Type(*Combo, Text);
    auto& Field = Reached<TextBox>(Box);
    if (Field.Locked)
        throw CannotGoOn("it is locked");
    Running().Door.Type(Field, Text);
}

void HeadlessScene::CloseByFrame()
{
    Running().Door.Close(ActiveScreen());
}

std::string HeadlessScene::Look(const std::string& What)
{
    return What == "titre de la question" ? LastTitle : ProgramScene::Look(What);
}

void HeadlessScene::Act(const scenario::Step& Which)
{
    if (Which.Verb == "démarrer")
        static_cast<void>(Running());
    else if (Which.Verb == "relancer")
        Start();
    else if (Which.Verb == "activer")
        Running().Door.Activate(Running().Feuilles.Touch(Which.Target));
    else if (Which.Verb != "photo" && Which.Verb != "ouvrir" &&
             Which.Verb != "prendre") // for eyes only
        ProgramScene::Act(Which);
}

void HeadlessScene::Await(const std::vector<AwaitedBox>& Boxes)
{
    Awaited.assign(Boxes.begin(), Boxes.end());
}

void HeadlessScene::CheckBoxes()
{
    if (!Complaint.empty())
        throw CannotGoOn(std::exchange(Complaint, {}));
    if (!Awaited.empty())
        throw CannotGoOn("no box came up: " + Awaited.front().Text);
    if (App && !App->Feuilles.Stack().empty() && !AreSlotsEmpty(App->Globals))
        throw CannotGoOn("something stays open between two deeds");
    if (App)
        for (const Screen* Each : App->Feuilles.Stack())
            if (const Control* Found = Indistinct(*Each))
                throw CannotGoOn(Found->Name() + " has no name of its own: " + Found->Called);
}

void HeadlessScene::MsgBox(const std::string& Text)
{
    Next("boîte", Text);
}

std::string HeadlessScene::InputBox(const std::string& Prompt, const std::string& Title)
{
    LastTitle = Title;
    return Next("question", Prompt).Answer;
}

std::optional<Colour> HeadlessScene::ShowColor()
{
    const std::string Answer = Next("couleur", {}).Answer;
    if (Answer.empty())
        return {};
    const int Number = std::stoi(Answer.substr(1), nullptr, 16);
    return RGB(Number >> 16, Number >> 8 & 0xFF, Number & 0xFF);
}

AwaitedBox HeadlessScene::Next(const std::string& Kind, const std::string& Text)
{
    if (Awaited.empty() || Awaited.front().Kind != Kind ||
        !scenario::IsWanted(Text, Awaited.front().Text)) {
        if (Complaint.empty())
            Complaint = "a box that isn't expected: " + Kind + ": " + Text;
        return {};
    }
    AwaitedBox Result = Awaited.front();
    Awaited.pop_front();
    return Result;
}

} // namespace orvane
