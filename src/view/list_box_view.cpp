#include "view/list_box_view.h"

#include "base/csv.h"
#include "base/text.h"
#include "toolkit/user.h"
#include "view/act.h"
#include "view/entry_delegate.h"
#include "view/list_columns.h"
#include "view/look.h"
#include "view/qt_text.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace orvane {

ListBoxView::ListBoxView(ListBox& Model, User& TheUser, QWidget* Parent)
    : QListView(Parent),
      ControlView(Model),
      TheBox(Model),
      TheUser(TheUser),
      Entries(Model, this)
{
    setModel(&Entries);
    setItemDelegate(new EntryDelegate(EntryDelegate::Keyboard::InList, this));
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    viewport()->setAttribute(Qt::WA_Hover);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this](int Row) { ScrollColumns(*this, Row); });
}

void ListBoxView::Follow(PropertyId What)
{
    switch (What) {
    case PropertyId::Items:
        FollowLater();
        break;
    case PropertyId::WhenEmpty:
        setAccessibleDescription(ToQt(TheBox.WhenEmpty));
        viewport()->update();
        break;
    case PropertyId::ListIndex:
        if (!ItemsAreOld)
            ShowChoice();
        break;
    case PropertyId::ForeColor:
    case PropertyId::BackColor:
        ShowColours();
        break;
    case PropertyId::Visible:
    case PropertyId::Left:
    case PropertyId::Top:
    case PropertyId::Height:
        ControlView::Follow(What);
        FollowLater(); // the columns beside it may have changed
        break;
    default:
        ControlView::Follow(What);
    }
}

void ListBoxView::FollowAll()
{
    ControlView::FollowAll();
    ShowColours();
    FollowLater();
}

// Once for however many entries an event adds.
void ListBoxView::FollowLater()
{
    if (!ItemsAreOld)
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    ItemsAreOld = true;
}

bool ListBoxView::event(QEvent* Event)
{
    if (Event->type() == QEvent::User)
        FollowItems();
    return QListView::event(Event);
}

void ListBoxView::FollowItems()
{
    if (!ItemsAreOld)
        return;
    ItemsAreOld = false;
    const int Row = verticalScrollBar()->value();
    Entries.TakeAll();
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(Row);
    ShowChoice();
    ArrangeColumns(*this);
    if (TheBox.ListIndex < 0) // whatever row had the keyboard is gone
        TellChoice();
}

void ListBoxView::ShowChoice()
{
    const QModelIndex Index = Entries.index(TheBox.ListIndex);
    setCurrentIndex(Index);
    if (!Index.isValid())
        clearSelection();
}

void ListBoxView::ShowColours()
{
    ShowBoxColours();
}

void ListBoxView::LeaveKeyboardTo(ListBoxView& NewFirst)
{
    First = &NewFirst;
    setFocusPolicy(First == this ? Qt::StrongFocus : Qt::NoFocus);
    if (hasFocus())
        First->setFocus();
}

void ListBoxView::initStyleOption(QStyleOptionFrame* Option) const
{
    QListView::initStyleOption(Option);
    Option->state.setFlag(QStyle::State_HasFocus, First->hasFocus());
}

void ListBoxView::initViewItemOption(QStyleOptionViewItem* Option) const
{
    QListView::initViewItemOption(Option);
    Option->state.setFlag(QStyle::State_Active, First->hasFocus());
}

std::vector<QWidget*> ListBoxView::TabStops()
{
    if (ColumnsOf(*this).front() != this)
        return {};
    return {this};
}

void ListBoxView::Pick(int Entry)
{
    if (Entry < 0 || Entry >= TheBox.ListCount())
        return;
    Act([&] { TheUser.Pick(TheBox, Entry); });
    FollowItems();
    ShowChoice();
}

void ListBoxView::paintEvent(QPaintEvent* Event)
{
    FollowItems();
    QListView::paintEvent(Event);
    if (Entries.rowCount() > 0 || TheBox.WhenEmpty == "")
        return;
    QPainter Painter(viewport());
    Painter.setPen(look::Now().MutedInk);
    Painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     ToQt(TheBox.WhenEmpty));
}

