#include "app/application.h"

#include "base/typography.h"

#include <algorithm>

namespace orvane {

Application::Application(std::filesystem::path Folder, Dialogs& TheDialogs)
    : TheDialogs(TheDialogs),
      Door(Feuilles, TheDialogs, [this] { EmptySlots(); }),
      Folder(std::move(Folder))
{
}

std::string Application::Chemin(const std::string& Relative) const
{
    return Folder.string() + Relative;
}

void Application::Notice(const std::string& Text, const std::string& Matter)
{
    const std::string& About = Matter.empty() ? Text : Matter;
    const auto Found = std::ranges::find(Notices, About, &Told::Matter);
    if (Found == Notices.end())
        Notices.push_back({About, Text});
    else
        Found->Text = Text;
}

void Application::TellNotices()
{
    std::string Pictures;
    for (const std::string& File : Images.TakeMissing())
        Pictures += "\n" + std::filesystem::path(File).lexically_relative(Folder).string();
    if (!Pictures.empty())
        Notice(Typeset("Des images sont introuvables ou illisibles ; le programme fonctionne sans "
                       "elles :") +
               Pictures);
    std::string Text;
    for (const Told& Each : Notices)
        Text += (Text.empty() ? "" : "\n\n") + Each.Text;
    Notices.clear();
    if (!Text.empty())
        MsgBox(Text);
}

void Application::EmptySlots()
{
    Globals.BaseDonnées.Empty();
    Globals.BaseDonnées2.Empty();
}

} // namespace orvane
