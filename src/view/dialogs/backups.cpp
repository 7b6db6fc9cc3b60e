#include "view/dialogs/backups.h"

#include "base/failure.h"
#include "base/typography.h"
#include "basket/undo.h"
#include "catalogue/catalogue.h"
#include "makers/backups.h"
#include "view/look.h"
#include "view/qt_text.h"

#include <QApplication>
#include <QDateTime>
#include <QInputDialog>
#include <QLocale>

#include <array>

namespace orvane {

namespace {

constexpr QSize BoxSize(460, 340);

struct Kept
{
    const char* Words;
    const std::string& File;
};
const std::array Files{Kept{"Commandes", PanierFile}, Kept{"Réglages", ConfigFile}};

QString Moment(const Copie& Of)
{
    return QLocale(QLocale::French)
        .toString(QDateTime::fromString(ToQt(Of.Quand), QStringLiteral("yyyy-MM-dd HH-mm-ss")),
                  QStringLiteral("d MMMM yyyy 'à' HH:mm:ss"));
}

struct Choice
{
    QString Words;
    std::filesystem::path From;
    std::filesystem::path To;
};

std::vector<Choice> Choices(const Application& App)
{
    std::vector<Choice> All;
    for (const Kept& Each : Files) {
        const std::filesystem::path File = App.Chemin("/" + Each.File);
        for (const Copie& Of : CopiesDe(File))
            All.push_back(
                {ToQt(Typeset(std::string(Each.Words) + " : ")) + Moment(Of), Of.File, File});
    }
    return All;
}

const Choice* Ask(const std::vector<Choice>& From)
{
    QInputDialog Box(QApplication::activeWindow());
    Box.setFont(look::Font(look::DialogPoints));
    Box.setWindowTitle(QStringLiteral("Revenir à une sauvegarde"));
    Box.setLabelText(ToQt(Typeset("Ce qui est là maintenant est d’abord sauvegardé à son tour.\n"
                                  "Après un retour aux réglages, le programme redémarre.")));
    Box.setOption(QInputDialog::UseListViewForComboBoxItems);
    QStringList Words;
    for (const Choice& Each : From)
        Words << Each.Words;
    Box.setComboBoxItems(Words);
    Box.setTextValue(Words.first());
    Box.resize(BoxSize);
    if (Box.exec() != QDialog::Accepted)
        return nullptr;
    const auto At = Words.indexOf(Box.textValue());
    return At < 0 ? nullptr : &From[static_cast<std::size_t>(At)];
}

} // namespace

void GoBackToBackup(Application& App, const std::function<void()>& Restart)
{
    const std::vector<Choice> All = Choices(App);
    if (All.empty())
        return App.MsgBox(Typeset("Il n’y a pas encore de sauvegarde : la première se fait peu "
                                  "après le démarrage."));
    const Choice* Chosen = Ask(All);
    if (Chosen == nullptr)
        return;
    App.Door.Event([&] {
        App.EmptySlots();
        Revenir(Chosen->From, Chosen->To, Maintenant());
        if (Chosen->To.filename() == ConfigFile)
            Restart();
        else
            RelireCommandes(App);
    });
}

bool OfferLatestBackup(Application& App, const std::string& WhatWentWrong)
{
    const std::filesystem::path File = App.Chemin("/" + PanierFile);
    const std::vector<Copie> All = CopiesDe(File);
    if (All.empty() || !EstAbîmé(File))
        return false;
    if (!App.TheDialogs.Confirm(
            WhatWentWrong + "\n\n" +
            Typeset("Faut-il revenir à la dernière sauvegarde des commandes, du ") +
            FromQt(Moment(All.front())) +
            Typeset(" ? Un fichier abîmé reste à côté, sous « Panier.abîmé.mdb ».")))
        return false;
    try {
        Revenir(All.front().File, File, Maintenant());
        return true;
    } catch (const Failure& Given) {
        App.MsgBox(Given.Sentence());
        return false;
    }
}

} // namespace orvane
