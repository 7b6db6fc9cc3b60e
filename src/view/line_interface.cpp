#include "view/line_interface.h"

#include "view/combo_box_view.h"
#include "view/entry_popup.h"

#include <QComboBox>
#include <QLineEdit>

namespace orvane {

LineInterface::LineInterface(QWidget& Which, QAccessible::Role Role, QLineEdit& Line)
    : ControlInterface(Which, Role),
      Line(Line)
{
}

QString LineInterface::text(QAccessible::Text What) const
{
    return What == QAccessible::Value ? Line.text() : ControlInterface::text(What);
}

QAccessible::State LineInterface::state() const
{
    QAccessible::State Result = ControlInterface::state();
    Result.focusable = true; // a locked one by the walk through the values
    Result.selectableText = true;
    Result.readOnly = Line.isReadOnly();
    Result.editable = !Line.isReadOnly();
    return Result;
}

void* LineInterface::interface_cast(QAccessible::InterfaceType Type)
{
    if (Type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    if (Type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface*>(this);
    return ControlInterface::interface_cast(Type);
}

void LineInterface::selection(int Index, int* Start, int* End) const
{
    const bool IsOne = Index == 0 && Line.hasSelectedText();
    *Start = IsOne ? Line.selectionStart() : 0;
    *End = IsOne ? Line.selectionEnd() : 0;
}

int LineInterface::selectionCount() const
{
    return Line.hasSelectedText() ? 1 : 0;
}

void LineInterface::addSelection(int Start, int End)
{
    setSelection(0, Start, End);
}

void LineInterface::removeSelection(int Index)
{
    if (Index == 0)
        Line.deselect();
}

void LineInterface::setSelection(int Index, int Start, int End)
{
    if (Index == 0)
        Line.setSelection(Start, End - Start);
}

int LineInterface::cursorPosition() const
{
    return Line.cursorPosition();
}

void LineInterface::setCursorPosition(int Position)
{
    Line.setCursorPosition(Position);
}

QString LineInterface::text(int Start, int End) const
{
    return Line.text().mid(Start, End - Start);
}

int LineInterface::characterCount() const
{
    return static_cast<int>(Line.text().size());
}

QRect LineInterface::characterRect(int Offset) const
{
    const QFontMetrics Metrics = Line.fontMetrics();
    const QString Text = Line.text();
    const int Left = Metrics.horizontalAdvance(Text.left(Offset));
    const int Wide = Metrics.horizontalAdvance(Text.mid(Offset, 1));
    const QPoint Corner(Line.textMargins().left() + Left, (Line.height() - Metrics.height()) / 2);
    return {Line.mapToGlobal(Corner), QSize(Wide, Metrics.height())};
}

int LineInterface::offsetAtPoint(const QPoint& Point) const
{
    const QPoint Within = Line.mapFromGlobal(Point);
    return Line.rect().contains(Within) ? Line.cursorPositionAt(Within) : -1;
}

void LineInterface::scrollToSubstring(int Start, int)
{
    Line.setCursorPosition(Start);
}

QString LineInterface::attributes(int, int* Start, int* End) const
{
    *Start = 0;
    *End = characterCount();
    return {};
}

void LineInterface::deleteText(int Start, int End)
{
    replaceText(Start, End, {});
}

void LineInterface::insertText(int Offset, const QString& Text)
{
    replaceText(Offset, Offset, Text);
}

void LineInterface::replaceText(int Start, int End, const QString& Text)
{
    if (Line.isReadOnly())
        return;
    Line.setSelection(Start, End - Start);
    Line.insert(Text);
}

ComboInterface::ComboInterface(QComboBox& Which)
    : LineInterface(Which, QAccessible::ComboBox, *Which.lineEdit()),
      Box(Which)
{
}

QAccessible::State ComboInterface::state() const
{
    QAccessible::State Result = LineInterface::state();
    const auto* Popup = static_cast<ComboBoxView&>(Box).Popup();
    Result.expandable = Result.hasPopup = true;
    Result.expanded = Popup != nullptr && Popup->isVisible();
    Result.collapsed = !Result.expanded;
    return Result;
}

QStringList ComboInterface::actionNames() const
{
    return QStringList{showMenuAction()} + LineInterface::actionNames();
}

void ComboInterface::doAction(const QString& Name)
{
    if (Name == showMenuAction())
        Box.showPopup();
    else
        LineInterface::doAction(Name);
}

} // namespace orvane
