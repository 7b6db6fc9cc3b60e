#pragma once

#include "toolkit/lists.h"
#include "view/control_view.h"
#include "view/offers.h"

#include <QComboBox>

#include <optional>
#include <string>

namespace orvane {

class EntryPopup;
class User;

// The toolkit's editable combo box picks by itself when Enter is pressed, when it loses the focus
// and when the wheel turns. So its own list stays empty; entries are offered and picked here.
class ComboBoxView : public QComboBox, public ControlView
{
  public:
    ComboBoxView(ComboBox& Model, User& TheUser, QWidget* Parent);

    QWidget& Widget() override { return *this; }
    void Follow(PropertyId What) override;
    void FollowAll() override;
    std::vector<QWidget*> TabStops() override { return {this}; }

    void showPopup() override;
    void hidePopup() override;
    const EntryPopup* Popup() const { return ThePopup; } // nothing before its first opening

  protected:
    QRect Place() override;
    void paintEvent(QPaintEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void hideEvent(QHideEvent* Event) override;
    void focusInEvent(QFocusEvent* Event) override;
    void focusOutEvent(QFocusEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent*) override {}
    void wheelEvent(QWheelEvent* Event) override;
    bool eventFilter(QObject* Target, QEvent* Event) override;

  private:
    bool IsOpen() const;
    EntryPopup& MadePopup();
    void Toggle();
    void Move(int Rows);
    void Typed(const QString& Text);
    void TakeBack();
    void Settle();
    void Offer();
    void Pick(int Entry);
    void ShowText();
    void ShowFont();
    void ShowTip();
    void ShowColours();

    ComboBox& Box;
    User& TheUser;
    Offers TheOffers;
    EntryPopup* ThePopup = nullptr;
    bool SelectsOnRelease = false;

    // The text that stood before a half-typed one: what shows is neither a pick's nor the
    // program's.
    std::optional<std::string> Before;
};

} // namespace orvane
