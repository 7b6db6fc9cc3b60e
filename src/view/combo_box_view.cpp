#include "view/combo_box_view.h"

#include "base/typography.h"
#include "toolkit/user.h"
#include "view/act.h"
#include "view/entry_popup.h"
#include "view/keyboard_focus.h"
#include "view/look.h"
#include "view/qt_text.h"
#include "view/telling.h"
#include "view/tip.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QWheelEvent>

namespace orvane {

namespace {

// Whether a person who goes there goes on with something else. A button may still act on what was
// typed.
bool IsInput(const QWidget* There)
{
    const auto* Line = qobject_cast<const QLineEdit*>(There);
    return (Line != nullptr && !Line->isReadOnly()) || qobject_cast<const QComboBox*>(There) ||
           qobject_cast<const QAbstractItemView*>(There);
}

} // namespace

ComboBoxView::ComboBoxView(ComboBox& Model, User& TheUser, QWidget* Parent)
    : QComboBox(Parent),
      ControlView(Model),
      Box(Model),
      TheUser(TheUser),
      TheOffers(Model)
{
    setEditable(true);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
    lineEdit()->setFrame(false);
    lineEdit()->installEventFilter(this);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& Text) { Typed(Text); });
}

void ComboBoxView::Follow(PropertyId What)
{
    switch (What) {
    case PropertyId::Text:
        Settle();
        ShowText();
        break;
    case PropertyId::Items:
        if (Box.ListCount() == 0) // emptied, and the text with it
            Settle();
        TheOffers.Forget();
        hidePopup();
        break;
    case PropertyId::ListIndex:
        break;
    case PropertyId::FontSize:
        ControlView::Follow(What);
        ShowFont();
        break;
    case PropertyId::ForeColor:
    case PropertyId::BackColor:
        ShowColours();
        break;
    case PropertyId::Tip:
    case PropertyId::Stored:
        ShowTip();
        update();
        break;
    case PropertyId::Called:
        ControlView::Follow(What);
        lineEdit()->setAccessibleName(accessibleName());
        break;
    default:
        ControlView::Follow(What);
    }
}

void ComboBoxView::FollowAll()
{
    ControlView::FollowAll();
    ShowColours();
    ShowText();
}

QRect ComboBoxView::Place()
{
    QRect Result = ControlView::Place();
    if (Result.height() <= 0)
        Result.setHeight(static_cast<int>(look::ComboHeight * Scale()));
    return Result;
}

bool ComboBoxView::IsOpen() const
{
    return ThePopup != nullptr && ThePopup->isVisible();
}

EntryPopup& ComboBoxView::MadePopup()
{
    if (ThePopup == nullptr) {
        ThePopup = new EntryPopup(*this, Box);
        ThePopup->OnPick = [this](int Entry) { Pick(Entry); };
    }
    ThePopup->setAccessibleName(accessibleName());
    return *ThePopup;
}

void ComboBoxView::showPopup()
{
    if (Box.ListCount() > 0)
        MadePopup().OpenAll(Box.ListIndex);
}

void ComboBoxView::hidePopup()
{
    if (ThePopup != nullptr)
        ThePopup->hide();
}

void ComboBoxView::Toggle()
{
    if (IsOpen())
        hidePopup();
    else
        showPopup();
}

void ComboBoxView::Move(int Rows)
{
    if (IsOpen()) {
        MadePopup().Move(Rows);
        return;
    }
    const int Next = Box.ListIndex + Rows;
    if (Next >= 0 && Next < Box.ListCount())
        Pick(Next);
}

void ComboBoxView::Typed(const QString& Text)
{
    const std::string Former = Before.value_or(Box.Text);
    Act([&] { TheUser.Type(Box, FromQt(Text)); });
    if (Former != std::string(Box.Text))
        Before = Former;
    ShowText();
    ShowTip();
    Act([&] { Offer(); });
}

void ComboBoxView::TakeBack()
{
    Act([&] { TheUser.Type(Box, std::string(*Before)); });
    ShowText();
}

void ComboBoxView::Settle()
{
    if (!Before)
        return;
    Before.reset();
    ShowTip();
    update();
}

void ComboBoxView::Offer()
{
    std::vector<int> Found = TheOffers.For(Box.Text);
    if (Found.empty() || !isVisible()) {
        hidePopup();
        return;
    }
    const int First = Found.front();
    MadePopup().OpenSome(std::move(Found));
    if (TheOffers.Is(First, Box.Text))
        MadePopup().Highlight(First); // typed in full: Enter picks it
}

void ComboBoxView::Pick(int Entry)
{
    hidePopup();
    if (Entry >= 0) {
        Settle();
        Act([&] { TheUser.Pick(Box, Entry); });
    }
    ShowText();
    lineEdit()->setCursorPosition(0);
}