// QListView would tell screen readers of the change too, but by the place among its own entries,
// which are cells of a table here: both pass it over.
// NOLINTBEGIN(bugprone-parent-virtual-call)
void ListBoxView::currentChanged(const QModelIndex& Current, const QModelIndex& Previous)
{
    QAbstractItemView::currentChanged(Current, Previous);
    if (TheBox.ListIndex >= 0)
        TellChoice();
}

void ListBoxView::selectionChanged(const QItemSelection& Now, const QItemSelection& Before)
{
    QAbstractItemView::selectionChanged(Now, Before);
}
// NOLINTEND(bugprone-parent-virtual-call)

// The chosen row, or the table when there is none, by the list that has the keyboard.
void ListBoxView::TellChoice()
{
    if (!QAccessible::isActive() || QApplication::focusWidget() != this)
        return;
    QAccessibleEvent Told(QAccessible::queryAccessibleInterface(this)->focusChild(),
                          QAccessible::Focus);
    QAccessible::updateAccessibility(&Told);
}

void ListBoxView::focusInEvent(QFocusEvent* Event)
{
    QListView::focusInEvent(Event);
    ShowFocus();
    if (TheBox.ListIndex >= 0) // behind what the toolkit tells of the list itself
        QMetaObject::invokeMethod(this, &ListBoxView::TellChoice, Qt::QueuedConnection);
}

void ListBoxView::focusOutEvent(QFocusEvent* Event)
{
    QListView::focusOutEvent(Event);
    ShowFocus();
}

// All columns show that one of them has the keyboard.
void ListBoxView::ShowFocus()
{
    for (ListBoxView* Each : ColumnsOf(*this)) {
        Each->update();
        Each->viewport()->update();
    }
}

void ListBoxView::keyPressEvent(QKeyEvent* Event)
{
    FollowItems();
    const int At = TheBox.ListIndex;
    const int Last = TheBox.ListCount() - 1;
    const int Page = std::max(1, verticalScrollBar()->pageStep() - 1);
    switch (Event->key()) {
    case Qt::Key_Up:
        Pick(std::max(At - 1, 0));
        return;
    case Qt::Key_Down:
        Pick(std::min(At + 1, Last));
        return;
    case Qt::Key_PageUp:
        Pick(std::max(At - Page, 0));
        return;
    case Qt::Key_PageDown:
        Pick(std::min(At + Page, Last));
        return;
    case Qt::Key_Home:
        Pick(0);
        return;
    case Qt::Key_End:
        Pick(Last);
        return;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Pick(At);
        return;
    case Qt::Key_Escape:
        Event->ignore();
        return;
    default:
        if (Event->matches(QKeySequence::Copy))
            Copy();
        else
            QListView::keyPressEvent(Event); // searching by letters
    }
}

// The chosen row, or all of them when none is; cell by cell, as a spreadsheet takes them.
void ListBoxView::Copy()
{
    std::string Text;
    for (int Row = 0; Row < TheBox.ListCount(); ++Row) {
        if (TheBox.ListIndex >= 0 && TheBox.ListIndex != Row)
            continue;
        std::vector<std::string> Cells;
        for (const ListBoxView* Each : ColumnsOf(*this))
            Cells.push_back(Each->Box().Items()[static_cast<std::size_t>(Row)]);
        Text += TabLine(Cells);
    }
    if (!Text.empty())
        QGuiApplication::clipboard()->setText(ToQt(Text));
}

// The next entry that begins with the letter, after the chosen one.
void ListBoxView::keyboardSearch(const QString& Letters)
{
    const std::string Wanted = FoldedForSearch(FromQt(Letters));
    for (int i = 1; i <= TheBox.ListCount(); ++i) {
        const int Entry = (TheBox.ListIndex + i) % TheBox.ListCount();
        if (FoldedForSearch(TheBox.Items()[static_cast<std::size_t>(Entry)]).starts_with(Wanted)) {
            Pick(Entry);
            return;
        }
    }
}

void ListBoxView::mousePressEvent(QMouseEvent* Event)
{
    FollowItems();
    First->setFocus(Qt::MouseFocusReason);
    if (Event->button() == Qt::LeftButton)
        Pick(indexAt(Event->position().toPoint()).row());
}

void ListBoxView::mouseDoubleClickEvent(QMouseEvent* Event)
{
    mousePressEvent(Event);
}

} // namespace orvane
