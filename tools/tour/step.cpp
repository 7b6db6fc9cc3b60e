#include "tour/step.h"

#include <QStringList>

namespace orvane::tour {

namespace {

QString NameOf(Deed What)
{
    static const QStringList Names{
        QStringLiteral("On"),    QStringLiteral("Click"),  QStringLiteral("Item"),
        QStringLiteral("Pick"),  QStringLiteral("Search"), QStringLiteral("Type"),
        QStringLiteral("Open"),  QStringLiteral("See"),    QStringLiteral("Wrong"),
        QStringLiteral("Await"), QStringLiteral("Photo")};
    return Names.at(static_cast<qsizetype>(What));
}

} // namespace

QString Told(const Step& Which)
{
    QString Result = NameOf(Which.What);
    if (!Which.Target.isEmpty())
        Result += u' ' + Which.Target;
    if (!Which.Text.isEmpty())
        Result += QStringLiteral(" « %1 »").arg(Which.Text);
    if (!Which.Picture.isEmpty())
        Result += QStringLiteral(" (%1)").arg(Which.Picture);
    return Result;
}

} // namespace orvane::tour
