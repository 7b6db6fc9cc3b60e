#pragma once

#include "view/entry_model.h"

#include <QListView>

#include <functional>

namespace orvane {

// The list that opens below a combo box, inside its window. The keyboard stays with the box, which
// moves the highlight; the mouse picks here.
class EntryPopup : public QListView
{
  public:
    EntryPopup(QWidget& Owner, const ListControl& List);

    std::function<void(int Entry)> OnPick;

    void OpenAll(int Entry);                 // every entry, that one highlighted
    void OpenSome(std::vector<int> Entries); // nothing highlighted

    void Highlight(int Entry); // -1 for none
    int Highlighted() const;   // an entry, -1 for none
    void Move(int Rows);
    int PageRows() const;

  protected:
    bool eventFilter(QObject* Target, QEvent* Event) override;
    void showEvent(QShowEvent* Event) override;
    void hideEvent(QHideEvent* Event) override;
    void mouseMoveEvent(QMouseEvent* Event) override;
    void wheelEvent(QWheelEvent* Event) override;

  private:
    void PutInPlace();
    int LongestWidth() const;

    QWidget& Owner;
    EntryModel Model;
};

} // namespace orvane
