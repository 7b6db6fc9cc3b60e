#pragma once

#include "toolkit/control.h"

#include <QString>

#include <string>

namespace orvane {

inline QString ToQt(const std::string& Text)
{
    return QString::fromStdString(Text);
}

inline std::string FromQt(const QString& Text)
{
    return Text.toStdString();
}

inline Qt::Alignment ToQt(Alignment Given)
{
    switch (Given) {
    case Alignment::Left:
        return Qt::AlignLeft;
    case Alignment::Right:
        return Qt::AlignRight;
    case Alignment::Centre:
        break;
    }
    return Qt::AlignHCenter;
}

} // namespace orvane
