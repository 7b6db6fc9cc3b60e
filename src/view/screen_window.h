#pragma once

#include "toolkit/screen.h"
#include "view/picture_source.h"

#include <QColor>
#include <QWidget>

#include <functional>
#include <unordered_map>

namespace orvane {

class ControlView;
class User;

// The window of one screen: a widget for each of its controls, told of each change.
class ScreenWindow : public QWidget, public ScreenObserver
{
  public:
    ScreenWindow(Screen& Model, User& TheUser);
    ~ScreenWindow() override;

    Screen& Model() const { return TheScreen; }
    std::function<void()> OnFocused; // the desktop has made it the active window

    QColor PanelGround();

    void ControlChanged(Control& Which, PropertyId What) override;
    void ScreenChanged(PropertyId What) override;

  protected:
    bool event(QEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;
    void closeEvent(QCloseEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;

  private:
    void Build();
    void AddView(Control& Which);
    void ArrangeLater();
    void Arrange(); // the order of Tab, and the names of the inputs
    void ShowSize();
    void Close();
    const QPixmap& Background();

    Screen& TheScreen;
    User& TheUser;
    PictureSource Source;
    QColor ThePanelGround;
    qint64 PanelGroundOf = -1; // the background that it was found for
    bool ArrangementIsOld = false;
    std::unordered_map<const Control*, ControlView*> Views; // of what has been visible
};

} // namespace orvane
