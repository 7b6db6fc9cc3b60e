#pragma once

#include "toolkit/text_box.h"
#include "view/control_view.h"

#include <QLineEdit>

namespace orvane {

class User;

class TextBoxView : public QLineEdit, public ControlView
{
  public:
    TextBoxView(TextBox& Model, User& TheUser, QWidget* Parent);

    QWidget& Widget() override { return *this; }
    void Follow(PropertyId What) override;
    void FollowAll() override;
    std::vector<QWidget*> TabStops() override { return {this}; }

    // The figure belongs to nothing that is chosen, and is painted paler.
    void SetPale(bool Now);

    // Boxes of one column share a font. Fits tells of this one's text alone.
    bool Fits(const QFontMetrics& In) const;
    QFont::Weight Weight() const;
    double FullPoints();
    void TakeFont(const QFont& Shared);

  protected:
    void paintEvent(QPaintEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void focusInEvent(QFocusEvent* Event) override;
    void focusOutEvent(QFocusEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;

  private:
    void Typed(const QString& Text);
    QString Spelled(const QString& Text) const;
    void Respell(const QString& Wanted);
    void ShowText();
    void ShowFont();
    int Room() const; // for the text
    void ShowState();
    void ShowTip();
    bool IsEmptyLine() const;
    void PaintEmptyLine();

    TextBox& Box;
    User& TheUser;
    QFont Resting; // what the column has while nobody types here
    bool IsPale = false;
    bool SelectsOnRelease = false;
};

} // namespace orvane
