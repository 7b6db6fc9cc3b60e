// Walks through the real windows as a person does, and keeps a picture of each stop.
//   tour PROGRAM_FOLDER PICTURES_FOLDER [SKIN] [RESOLUTION]
// Works on a copy of the folder's databases: settings and orders stay as they are.

#include "shell/feuilles.h"
#include "tour/folder_copy.h"
#include "tour/tour.h"
#include "view/desktop.h"
#include "view/french.h"
#include "view/qt_dialogs.h"
#include "view/style.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

using namespace orvane;
using namespace orvane::tour;

namespace {

Tour* Walking = nullptr; // told of what the program reports to its developers only

void Report(QtMsgType Kind, const QMessageLogContext&, const QString& Text)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(Text));
    if (Kind == QtCriticalMsg && Walking != nullptr)
        Walking->Complain(Text);
}

// The run, put together as the program itself does.
int Run(const QString& Program, const QString& Pictures, const QStringList& Filter)
{
    const FolderCopy Folder(Program.toStdString());
    if (!QDir().mkpath(Pictures))
        throw CannotGoOn(QStringLiteral("%1 can't be made").arg(Pictures));
    Tour Visitor{QDir(Pictures)};
    Walking = &Visitor;
    bool HasQuit = false;

    QtDialogs Boxes;
    Application App(Folder.Path(), Boxes);
    Boxes.StandAbove(App.Feuilles);
    Desktop Windows(App.Feuilles, App.Door);
    App.OnQuit = [&] { HasQuit = true; };
    EnregistrerFeuilles(App);
    Démarrer(App);
    Visitor.Walk(Filter);
    Walking = nullptr;
    if (!HasQuit)
        throw CannotGoOn(QStringLiteral("the program doesn't quit"));
    std::printf("%d pictures\n", Visitor.Pictures());
    return EXIT_SUCCESS;
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
        std::fputs("usage: tour PROGRAM_FOLDER PICTURES_FOLDER [SKIN] [RESOLUTION]\n", stderr);
        return 2;
    }
    try {
        return Run(Given[1], Given[2], Given.mid(3));
    } catch (const std::exception& Stopped) {
        std::fprintf(stderr, "tour: %s\n", Stopped.what());
        return EXIT_FAILURE;
    }
}
