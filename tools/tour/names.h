#pragma once

#include "scenario/script.h"

#include <QString>

class QWidget;

namespace orvane::tour {

// A name as a part of a file's name: "Forge nocturne" is "forge-nocturne", "1024 x 768" is
// "1024x768".
QString FileNamePart(const QString& Name);

// The control that a widget is, or is a part of: parts bear no name of their own.
QString ControlOf(const QWidget* Which);

// A step that can't be done, for that reason.
inline scenario::CannotGoOn Because(const QString& Why)
{
    return scenario::CannotGoOn(Why.toStdString());
}

} // namespace orvane::tour
