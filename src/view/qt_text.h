#pragma once

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

} // namespace orvane
