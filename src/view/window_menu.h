#pragma once

#include <QKeySequence>
#include <QMenuBar>
#include <QString>

#include <functional>
#include <vector>

class QLabel;
class QPixmap;

namespace orvane {

// An entry of the menu that every window bears. The key works wherever the focus is in the window.
struct MenuEntry
{
    QString Words;
    QKeySequence Key;
    std::function<void()> Run;
    bool IsChosen = false; // of several, the one in force

    // Words that change: the entry stands in the bar too, and nowhere while they are empty.
    std::function<QString()> Offered = {};
};

struct Menu
{
    QString Title; // with an & before its letter
    std::vector<MenuEntry> Entries;
    std::function<std::vector<MenuEntry>()> More = {}; // below them, as they are when it opens
    bool IsOfLists = false;                            // a right click on a list opens it, too
};

using Menus = std::vector<Menu>;

// The slim bar above a screen's area, in the colours of its background.
class WindowMenu : public QMenuBar
{
  public:
    WindowMenu(const Menus& What, QWidget* Parent);

    void TakeColours(const QPixmap& Background);
    void ShowAtTheEnd(const QString& Words); // what all windows tell, at the right
    void ShowOffers();                       // as they are now
    void OpenForList(const QPoint& Where);   // the menu of lists, in the screen's coordinates

  private:
    void Fill(QMenu& Opened, const std::vector<MenuEntry>& Entries);

    std::vector<std::pair<QAction*, std::function<QString()>>> Offers;
    QMenu* OfLists = nullptr;
    QLabel* End;
};

} // namespace orvane
