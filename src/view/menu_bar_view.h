#pragma once

#include "toolkit/side_menu.h"
#include "view/picture_source.h"

#include <QAbstractButton>
#include <QRect>
#include <QWidget>

#include <functional>
#include <vector>

namespace orvane {

// One entry of a side menu.
class MenuEntryView : public QAbstractButton
{
  public:
    MenuEntryView(const SideMenu::Item& Item, const SideMenu::Colours& Colours,
                  const ImageList* Icons, QWidget* Parent);

    const std::string& Key() const { return TheKey; }
    bool IsInHand() const { return InHand; }
    void SetInHand(bool Now);             // its things are on the screen
    std::function<void(int Rows)> OnMove; // by the arrow keys
    std::function<void()> OnFocus;

  protected:
    void paintEvent(QPaintEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void focusInEvent(QFocusEvent* Event) override;

  private:
    QRect WordsBox() const;

    std::string TheKey;
    bool InHand = false;
    SideMenu::Colours Colours;
    PictureSource Icon;
};

// One bar of a side menu: a coloured title with its entries below, as one card.
class MenuBarView : public QWidget
{
  public:
    MenuBarView(const SideMenu::Bar& Bar, const ImageList* Icons, QWidget* Parent);

    const std::vector<MenuEntryView*>& Entries() const { return TheEntries; }
    int HeightFor(int Width); // and lays its parts out for that width

  protected:
    void paintEvent(QPaintEvent* Event) override;

  private:
    QRect TitleBox(int Width) const; // of its words, in the title
    void PaintTitle(QPainter& Painter);

    QString Title;
    SideMenu::Colours Colours;
    PictureSource Picture;
    bool HasPicture;
    int TitleHeight = 0;
    std::vector<MenuEntryView*> TheEntries;
};

} // namespace orvane
