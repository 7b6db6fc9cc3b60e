#include "view/text_box_view.h"

#include "base/montant.h"
#include "base/typography.h"
#include "toolkit/user.h"
#include "view/act.h"
#include "view/keyboard_focus.h"
#include "view/look.h"
#include "view/qt_text.h"
#include "view/telling.h"
#include "view/tip.h"

#include <QFocusEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalBlocker>

namespace orvane {

namespace {

constexpr double AnswerShare = 1.2;

// One line in composed letters.
QString NameText(const QString& Typed)
{
    static const QRegularExpression Break("[\\p{Cc}\\p{Zl}\\p{Zp}]");
    QString Result = Typed.normalized(QString::NormalizationForm_C);
    return Result.contains(Break) ? Result.replace(Break, " ").simplified() : Result;
}

// As the number texts spell it: no blanks, and a comma where a lone point was meant.
QString NumberText(QString Typed)
{
    Typed.removeIf([](QChar Each) { return Each.isSpace(); });
    return Typed.count(u'.') == 1 && !Typed.contains(u',') ? Typed.replace(u'.', u',') : Typed;
}

} // namespace

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
    case PropertyId::FontSize: // the column's
        break;
    case PropertyId::Marked:
    case PropertyId::Stale:
    case PropertyId::Stored:
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
    const QString Wanted = Spelled(Text);
    if (Wanted != Text)
        Respell(Wanted);
    Act([&] { TheUser.Type(Box, FromQt(Wanted)); });
    ShowText();
    ShowTip();
    if (text() != Wanted) // repaired: the next key replaces it
        selectAll();
}

QString TextBoxView::Spelled(const QString& Text) const
{
    return Box.Accepts == NumberKind::None ? NameText(Text) : NumberText(Text);
}

// What has just come in comes in again, well spelled, so that one step undoes it; a validator that
// rewrites would leave nothing to undo.
void TextBoxView::Respell(const QString& Wanted)
{
    const QSignalBlocker Quiet(this);
    undo();
    const int Start = hasSelectedText() ? selectionStart() : cursorPosition();
    insert(Wanted.mid(Start, Wanted.size() - (text().size() - selectedText().size())));
}

void TextBoxView::ShowText()
{
    const QString Wanted = ToQt(Box.Text);
    if (text() == Wanted)
        return;
    setText(Wanted);
    if (!hasFocus())
        setCursorPosition(0); // a long text shows its beginning
    ShowTip();
}

bool TextBoxView::Fits(const QFontMetrics& In) const
{
    return In.horizontalAdvance(text()) <= Room();
}

QFont::Weight TextBoxView::Weight() const
{
    return Box.IsAnswer ? QFont::Bold : QFont::Normal;
}

// What people come for is larger than what it is made of.
double TextBoxView::FullPoints()
{
    return Points() * (Box.IsAnswer ? AnswerShare : 1);
}

void TextBoxView::TakeFont(const QFont& Shared)
{
    Resting = Shared;
    ShowFont();
    ShowTip();
}

// While somebody types, what is typed stays as large as it was.
void TextBoxView::ShowFont()
{
    QFont Font = hasFocus() && !isReadOnly() ? look::Font(FullPoints()) : Resting;
    Font.setItalic(Box.Stale);
    if (Font != font())
        setFont(Font);
}

int TextBoxView::Room() const
{
    constexpr int Inside = 2; // at each end, by the toolkit
    return width() - 2 * (look::FieldPadding - 1 + Inside);
}

void TextBoxView::ShowState()
{
    ShowFont();
    ShowBoxColours(Box.Marked ? look::Now().WrongGround : look::GroundOf(Box.BackColor),
                   Box.Stale || (IsPale && Box.BackColor() != InputGrey)
                       ? look::Now().MutedInk
                       : look::InkOf(Box.ForeColor));
    ShowTip();
    update();
}

