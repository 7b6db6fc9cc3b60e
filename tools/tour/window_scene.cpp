#include "tour/window_scene.h"

#include "tour/names.h"
#include "tour/rings.h"

#include <QCoreApplication>
#include <QWidget>

namespace orvane::tour {

Application& WindowScene::Running()
{
    if (Run == nullptr) {
        Run = &Starter();
        Run->OnQuit = [this] { ++Quits; };
    }
    return *Run;
}

void WindowScene::Bring(Screen& Which)
{
    const QString Name = QString::fromStdString(Which.Name());
    if (&ActiveScreen() != &Which)
        TheEyes.Activate(Name);
    TheEyes.TurnTo(Name);
}

QString WindowScene::TurnTo(const std::string& Control)
{
    const orvane::Control& Wanted = Named(Control);
    Bring(Wanted.Owner());
    return QString::fromStdString(Wanted.Name());
}

void WindowScene::Click(const std::string& Control)
{
    const QString Name = TurnTo(Control);
    KeysAlone ? TheKeyboard.Click(Name) : TheHands.Click(Name);
}

void WindowScene::ClickItem(const std::string& Entry)
{
    const QString Name = TurnTo("Bar_Menus");
    const QString Key = QString::fromStdString(Entry);
    KeysAlone ? TheKeyboard.ClickItem(Name, Key) : TheHands.ClickItem(Name, Key);
}

std::vector<std::string> WindowScene::Entries(const std::string& List)
{
    std::vector<std::string> Result;
    for (const QString& Each : TheHands.Entries(TurnTo(List)))
        Result.push_back(Each.toStdString());
    return Result;
}

void WindowScene::Pick(const std::string& List, std::size_t Row)
{
    const QString Name = TurnTo(List);
    const int At = static_cast<int>(Row);
    KeysAlone ? TheKeyboard.Pick(Name, At) : TheHands.Pick(Name, At);
}

void WindowScene::Type(const std::string& Box, const std::string& Text)
{
    const QString Name = TurnTo(Box);
    const QString Given = QString::fromStdString(Text);
    KeysAlone ? TheKeyboard.Type(Name, Given) : TheHands.Type(Name, Given);
}

void WindowScene::CloseByFrame()
{
    Bring(ActiveScreen());
    TheEyes.Window().close();
}

bool WindowScene::IsVisible(const std::string& Control)
{
    return TheEyes.Sees(TurnTo(Control));
}

std::string WindowScene::Look(const std::string& What)
{
    const std::string Told = ProgramScene::Look(What);
    if (Told.ends_with(" !") && !TheEyes.SeesMark(TurnTo(What)))
        return Told + " (without a mark in its window)";
    return Told;
}

void WindowScene::Act(const scenario::Step& Which)
{
    if (Which.Verb == "démarrer")
        Running();
    else if (Which.Verb == "activer")
        Bring(Running().Feuilles.Touch(Which.Target));
    else if (Which.Verb == "prendre")
        KeysAlone = Which.Target == "clavier";
    else if (Which.Verb == "ouvrir")
        TheHands.Open(TurnTo(Which.Target));
    else if (Which.Verb == "photo") {
        Bring(ActiveScreen());
        TheHands.PutMouseAside();
        TheCamera.Photograph(QString::fromStdString(Which.Target));
        if (WithWords)
            Words.Check(TheEyes.Window());
        if (WithRings)
            Rings += CheckRings(TheEyes.Window());
    } else
        ProgramScene::Act(Which);
}

void WindowScene::Await(const std::vector<scenario::AwaitedBox>& Boxes)
{
    TheBoxes.Await(Boxes);
}

void WindowScene::CheckBoxes()
{
    QCoreApplication::processEvents();
    TheBoxes.Check();
}

} // namespace orvane::tour
