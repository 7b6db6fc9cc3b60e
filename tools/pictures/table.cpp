#include "pictures/table.h"

#include <QFileInfo>

namespace orvane::pictures {

namespace {

QString Composed(const std::string& Text)
{
    return QString::fromStdString(Text).normalized(QString::NormalizationForm_C).trimmed();
}

TableRow RowOf(const QStringList& Columns, const tools::TsvTable::Row& Given)
{
    TableRow Row{QString::fromStdString(Given.Place), {}};
    for (qsizetype i = 0; i < Columns.size(); ++i) {
        const QString Cell = Composed(Given.Cells[static_cast<std::size_t>(i)]);
        if (Cell.isEmpty())
            throw SourceError(
                QStringLiteral("%1 : la colonne « %2 » est vide").arg(Row.Place, Columns[i]));
        Row.Cells.insert(Columns[i], Cell);
    }
    return Row;
}

} // namespace

Table ReadTable(const QString& Path, const QStringList& RequiredColumns)
{
    const tools::TsvTable Given = tools::ReadTsv(Path.toStdString());
    Table Result;
    for (const std::string& Column : Given.Columns)
        Result.Columns << Composed(Column);
    for (const QString& Column : RequiredColumns)
        if (!Result.Columns.contains(Column))
            throw SourceError(QStringLiteral("%1 : il manque la colonne « %2 »")
                                  .arg(QFileInfo(Path).fileName(), Column));
    for (const tools::TsvTable::Row& Row : Given.Rows)
        Result.Rows.push_back(RowOf(Result.Columns, Row));
    return Result;
}

} // namespace orvane::pictures
