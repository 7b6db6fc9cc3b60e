#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace orvane::pictures {

// Whatever is wrong with the sources; the text is for the person who keeps them.
class SourceError : public std::runtime_error
{
  public:
    explicit SourceError(const QString& Message) : std::runtime_error(Message.toStdString()) {}
};

// A row of a tab-separated table whose first row names the columns.
struct TableRow
{
    QString Place; // file and line, for messages
    QHash<QString, QString> Cells;
};

struct Table
{
    QStringList Columns;
    std::vector<TableRow> Rows;
};

QByteArray ReadWholeFile(const QString& Path);

// Empty lines and lines that begin with # are skipped.
Table ReadTable(const QString& Path, const QStringList& RequiredColumns);

} // namespace orvane::pictures
