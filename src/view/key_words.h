#pragma once

#include "view/qt_text.h"

#include <QKeyEvent>
#include <QKeySequence>

#include <string>

// The keys of buttons, which the model writes as "Ctrl+Return".
namespace orvane {

inline bool IsKey(const QKeyEvent& Pressed, const std::string& Key)
{
    const auto Modifiers = Pressed.modifiers() & ~Qt::KeypadModifier;
    const int Code = Pressed.key() == Qt::Key_Enter ? Qt::Key_Return : Pressed.key();
    return !Key.empty() && QKeySequence(QKeyCombination(Modifiers, static_cast<Qt::Key>(Code))) ==
                               QKeySequence(ToQt(Key), QKeySequence::PortableText);
}

// As the keyboard has it printed: "Ctrl+Entrée".
inline QString KeyWords(const std::string& Key)
{
    return QKeySequence(ToQt(Key), QKeySequence::PortableText)
        .toString(QKeySequence::NativeText)
        .replace(QStringLiteral("Retour"), QStringLiteral("Entrée"));
}

} // namespace orvane
