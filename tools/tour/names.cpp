#include "tour/names.h"

#include <QRegularExpression>
#include <QWidget>

namespace orvane::tour {

QString FileNamePart(const QString& Name)
{
    static const QRegularExpression Times(QStringLiteral("(\\d)\\s*x\\s*(\\d)"));
    static const QRegularExpression Marks(QStringLiteral("\\p{M}+"));
    static const QRegularExpression Others(QStringLiteral("[^a-z0-9]+"));
    QString Result = Name.normalized(QString::NormalizationForm_D).toLower();
    Result.remove(Marks).replace(QStringLiteral("œ"), QStringLiteral("oe"));
    Result.replace(Times, QStringLiteral("\\1x\\2")).replace(Others, QStringLiteral("-"));
    return Result;
}

QString ControlOf(const QWidget* Which)
{
    while (Which != nullptr && Which->objectName().isEmpty())
        Which = Which->parentWidget();
    return Which == nullptr ? QStringLiteral("nothing") : Which->objectName();
}

} // namespace orvane::tour
