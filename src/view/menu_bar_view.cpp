#include "view/menu_bar_view.h"

#include "view/contrast.h"
#include "view/keyboard_focus.h"
#include "view/look.h"
#include "view/qt_text.h"
#include "view/tip.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace orvane {

namespace {

constexpr int Gap = 8;
constexpr int IconSize = 16;
constexpr int TitlePicture = 24;
constexpr int MarkWide = 4; // at the left of the entry in hand
constexpr double HoverShare = 0.13;
constexpr double PressedShare = 0.26;
constexpr double InkShare = 0.5; // of the entries' colour

} // namespace

MenuEntryView::MenuEntryView(const SideMenu::Item& Item, const SideMenu::Colours& Colours,
                             const ImageList* Icons, QWidget* Parent)
    : QAbstractButton(Parent),
      TheKey(Item.Key),
      Colours(Colours)
{
    setObjectName(ToQt(Item.Key));
    setText(ToQt(Item.Text).replace(u'&', QStringLiteral("&&")));
    setAccessibleName(ToQt(Item.Text));
    setAccessibleDescription(ToQt(Item.Tip));
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::ClickFocus);
    if (Icons != nullptr && Item.Icon >= 0 && Item.Icon < Icons->Count())
        Icon.Set(Icons->Picture(Item.Icon + 1));
}

void MenuEntryView::SetInHand(bool Now)
{
    if (Now == InHand)
        return;
    InHand = Now;
    QAccessible::State Checked;
    Checked.checked = true;
    QAccessibleStateChangeEvent Told(this, Checked);
    QAccessible::updateAccessibility(&Told);
    update();
}

void MenuEntryView::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    const QColor Ground = look::GroundOf(Colours[2]);
    const QColor Words =
        Readable(Mixed(look::ColourOf(Colours[3]), look::Now().Ink, InkShare), {&Ground, 1});
    if (InHand) {
        Painter.fillRect(rect().adjusted(1, 0, -1, 0),
                         Mixed(Ground, look::Now().Focus, HoverShare));
        Painter.fillRect(QRect(1, 0, MarkWide, height()), look::Now().Focus);
    }
    if (isDown() || underMouse())
        Painter.fillRect(rect().adjusted(1, 0, -1, 0),
                         Mixed(Ground, look::Now().Focus, isDown() ? PressedShare : HoverShare));
    const QPixmap& Pixels =
        Icon.For({IconSize, IconSize}, devicePixelRatioF(), PictureSource::Fit::KeepingProportions);
    if (!Pixels.isNull())
        Painter.drawPixmap(
            QPointF(Gap + 2, (height() - Pixels.deviceIndependentSize().height()) / 2), Pixels);
    Painter.setPen(InHand || isDown() || underMouse() || ShowsFocus(*this) ? look::Now().Ink
                                                                           : Words);
    QFont Marked = font();
    Marked.setBold(InHand);
    Painter.setFont(Marked);
    const QRect Box = WordsBox();
    Painter.drawText(
        Box, Qt::AlignLeft | Qt::AlignVCenter,
        Painter.fontMetrics().elidedText(accessibleName(), Qt::ElideRight, Box.width()));
    if (ShowsFocus(*this))
        look::PaintFocusRing(Painter, QRectF(rect()).adjusted(2, 1, -2, -1), look::FieldRadius);
}

void MenuEntryView::resizeEvent(QResizeEvent* Event)
{
    QAbstractButton::resizeEvent(Event);
    const bool Fits = fontMetrics().horizontalAdvance(accessibleName()) <= WordsBox().width();
    const QString Tip = accessibleDescription();
    SetTip(*this, Fits ? Tip : Tip.isEmpty() ? accessibleName() : accessibleName() + u'\n' + Tip);
}

QRect MenuEntryView::WordsBox() const
{
    return rect().adjusted(2 * Gap + IconSize + 2, 0, -Gap, 0);
}

