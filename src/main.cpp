#include "base/failure.h"
#include "shell/feuilles.h"
#include "view/desktop.h"
#include "view/french.h"
#include "view/look.h"
#include "view/qt_dialogs.h"
#include "view/style.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

#include <cstdlib>

using namespace orvane;

namespace {

// Runs start-up behind one boundary: what stops it is told in one box.
bool Started(Application& App, Dialogs& Boxes)
{
    try {
        Démarrer(App);
        return true;
    } catch (const Failure& Given) {
        Boxes.MsgBox(Given.Sentence());
    } catch (const std::exception& Unexpected) {
        Boxes.MsgBox(Failure(FailureKind::Program, Unexpected.what()).Sentence());
    }
    return false;
}

} // namespace

int main(int Count, char** Arguments)
{
    QApplication Toolkit(Count, Arguments);
    QApplication::setApplicationName(QString::fromStdString(ProgramTitle));
    QApplication::setStyle(new Style);
    InstallFrench(Toolkit);
    const QString Folder = QApplication::applicationDirPath();

    QtDialogs Boxes;
    Application App(Folder.toStdString(), Boxes);
    Boxes.StandAbove(App.Feuilles);
    Desktop Windows(App.Feuilles, App.Door);
    // Quitting ends the process at once, as nothing is left to save.
    App.OnQuit = [] { std::_Exit(EXIT_SUCCESS); };
    EnregistrerFeuilles(App);
    if (!Started(App, Boxes))
        return EXIT_FAILURE;
    QTimer::singleShot(0, &Toolkit, [&] { // the first picture doesn't wait for it
        QApplication::setWindowIcon(QIcon(Folder + QStringLiteral("/Interface/Orvane.png")));
    });
    return QApplication::exec();
}