void TextBoxView::ShowTip()
{
    QString Tip = ToQt(Box.Tip);
    const bool IsTooGreat = Box.Accepts == NumberKind::Entier16 && Montant::FromText(Box.Text);
    if (Box.Marked && Tip.isEmpty())
        Tip = IsTooGreat ? QStringLiteral("Il faut un nombre de -32768 à 32767.")
                         : QStringLiteral("Ce texte n’est pas un nombre.");
    else if (Box.Stale && Box.WaitsFor != nullptr)
        Tip = QStringLiteral("Ce chiffre attend un nombre juste dans «\u00a0%1\u00a0».")
                  .arg(ToQt(Box.WaitsFor->Called));
    else if (Box.Stale)
        Tip =
            QStringLiteral("Ce chiffre date d’avant une saisie à corriger ou un choix à refaire.");
    else if (Tip.isEmpty() && IsUnkept(Box))
        Tip = ToQt(Typeset(UnkeptWords));
    else if (Tip.isEmpty() && AwaitsPrice(Box))
        Tip = ToQt(AwaitingWords);
    setAccessibleDescription(Tip);
    if (Tip.isEmpty() && fontMetrics().horizontalAdvance(text()) > Room())
        Tip = text();
    SetTip(*this, Tip);
}

void TextBoxView::SetPale(bool Now)
{
    if (Now == IsPale)
        return;
    IsPale = Now;
    ShowState();
}

bool TextBoxView::IsEmptyLine() const
{
    const bool SaysNothing = Box.Text == "" && Box.Locked;
    return (SaysNothing || IsEmptyRow(Box)) && Box.BackColor() != InputGrey && !ShowsFocus(*this);
}

// What holds nothing is a line to be filled.
void TextBoxView::PaintEmptyLine()
{
    QPainter Painter(this);
    QColor Rule = look::Now().PanelBorder;
    Rule.setAlphaF(0.5);
    Painter.setPen(Rule);
    Painter.drawLine(0, height() - 1, width() - 1, height() - 1);
    Painter.setPen(palette().color(QPalette::Text));
    Painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, ToQt(Box.WhenEmpty));
}

void TextBoxView::paintEvent(QPaintEvent* Event)
{
    if (IsEmptyLine())
        return PaintEmptyLine();
    QPainter Painter(this);
    look::PaintField(
        Painter, rect(),
        {.FieldGround = palette().color(QPalette::Base),
         .Is = Box.BackColor() == InputGrey ? look::FieldKind::Input : look::FieldKind::Figure,
         .Focused = ShowsFocus(*this),
         .Wrong = Box.Marked,
         .Unkept = IsUnkept(Box)});
    if (hasFocus() || !AwaitsPrice(Box)) {
        Painter.end();
        QLineEdit::paintEvent(Event);
    } else {
        const QString Words = ToQt(AwaitingWords);
        Painter.setFont(look::FittingFont(FullPoints(), Words, width() - 2 * look::FieldPadding));
        Painter.setPen(look::Now().MutedInk);
        Painter.drawText(rect(), Qt::AlignCenter, Words);
    }
}

void TextBoxView::resizeEvent(QResizeEvent* Event)
{
    QLineEdit::resizeEvent(Event);
    ShowTip();
}

// A click that goes into a number selects it, so that the next key replaces it.
void TextBoxView::focusInEvent(QFocusEvent* Event)
{
    QLineEdit::focusInEvent(Event);
    SelectsOnRelease =
        Event->reason() == Qt::MouseFocusReason && !isReadOnly() && Box.Accepts != NumberKind::None;
}

void TextBoxView::mouseReleaseEvent(QMouseEvent* Event)
{
    QLineEdit::mouseReleaseEvent(Event);
    if (SelectsOnRelease && !hasSelectedText())
        selectAll();
    SelectsOnRelease = false;
}

void TextBoxView::focusOutEvent(QFocusEvent* Event)
{
    QLineEdit::focusOutEvent(Event);
    if (Event->reason() == Qt::PopupFocusReason || Event->reason() == Qt::ActiveWindowFocusReason)
        return;
    setCursorPosition(0);
    ShowFont();
}

} // namespace orvane
