#include "view/text_box_view.h"

#include "toolkit/user.h"
#include "view/act.h"
#include "view/look.h"
#include "view/number_typing.h"
#include "view/qt_text.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>

namespace orvane {

TextBoxView::TextBoxView(TextBox& Model, User& TheUser, QWidget* Parent)
    : QLineEdit(Parent),
      ControlView(Model),
      Box(Model),
      TheUser(TheUser)
{
    setFrame(false);
    setTextMargins(look::FieldPadding - 1, 0, look::FieldPadding - 1, 0);
    setAlignment(ToQt(Model.Align) | Qt::AlignVCenter);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& Text) { Typed(Text); });
}

void TextBoxView::Follow(PropertyId What)
{
    switch (What) {
    case PropertyId::Text:
        ShowText();
        break;
    case PropertyId::Locked:
        setReadOnly(Box.Locked);
        setFocusPolicy(Box.Locked ? Qt::ClickFocus : Qt::StrongFocus);
        break;
    case PropertyId::FontSize:
        ShowFont();
        break;
    case PropertyId::Marked:
    case PropertyId::Stale:
    case PropertyId::ForeColor:
    case PropertyId::BackColor:
        ShowState();
        break;
    case PropertyId::Tip:
        ShowTip();
        break;
    default:
        ControlView::Follow(What);
    }
}

void TextBoxView::FollowAll()
{
    ControlView::FollowAll();
    Follow(PropertyId::Locked);
    ShowState();
    ShowText();
}

void TextBoxView::Typed(const QString& Text)
{
    Act([&] { TheUser.Type(Box, FromQt(Text)); });
    ShowText();
    if (text() != Text) // repaired: the next key replaces it
        selectAll();
}

void TextBoxView::Insert(const QString& Pasted)
{
    if (!isReadOnly())
        insert(HoldsNumber() ? NumberText(Pasted) : OneLine(Pasted));
}

void TextBoxView::ShowText()
{
    const QString Wanted = ToQt(Box.Text);
    if (text() == Wanted)
        return;
    setText(Wanted);
    ShowFont();
    if (!hasFocus())
        setCursorPosition(0); // a long text shows its beginning
    ShowTip();
}

// A long text takes a smaller font, but not while somebody types it.
void TextBoxView::ShowFont()
{
    QFont Font = hasFocus() && !isReadOnly() ? look::Font(Box.FontSize)
                                             : look::FittingFont(Box.FontSize, text(), Room());
    Font.setItalic(Box.Stale);
    if (Font != font())
        setFont(Font);
}

int TextBoxView::Room() const
{
    return width() - 3 * look::FieldPadding;
}

void TextBoxView::ShowState()
{
    ShowFont();
    QPalette Colours = palette();
    Colours.setColor(QPalette::Base,
                     Box.Marked ? look::WrongGround : look::ColourOf(Box.BackColor));
    Colours.setColor(QPalette::Text, Box.Stale ? look::MutedInk : look::InkOf(Box.ForeColor));
    setPalette(Colours);
    ShowTip();
    update();
}

void TextBoxView::ShowTip()
{
    QString Tip = ToQt(Box.Tip);
    if (Box.Marked)
        Tip = QStringLiteral("Ce texte n’est pas un nombre.");
    else if (Box.Stale)
        Tip = QStringLiteral("Ce chiffre date d’avant une saisie à corriger.");
    setAccessibleDescription(Tip);
    if (Tip.isEmpty() && fontMetrics().horizontalAdvance(text()) > Room())
        Tip = text();
    setToolTip(Tip);
}

void TextBoxView::paintEvent(QPaintEvent* Event)
{
    QPainter Painter(this);
    look::PaintField(Painter, rect(), {palette().color(QPalette::Base), hasFocus(), Box.Marked});
    Painter.end();
    QLineEdit::paintEvent(Event);
}

void TextBoxView::resizeEvent(QResizeEvent* Event)
{
    QLineEdit::resizeEvent(Event);
    ShowFont();
    ShowTip();
}

void TextBoxView::focusOutEvent(QFocusEvent* Event)
{
    QLineEdit::focusOutEvent(Event);
    if (Event->reason() == Qt::PopupFocusReason || Event->reason() == Qt::ActiveWindowFocusReason)
        return;
    setCursorPosition(0);
    ShowFont();
}

void TextBoxView::keyPressEvent(QKeyEvent* Event)
{
    if (Event->matches(QKeySequence::Paste)) {
        Insert(QGuiApplication::clipboard()->text());
        return;
    }
    if (HoldsNumber() && Event->text() == QLatin1String(".")) {
        QKeyEvent Comma(QEvent::KeyPress, Qt::Key_Comma, Event->modifiers(), QStringLiteral(","));
        QLineEdit::keyPressEvent(&Comma);
        return;
    }
    QLineEdit::keyPressEvent(Event);
}

void TextBoxView::inputMethodEvent(QInputMethodEvent* Event)
{
    if (HoldsNumber() && Event->commitString() == QLatin1String("."))
        Event->setCommitString(QStringLiteral(","), Event->replacementStart(),
                               Event->replacementLength());
    QLineEdit::inputMethodEvent(Event);
}

void TextBoxView::contextMenuEvent(QContextMenuEvent* Event)
{
    QMenu* Menu = createStandardContextMenu();
    Menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString PasteKey = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
    for (QAction* Each : Menu->actions()) { // its entries bear no names, only their keys
        if (!Each->text().endsWith(u'\t' + PasteKey))
            continue;
        Each->disconnect(this);
        connect(Each, &QAction::triggered, this,
                [this] { Insert(QGuiApplication::clipboard()->text()); });
    }
    Menu->popup(Event->globalPos());
}

void TextBoxView::mouseReleaseEvent(QMouseEvent* Event)
{
    if (Event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection()) {
        setCursorPosition(cursorPositionAt(Event->position().toPoint()));
        Insert(QGuiApplication::clipboard()->text(QClipboard::Selection));
        return;
    }
    QLineEdit::mouseReleaseEvent(Event);
}

void TextBoxView::dropEvent(QDropEvent* Event)
{
    if (isReadOnly() || Event->source() == this) {
        QLineEdit::dropEvent(Event);
        return;
    }
    setCursorPosition(cursorPositionAt(Event->position().toPoint()));
    Insert(Event->mimeData()->text());
    Event->acceptProposedAction();
}

} // namespace orvane
