#pragma once

#include <QKeySequence>
#include <QMenuBar>
#include <QString>

#include <functional>
#include <vector>

class QPixmap;

namespace orvane {

// An entry of the menu that every window bears. The key works wherever the focus is in the window.
struct MenuEntry
{
    QString Words;
    QKeySequence Key;
    std::function<void()> Run;
};

struct Menu
{
    QString Title; // with an & before its letter
    std::vector<MenuEntry> Entries;
};

using Menus = std::vector<Menu>;

// The slim bar above a screen's area, in the colours of its background.
class WindowMenu : public QMenuBar
{
  public:
    WindowMenu(const Menus& What, QWidget* Parent);

    void TakeColours(const QPixmap& Background);
};

} // namespace orvane
