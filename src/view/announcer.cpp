#include "view/announcer.h"

#include <QAccessible>

namespace orvane {

Announcer::Announcer(QWidget* Window) : QWidget(Window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 1, 1);
    hide();
}

// A reader speaks what a notification is called when it comes to be shown.
void Announcer::Say(const QString& Words)
{
    if (!QAccessible::isActive())
        return;
    hide();
    setAccessibleName(Words);
    show();
}

} // namespace orvane