void ComboBoxView::ShowText()
{
    const QString Wanted = ToQt(Box.Text);
    if (lineEdit()->text() == Wanted)
        return;
    lineEdit()->setText(Wanted);
    ShowFont();
    lineEdit()->setCursorPosition(0); // a long text shows its beginning
    ShowTip();
}

// A long text takes a smaller font; the list keeps the full one.
void ComboBoxView::ShowFont()
{
    const int Room = width() - look::ArrowWidth(height()) - 2 * look::FieldPadding;
    const QFont Fitting = look::FittingFont(Points(), lineEdit()->text(), Room);
    if (Fitting != lineEdit()->font())
        lineEdit()->setFont(Fitting);
}

void ComboBoxView::ShowTip()
{
    const QString Tip = Before          ? QStringLiteral("Texte tapé : aucun choix n’est fait.")
                        : IsUnkept(Box) ? ToQt(Typeset(UnkeptWords))
                                        : ToQt(Box.Tip);
    const QString Text = lineEdit()->text();
    const bool Fits = lineEdit()->fontMetrics().horizontalAdvance(Text) <=
                      lineEdit()->width() - 2 * look::FieldPadding;
    setAccessibleDescription(Tip);
    SetTip(*this, Fits ? Tip : Tip.isEmpty() ? Text : Text + u'\n' + Tip);
}

void ComboBoxView::ShowColours()
{
    ShowBoxColours();
}

void ComboBoxView::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    look::PaintField(Painter, rect(),
                     {.FieldGround = palette().color(QPalette::Base),
                      .Focused = ShowsFocus(*this),
                      .HalfTyped = Before.has_value(),
                      .Unkept = IsUnkept(Box)});
    const int Wide = look::ArrowWidth(height());
    const QRect Arrow(width() - Wide, 0, Wide, height());
    look::PaintArrow(Painter, Arrow,
                     ShowsFocus(*this) || underMouse() ? look::Now().Focus : look::Now().MutedInk);
}

void ComboBoxView::resizeEvent(QResizeEvent* Event)
{
    QComboBox::resizeEvent(Event);
    ShowFont();
    ShowTip();
}

void ComboBoxView::hideEvent(QHideEvent* Event)
{
    hidePopup();
    QComboBox::hideEvent(Event);
}

void ComboBoxView::focusInEvent(QFocusEvent* Event)
{
    QComboBox::focusInEvent(Event);
    if (lineEdit()->hasSelectedText()) // backwards, so that a long text shows its beginning
        lineEdit()->setSelection(static_cast<int>(lineEdit()->text().size()),
                                 -static_cast<int>(lineEdit()->text().size()));
}

void ComboBoxView::focusOutEvent(QFocusEvent* Event)
{
    hidePopup();
    QComboBox::focusOutEvent(Event);
    if (Event->reason() != Qt::PopupFocusReason && Event->reason() != Qt::ActiveWindowFocusReason)
        lineEdit()->setCursorPosition(0);
    if (Before && !Box.KeepsTyping && IsInput(QApplication::focusWidget()))
        TakeBack();
}

void ComboBoxView::keyPressEvent(QKeyEvent* Event)
{
    const bool Alt = Event->modifiers().testFlag(Qt::AltModifier);
    switch (Event->key()) {
    case Qt::Key_F4:
        Toggle();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (Alt)
            Toggle();
        else
            Move(Event->key() == Qt::Key_Down ? 1 : -1);
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (IsOpen())
            Move(Event->key() == Qt::Key_PageDown ? ThePopup->PageRows() : -ThePopup->PageRows());
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (IsOpen())
            Pick(ThePopup->Highlighted());
        else
            Event->ignore(); // the window's default button
        return;
    case Qt::Key_Escape:
        if (IsOpen())
            hidePopup();
        else if (Before)
            TakeBack();
        else
            Event->ignore(); // the way back is the window's business
        return;
    default:
        QComboBox::keyPressEvent(Event);
    }
}

void ComboBoxView::mousePressEvent(QMouseEvent* Event)
{
    if (Event->button() == Qt::LeftButton)
        Toggle();
}

// A click into the text opens the list as one on the arrow does; what is typed then begins afresh.
bool ComboBoxView::eventFilter(QObject* Target, QEvent* Event)
{
    const bool IsLeft = (Event->type() == QEvent::MouseButtonPress ||
                         Event->type() == QEvent::MouseButtonRelease) &&
                        static_cast<QMouseEvent*>(Event)->button() == Qt::LeftButton;
    if (!IsLeft)
        return QComboBox::eventFilter(Target, Event);
    if (Event->type() == QEvent::MouseButtonPress) {
        Toggle();
        SelectsOnRelease = IsOpen();
    } else if (SelectsOnRelease && !lineEdit()->hasSelectedText())
        QMetaObject::invokeMethod(lineEdit(), &QLineEdit::selectAll, Qt::QueuedConnection);
    return QComboBox::eventFilter(Target, Event);
}

void ComboBoxView::wheelEvent(QWheelEvent* Event)
{
    Event->ignore();
}

} // namespace orvane
