#include "view/entry_popup.h"

#include "view/entry_delegate.h"
#include "view/look.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace orvane {

EntryPopup::EntryPopup(QWidget& Owner, const ListControl& List)
    : QListView(Owner.window()),
      Owner(Owner),
      Model(List, this)
{
    hide();
    setModel(&Model);
    setItemDelegate(new EntryDelegate(EntryDelegate::Keyboard::Elsewhere, this));
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    connect(this, &QListView::clicked, this, [this](const QModelIndex& Index) {
        if (OnPick)
            OnPick(Model.EntryAt(Index.row()));
    });
}

void EntryPopup::OpenAll(int Entry)
{
    Model.TakeAll();
    PutInPlace();
    Highlight(Entry);
}

void EntryPopup::OpenSome(std::vector<int> Entries)
{
    Model.Take(std::move(Entries));
    PutInPlace();
    Highlight(-1);
    scrollToTop();
}

void EntryPopup::Highlight(int Entry)
{
    const QModelIndex Index = Model.index(Model.RowOf(Entry));
    setCurrentIndex(Index);
    if (!Index.isValid())
        clearSelection();
}

int EntryPopup::Highlighted() const
{
    return currentIndex().isValid() ? Model.EntryAt(currentIndex().row()) : -1;
}

void EntryPopup::Move(int Rows)
{
    const int Last = Model.rowCount() - 1;
    if (Last < 0)
        return;
    const int From = currentIndex().isValid() ? currentIndex().row() : (Rows > 0 ? -1 : Last + 1);
    setCurrentIndex(Model.index(std::clamp(From + Rows, 0, Last)));
}

int EntryPopup::PageRows() const
{
    return std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)) - 1);
}

// Below the box or, when there is more room, above; as wide as its longest entry.
void EntryPopup::PutInPlace()
{
    setFont(Owner.font());
    const QRect Box(Owner.mapTo(window(), QPoint(0, 0)), Owner.size());
    const QRect Room = window()->rect().adjusted(4, 4, -4, -4);
    const int Frame = 2 * frameWidth();
    const int Wanted = Frame + std::min(Model.rowCount(), look::PopupRows) * sizeHintForRow(0);
    const int Below = Room.bottom() - Box.bottom();
    const int Above = Box.top() - Room.top();
    const bool Downward = Below >= Wanted || Below >= Above;
    const int Height = std::min(Wanted, Downward ? Below : Above);
    const bool Scrolls = Height < Frame + Model.rowCount() * sizeHintForRow(0);
    const int Bar = Scrolls ? verticalScrollBar()->sizeHint().width() : 0;
    const int Width = std::min(std::max(Box.width(), LongestWidth() + Frame + Bar), Room.width());
    const int Left = std::clamp(Box.left(), Room.left(), Room.right() + 1 - Width);
    setGeometry(Left, Downward ? Box.bottom() + 1 : Box.top() - Height, Width, Height);
    raise();
    show();
}

// Measures the entries with the most letters only.
int EntryPopup::LongestWidth() const
{
    constexpr std::size_t Candidates = 12;
    std::vector<QString> Texts;
    for (int Row = 0; Row < Model.rowCount(); ++Row)
        Texts.push_back(Model.index(Row).data().toString());
    const auto Count = std::min(Candidates, Texts.size());
    std::ranges::partial_sort(Texts, Texts.begin() + static_cast<std::ptrdiff_t>(Count),
                              std::greater<>(), &QString::size);
    int Result = 0;
    for (std::size_t i = 0; i < Count; ++i)
        Result = std::max(Result, fontMetrics().horizontalAdvance(Texts[i]));
    return Result + 2 * look::RowPadding + 2;
}

// A press anywhere else closes the list.
bool EntryPopup::eventFilter(QObject* Target, QEvent* Event)
{
    if (Event->type() == QEvent::MouseButtonPress) {
        const auto* Pressed = qobject_cast<QWidget*>(Target);
        if (Pressed != nullptr && Pressed != this && !isAncestorOf(Pressed) && Pressed != &Owner &&
            !Owner.isAncestorOf(Pressed))
            hide();
    }
    return QListView::eventFilter(Target, Event);
}

void EntryPopup::showEvent(QShowEvent* Event)
{
    qApp->installEventFilter(this);
    QListView::showEvent(Event);
}

void EntryPopup::hideEvent(QHideEvent* Event)
{
    qApp->removeEventFilter(this);
    QListView::hideEvent(Event);
}

void EntryPopup::mouseMoveEvent(QMouseEvent* Event)
{
    if (const QModelIndex Under = indexAt(Event->position().toPoint()); Under.isValid())
        setCurrentIndex(Under);
}

void EntryPopup::wheelEvent(QWheelEvent* Event)
{
    QListView::wheelEvent(Event);
    Event->accept(); // at its ends too: nothing below it shall scroll
}

} // namespace orvane
