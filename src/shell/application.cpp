#include "shell/application.h"

#include "base/typography.h"

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

void Application::TellNotices()
{
    std::string Text;
    for (const std::string& Notice : Notices)
        Text += (Text.empty() ? "" : "\n\n") + Notice;
    if (!Images.Missing().empty()) {
        Text += std::string(Text.empty() ? "" : "\n\n") +
                Typeset("Des images sont introuvables ou illisibles ; le programme fonctionne "
                        "sans elles :");
        for (const std::string& File : Images.Missing())
            Text += "\n" + std::filesystem::path(File).filename().string();
    }
    Notices.clear();
    if (!Text.empty())
        MsgBox(Text);
}

void Application::EmptySlots()
{
    Globals.Enregistrements.Empty();
    Globals.Enregistrements2.Empty();
    Globals.BaseDonnées.Empty();
    Globals.BaseDonnées2.Empty();
}

} // namespace orvane
