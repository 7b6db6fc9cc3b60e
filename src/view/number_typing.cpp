#include "view/number_typing.h"

namespace orvane {

QString OneLine(const QString& Pasted)
{
    QString Result = Pasted.normalized(QString::NormalizationForm_C).trimmed();
    for (QChar& Each : Result)
        if (Each == QChar::Tabulation || Each == QChar::LineSeparator ||
            Each == QChar::ParagraphSeparator || Each.category() == QChar::Other_Control)
            Each = QChar::Space;
    return Result;
}

QString NumberText(const QString& Pasted)
{
    QString Result = OneLine(Pasted);
    Result.removeIf([](QChar Each) { return Each.isSpace(); });
    if (Result.count(u'.') == 1 && !Result.contains(u','))
        Result.replace(u'.', u',');
    return Result;
}

} // namespace orvane
