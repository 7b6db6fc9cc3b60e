#include "base/failure.h"
#include "base/text.h"
#include "base/typography.h"
#include "catalogue/catalogue.h"
#include "command_line/command_line.h"
#include "home/feuilles.h"
#include "makers/backups.h"
#include "makers/jet.h"
#include "view/desktop.h"
#include "view/dialogs/backups.h"
#include "view/dialogs/menus.h"
#include "view/dialogs/order_in_hand.h"
#include "view/french.h"
#include "view/picture_source.h"
#include "view/qt_dialogs.h"
#include "view/qt_text.h"
#include "view/style.h"

#include <QApplication>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <iostream>
#include <string>
#include <vector>

using namespace orvane;

namespace {

constexpr std::chrono::seconds BackupPatience{1}; // the first picture has long been painted

std::filesystem::path ProgramFolder()
{
    return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

// Whether the toolkit has nowhere to open a window, which it would answer by aborting. Who names a
// platform knows of one.
bool HasNoDisplay(const std::vector<std::string>& Given)
{
    const auto IsUnset = [](const char* Name) { return qEnvironmentVariableIsEmpty(Name); };
    return IsUnset("DISPLAY") && IsUnset("WAYLAND_DISPLAY") && IsUnset("QT_QPA_PLATFORM") &&
           std::ranges::find(Given, "-platform") == Given.end() &&
           std::ranges::find(Given, "-display") == Given.end();
}

// Databases of the older kind are converted before anything reads them, if the crafter says so.
void OfferConversion(const std::vector<std::filesystem::path>& Files, Dialogs& Boxes)
{
    std::string Names;
    for (const auto& Each : Files)
        Names += "\n" + Each.filename().string();
    if (!Boxes.Confirm(
            Typeset("Ces bases sont au format Jet. Faut-il les convertir ? Les originaux "
                    "restent à côté, sous « NOM.jet.mdb ».\n") +
            Names))
        return;
    std::string Refused;
    for (const auto& Each : Files)
        try {
            ImporterJet(Each);
        } catch (const Failure& Given) {
            Refused += (Refused.empty() ? "" : "\n") + Given.Sentence();
        }
    if (!Refused.empty())
        Boxes.MsgBox(Refused);
}

// Another run takes this one's place.
void Restart()
{
    QProcess::startDetached(QApplication::applicationFilePath(), QApplication::arguments().mid(1));
    std::_Exit(EXIT_SUCCESS);
}

// Copies of what the crafter writes. A folder that takes none is no reason to stop anybody.
void BackUp(const std::filesystem::path& Folder)
{
    for (const std::string& Each : {PanierFile, ConfigFile})
        try {
            Sauvegarder(Folder / Each, Maintenant());
        } catch (const Failure& Given) {
            qWarning("%s", Given.what());
        }
}

// Runs start-up behind one boundary: what stops it is told in one box.
bool Started(Application& App, std::future<void>& Loading, Dialogs& Boxes)
{
    try {
        Loading.get();
        Démarrer(App);
        return true;
    } catch (const Failure& Given) {
        if (OfferLatestBackup(App, Given.Sentence()))
            Restart();
        Boxes.MsgBox(Given.Sentence());
    } catch (const std::exception& Unexpected) {
        Boxes.MsgBox(Failure(FailureKind::Program, Unexpected.what()).Sentence());
    }
    return false;
}

} // namespace

int main(int Count, char** Arguments)
{
    const std::vector<std::string> Given(Arguments + (Count > 0), Arguments + Count);
    const CommandLine Asked = RunCommandLine(Given, ProgramFolder(), std::cout, std::cerr);
    if (Asked.Status)
        return *Asked.Status;
    if (HasNoDisplay(Given)) {
        std::cerr << Typeset("Aucun écran n’est accessible : le programme se lance depuis une "
                             "session graphique.\n");
        return EXIT_FAILURE;
    }
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN); // a write beyond a limit fails, and is told, as any other
#endif
    QtDialogs Boxes;
    Application App(Asked.Folder, Boxes);
    // Quitting ends the process at once, as nothing is left to save.
    App.OnQuit = [] { std::_Exit(EXIT_SUCCESS); };
    EnregistrerFeuilles(App);
    UseFrench();
    // The core loads while the toolkit sets itself up; from then on there is one thread. Files to
    // be converted first leave it for later.
    const auto Convertible = FichiersJet(Asked.Folder);
    std::future<void> Loading = std::async(
        Convertible.empty() ? std::launch::async : std::launch::deferred, [&App] { Charger(App); });

    QApplication Toolkit(Count, Arguments);
    QApplication::setApplicationName(QString::fromStdString(ProgramTitle));
    QApplication::setStyle(new Style);
    InstallFrench(Toolkit);
    if (!Convertible.empty())
        OfferConversion(Convertible, Boxes);
    Loading.wait();
    Boxes.StandAbove(App.Feuilles);
    Desktop Windows(App.Feuilles, App.Door, ProgramMenus(App, Restart),
                    [&App] { return LinesInHand(App); });
    App.OnAdded = [&](Screen& From, const std::string& Commande) {
        Windows.Answer(From.Find("cmd_AjouterPanier"),
                       ToQt(Typeset("Ajouté à la commande « ") + Commande + Typeset(" »")));
    };
    App.OnColours = [&] { Windows.TakeColours(App.Couleurs); };
    if (!Started(App, Loading, Boxes))
        return EXIT_FAILURE;
    App.OnEventEnd = [&] { Windows.ShowInMenuBars(OrderInHand(App)); };
    App.OnEventEnd();
    QTimer::singleShot(0, &Toolkit, [&] { // the first picture doesn't wait for it
        const Picture Icon = App.Images.LoadOr(App.Chemin("/Interface/Orvane.png"));
        QApplication::setWindowIcon(IconOf(Icon));
    });
    QTimer::singleShot(BackupPatience, &Toolkit, [&] { BackUp(Asked.Folder); });
    return QApplication::exec();
}
