#include "app/application.h"

#include "base/typography.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

// Nothing for no files; many are counted rather than named.
std::string AboutPictures(const std::vector<std::string>& Files)
{
    constexpr std::size_t Named = 12;
    std::string Lines;
    for (std::size_t i = 0; i < std::min(Files.size(), Named); ++i)
        Lines += "\n" + Files[i];
    if (Files.size() > Named)
        Lines += "\n… et " + std::to_string(Files.size() - Named) + " de plus";
    return Lines.empty() ? Lines
                         : Typeset("Des images sont introuvables ou illisibles ; le programme "
                                   "fonctionne sans elles :") +
                               Lines;
}

} // namespace

Application::Application(std::filesystem::path Folder, Dialogs& TheDialogs)
    : Images(Folder),
      TheDialogs(TheDialogs),
      Door(Feuilles, TheDialogs, [this] { EndEvent(); }),
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
    if (const std::string Pictures = AboutPictures(Images.TakeMissing()); !Pictures.empty())
        Notice(Pictures);
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

void Application::EndEvent()
{
    EmptySlots();
    OnEventEnd();
    const std::string Pictures = AboutPictures(Images.TakeMissing());
    if (!Pictures.empty() && !std::exchange(PicturesTold, true))
        MsgBox(Pictures + "\n\n" + "Les suivantes ne seront pas annoncées.");
}

} // namespace orvane