void MenuEntryView::keyPressEvent(QKeyEvent* Event)
{
    switch (Event->key()) {
    case Qt::Key_Up:
        OnMove(-1);
        return;
    case Qt::Key_Down:
        OnMove(1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!Event->isAutoRepeat())
            click();
        return;
    default:
        QAbstractButton::keyPressEvent(Event);
    }
}

void MenuEntryView::focusInEvent(QFocusEvent* Event)
{
    QAbstractButton::focusInEvent(Event);
    OnFocus();
}

MenuBarView::MenuBarView(const SideMenu::Bar& Bar, const ImageList* Icons, QWidget* Parent)
    : QWidget(Parent),
      Title(ToQt(Bar.Title)),
      Colours(Bar.TheColours),
      HasPicture(!Bar.Picture.IsEmpty())
{
    setObjectName(ToQt(Bar.Key));
    SetTip(*this, ToQt(Bar.Tip));
    setAccessibleName(Title);
    setAccessibleDescription(ToQt(Bar.Tip));
    Picture.Set(Bar.Picture);
    for (const SideMenu::Item& Each : Bar.Items)
        TheEntries.push_back(new MenuEntryView(Each, Colours, Icons, this));
}

QRect MenuBarView::TitleBox(int Width) const
{
    QFont Bold = font();
    Bold.setBold(true);
    const int Left = Gap + 2 + (HasPicture ? TitlePicture + Gap : 0);
    return QFontMetrics(Bold)
        .boundingRect(QRect(Left, 0, Width - Left - Gap, 1000), Qt::TextWordWrap, Title)
        .translated(0, 6);
}

int MenuBarView::HeightFor(int Width)
{
    const int Row = std::max(fontMetrics().height() + 10, 26);
    TitleHeight = std::max(TitleBox(Width).height() + 12, HasPicture ? TitlePicture + 8 : 0);
    int Top = TitleHeight + 4;
    for (MenuEntryView* Each : TheEntries) {
        Each->setGeometry(0, Top, Width, Row);
        Top += Row;
    }
    return Top + 5;
}

void MenuBarView::PaintTitle(QPainter& Painter)
{
    const QRectF Bar(0, 0, width(), TitleHeight);
    const bool IsPlain = Colours[0] == Black;
    QLinearGradient Fill(Bar.topLeft(), Bar.bottomLeft());
    Fill.setColorAt(0, IsPlain ? look::Now().PlateTop : look::ColourOf(Colours[0]).lighter(120));
    Fill.setColorAt(1, IsPlain ? look::Now().PlateBottom : look::ColourOf(Colours[0]));
    Painter.fillRect(Bar, Fill);
    const QPixmap& Pixels = Picture.For({TitlePicture, TitlePicture}, devicePixelRatioF(),
                                        PictureSource::Fit::KeepingProportions);
    if (!Pixels.isNull())
        Painter.drawPixmap(
            QPointF(Gap + 2, (Bar.height() - Pixels.deviceIndependentSize().height()) / 2), Pixels);
    QFont Bold = font();
    Bold.setBold(true);
    Painter.setFont(Bold);
    Painter.setPen(Colours[1] == White ? look::Now().PlateInk : look::ColourOf(Colours[1]));
    const QRect Box(TitleBox(width()).left(), 0, width() - TitleBox(width()).left() - 2,
                    TitleHeight);
    Painter.drawText(Box, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, Title);
}

void MenuBarView::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    Painter.setRenderHint(QPainter::Antialiasing);
    const QRectF Card = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath Shape;
    Shape.addRoundedRect(Card, look::PanelRadius, look::PanelRadius);
    Painter.setClipPath(Shape);
    Painter.fillRect(rect(), look::GroundOf(Colours[2]));
    PaintTitle(Painter);
    Painter.setClipping(false);
    Painter.setPen(QPen(look::Now().PanelBorder, 1));
    Painter.drawPath(Shape);
}

} // namespace orvane
