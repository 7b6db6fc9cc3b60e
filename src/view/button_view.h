#pragma once

#include "toolkit/controls.h"
#include "view/control_view.h"
#include "view/picture_source.h"

#include <QAbstractButton>
#include <QVariantAnimation>

namespace orvane {

class User;

class ButtonView : public QAbstractButton, public ControlView
{
  public:
    ButtonView(Button& Model, User& TheUser, QWidget* Parent);

    QWidget& Widget() override { return *this; }
    void Follow(PropertyId What) override;
    void FollowAll() override;
    std::vector<QWidget*> TabStops() override { return {this}; }

    QString Tip() const; // as it is at this moment, without the key
    void Glow();         // for a short while: what it was pressed for is done

  protected:
    bool event(QEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;

  private:
    void PaintPicture(QPainter& Painter, const QPixmap& Pixels) const;
    void PaintWords(QPainter& Painter) const;
    void FollowWords();

    Button& TheModel;
    User& TheUser;
    PictureSource Source;
    QVariantAnimation Glowing; // from 1 to 0
};

} // namespace orvane
