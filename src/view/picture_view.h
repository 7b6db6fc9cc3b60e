#pragma once

#include "toolkit/controls.h"
#include "view/control_view.h"
#include "view/picture_source.h"

#include <QAbstractButton>

namespace orvane {

class User;

// An image or a picture box: something to look at and, when its model listens, to click.
class PictureView : public QAbstractButton, public ControlView
{
  public:
    PictureView(PictureControl& Model, User& TheUser, QWidget* Parent);

    QWidget& Widget() override { return *this; }
    void Follow(PropertyId What) override;
    void FollowAll() override;
    std::vector<QWidget*> TabStops() override;

    bool IsClickable() const { return static_cast<bool>(TheModel.OnClick); }

  protected:
    void paintEvent(QPaintEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;

  private:
    void FollowPicture();

    PictureControl& TheModel;
    User& TheUser;
    PictureSource Source;
};

} // namespace orvane
