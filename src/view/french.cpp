#include "view/french.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <clocale>

namespace orvane {

void InstallFrench(QApplication& Application)
{
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    auto* Words = new QTranslator(&Application);
    const QString Folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (Words->load(QStringLiteral("qtbase_fr"), Folder))
        QApplication::installTranslator(Words);
    else
        qWarning("no French translation in %s", qPrintable(Folder));
}

} // namespace orvane
