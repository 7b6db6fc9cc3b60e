#pragma once

#include "toolkit/controls.h"
#include "view/control_view.h"

#include <QLabel>

namespace orvane {

// A caption is fitted into its box: wrapped when the box is high enough, else made smaller, and at
// last cut short with the whole in a tip.
class LabelView : public QLabel, public ControlView
{
  public:
    LabelView(Label& Model, QWidget* Parent);

    QWidget& Widget() override { return *this; }
    void Follow(PropertyId What) override;
    void FollowAll() override;

  protected:
    void paintEvent(QPaintEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;

  private:
    void Fit();
    int Room() const;
    bool Wraps();
    bool Fits(const QFontMetrics& In);

    Label& TheLabel;
};

} // namespace orvane
