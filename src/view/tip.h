#pragma once

#include <QTextDocument>
#include <QWidget>

namespace orvane {

// What a tip has to be told to show that text as it stands: Qt takes some texts for markup, and
// markup fetches files.
inline QString AsTip(const QString& Text)
{
    return Qt::mightBeRichText(Text) ? Qt::convertFromPlainText(Text) : Text;
}

inline void SetTip(QWidget& On, const QString& Text)
{
    On.setToolTip(AsTip(Text));
}

} // namespace orvane
