#include "pictures/table.h"

#include <QFile>
#include <QFileInfo>

namespace orvane::pictures {

QByteArray ReadWholeFile(const QString& Path)
{
    QFile File(Path);
    if (!QFileInfo(Path).isFile() || !File.open(QIODevice::ReadOnly))
        throw SourceError(QStringLiteral("%1 : fichier introuvable ou illisible").arg(Path));
    return File.readAll();
}

namespace {

TableRow RowOf(const QStringList& Columns, const QStringList& Cells, const QString& Place)
{
    if (Cells.size() != Columns.size())
        throw SourceError(QStringLiteral("%1 : %2 colonnes au lieu de %3")
                              .arg(Place)
                              .arg(Cells.size())
                              .arg(Columns.size()));
    TableRow Row{Place, {}};
    for (qsizetype i = 0; i < Cells.size(); ++i) {
        if (Cells[i].trimmed().isEmpty())
            throw SourceError(
                QStringLiteral("%1 : la colonne « %2 » est vide").arg(Place, Columns[i]));
        Row.Cells.insert(Columns[i], Cells[i].trimmed());
    }
    return Row;
}

} // namespace

Table ReadTable(const QString& Path, const QStringList& RequiredColumns)
{
    Table Result;
    const QString Name = QFileInfo(Path).fileName();
    const QStringList Lines =
        QString::fromUtf8(ReadWholeFile(Path)).normalized(QString::NormalizationForm_C).split('\n');
    for (qsizetype i = 0; i < Lines.size(); ++i) {
        const QString& Line = Lines[i];
        if (Line.trimmed().isEmpty() || Line.startsWith('#'))
            continue;
        const QStringList Cells = Line.split('\t');
        if (Result.Columns.isEmpty()) {
            for (const QString& Cell : Cells)
                Result.Columns << Cell.trimmed();
            continue;
        }
        const QString Place = QStringLiteral("%1, ligne %2").arg(Name).arg(i + 1);
        Result.Rows.push_back(RowOf(Result.Columns, Cells, Place));
    }
    for (const QString& Column : RequiredColumns)
        if (!Result.Columns.contains(Column))
            throw SourceError(QStringLiteral("%1 : il manque la colonne « %2 »").arg(Name, Column));
    return Result;
}

} // namespace orvane::pictures
