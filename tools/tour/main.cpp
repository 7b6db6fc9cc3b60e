// Walks through the real windows as a person does, and keeps a picture of each stop.
//   tour PROGRAM_FOLDER PICTURES_FOLDER [SKIN] [RESOLUTION]
//   tour PROGRAM_FOLDER PICTURES_FOLDER --play TABLES SCENARIO...
// The second form plays scenarios, with databases made from their own tables. Works on a copy of
// the folder's databases: settings and orders stay as they are.

#include "databases/databases.h"
#include "home/feuilles.h"
#include "tour/folder_copy.h"
#include "tour/names.h"
#include "tour/tour.h"
#include "view/desktop.h"
#include "view/dialogs/menus.h"
#include "view/dialogs/order_in_hand.h"
#include "view/french.h"
#include "view/qt_dialogs.h"
#include "view/style.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

using namespace orvane;
using namespace orvane::tour;

namespace {

WindowScene* Watched = nullptr; // told of what the program reports to its developers only

void Report(QtMsgType Kind, const QMessageLogContext&, const QString& Text)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(Text));
    if (Kind == QtCriticalMsg && Watched != nullptr)
        Watched->Complain(Text);
}

// The run, put together as the program itself does, for as long as it is played in.
class Evening
{
  public:
    Evening(const std::filesystem::path& Folder, const QDir& Pictures) : Scene(Folder, Pictures)
    {
        Watched = &Scene;
        Boxes.StandAbove(App.Feuilles);
        App.OnEventEnd = [this] { Windows.ShowInMenuBars(OrderInHand(App)); };
        App.OnColours = [this] { Windows.TakeColours(App.Couleurs); };
        Scene.StartBy([this]() -> Application& {
            EnregistrerFeuilles(App);
            Démarrer(App);
            return App;
        });
    }

    ~Evening() { Watched = nullptr; }

    WindowScene Scene;

  private:
    QtDialogs Boxes;
    Application App{Scene.Path(), Boxes};
    Desktop Windows{App.Feuilles, App.Door, ProgramMenus(App, [] {}),
                    [this] { return LinesInHand(App); }};
};

void Walk(const QString& Program, const QDir& Pictures, const QStringList& Filter)
{
    const FolderCopy Folder(Program.toStdString());
    Evening Whole(Folder.Path(), Pictures);
    Whole.Scene.ReadWords();
    Tour(Whole.Scene).Walk(Filter);
    std::printf("least contrasts\n%s", qUtf8Printable(Whole.Scene.LeastContrasts()));
    std::printf("%d pictures, %d focus rings seen\n", Whole.Scene.Photographer().Count(),
                Whole.Scene.RingsSeen());
}

// Each in a run of its own, on the tables of a model folder. Whether all showed what they must.
bool Play(const QString& Program, const QDir& Pictures, const std::filesystem::path& Tables,
          const QStringList& Files)
{
    bool IsRight = true;
    const auto Complain = [&](const std::string& What) {
        std::fprintf(stderr, "%s\n", What.c_str());
        IsRight = false;
    };
    for (const QString& File : Files) {
        const scenario::Script Script = scenario::ReadScript(File.toStdString());
        for (const scenario::Scenario& Each : Script.Scenarios) {
            std::printf("%s\n", Each.Title.c_str());
            const FolderCopy Folder(Program.toStdString());
            tools::MakeDatabases(Tables, Folder.Path(), false);
            std::filesystem::copy(Tables / "Objets", Folder.Path() / "Objets",
                                  std::filesystem::copy_options::recursive |
                                      std::filesystem::copy_options::skip_existing);
            Evening One(Folder.Path(), Pictures);
            One.Scene.Photographer().BeginLook(FileNamePart(QString::fromStdString(Each.Title)),
                                               {INT_MAX, INT_MAX});
            try {
                scenario::Stage(One.Scene, Script.TheViews,
                                [&](const auto& At, auto& Wanted, auto& Seen) {
                                    Complain(At.File + ":" + std::to_string(At.Line) +
                                             ": expected " + Wanted + "\nseen " + Seen);
                                })
                    .Play(Each);
            } catch (const scenario::CannotGoOn& Stopped) {
                Complain(Stopped.what());
            }
        }
    }
    return IsRight;
}

} // namespace

int main(int Count, char** Arguments)
{
    QApplication Toolkit(Count, Arguments);
    QApplication::setApplicationName(QString::fromStdString(ProgramTitle));
    QApplication::setStyle(new Style);
    QApplication::setCursorFlashTime(0); // a cursor looks the same in every picture
    InstallFrench(Toolkit);
    qInstallMessageHandler(Report);
    const QStringList Given = QApplication::arguments();
    if (Given.size() < 3) {
        std::fputs("usage: tour PROGRAM_FOLDER PICTURES_FOLDER [SKIN] [RESOLUTION]\n"
                   "       tour PROGRAM_FOLDER PICTURES_FOLDER --play TABLES SCENARIO...\n",
                   stderr);
        return 2;
    }
    try {
        if (!QDir().mkpath(Given[2]))
            throw Because(QStringLiteral("%1 can't be made").arg(Given[2]));
        if (Given.size() > 5 && Given[3] == QStringLiteral("--play"))
            return Play(Given[1], QDir(Given[2]), Given[4].toStdString(), Given.mid(5))
                       ? EXIT_SUCCESS
                       : EXIT_FAILURE;
        Walk(Given[1], QDir(Given[2]), Given.mid(3));
        return EXIT_SUCCESS;
    } catch (const std::exception& Stopped) {
        std::fprintf(stderr, "tour: %s\n", Stopped.what());
        return EXIT_FAILURE;
    }
}
