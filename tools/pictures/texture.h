#pragma once

#include "pictures/manifest.h"

#include <map>
#include <tuple>

namespace orvane::pictures {

// Grains that no drawing can tell (clouded parchment, hammered metal), one to a row of
// skins/textures.tsv. The same at each run and at each size.
class Textures
{
  public:
    explicit Textures(const QString& Folder);

    // The drawing with a picture over its whole area for each "{texture:name}".
    QString PutInto(QString Svg, const Picture& P) const;

  private:
    using Key = std::tuple<QString, int, int, QString, QString>;

    const TableRow& RowOf(const QString& Name, const Picture& P) const;
    const QString& EncodedFor(const QString& Name, const Picture& P) const;

    std::vector<TableRow> Rows;
    mutable std::map<Key, QString> Made;
};

} // namespace orvane::pictures
