#pragma once

#include "tables/tsv.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace orvane::pictures {

// Whatever is wrong with the sources; the text is for the person who keeps them.
class SourceError : public tools::SourceError
{
  public:
    explicit SourceError(const QString& Message) : tools::SourceError(Message.toStdString()) {}
};

// A row of a tab-separated table whose first row names the columns.
struct TableRow
{
    QString Place; // file and line, for messages
    QHash<QString, QString> Cells;
};

// Empty lines and lines that begin with # are skipped.
std::vector<TableRow> ReadTable(const QString& Path, const QStringList& RequiredColumns);

double NumberOf(const TableRow& Row, const QString& Column, double Least, double Most);

} // namespace orvane::pictures
