#pragma once

#include <QString>

namespace orvane {

// A pasted text as one line in composed letters.
QString OneLine(const QString& Pasted);

// A pasted number as the number texts spell it: no blanks, and a comma where a lone point was
// meant.
QString NumberText(const QString& Pasted);

} // namespace orvane
