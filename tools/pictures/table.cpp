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

std::vector<TableRow> ReadTable(const QString& Path, const QStringList& RequiredColumns)
{
    const tools::TsvTable Given = tools::ReadTsv(Path.toStdString());
    QStringList Columns;
    for (const std::string& Column : Given.Columns)
        Columns << Composed(Column);
    for (const QString& Column : RequiredColumns)
        if (!Columns.contains(Column))
            throw SourceError(QStringLiteral("%1 : il manque la colonne « %2 »")
                                  .arg(QFileInfo(Path).fileName(), Column));
    std::vector<TableRow> Result;
    for (const tools::TsvTable::Row& Row : Given.Rows)
        Result.push_back(RowOf(Columns, Row));
    return Result;
}

double NumberOf(const TableRow& Row, const QString& Column, double Least, double Most)
{
    bool IsNumber = false;
    const double Result = Row.Cells[Column].toDouble(&IsNumber);
    if (!IsNumber || Result < Least || Result > Most)
        throw SourceError(QStringLiteral("%1 : « %2 » : nombre de %3 à %4 attendu")
                              .arg(Row.Place, Row.Cells[Column])
                              .arg(Least)
                              .arg(Most));
    return Result;
}

} // namespace orvane::pictures
