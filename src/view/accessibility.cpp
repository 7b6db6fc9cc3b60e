#include "view/accessibility.h"

#include "view/list_box_view.h"
#include "view/list_table.h"
#include "view/screen_area.h"

namespace orvane {

namespace {

// Of lists side by side a screen's area holds the first alone, which tells them all.
class AreaInterface : public QAccessibleWidget
{
  public:
    explicit AreaInterface(ScreenArea& Area) : QAccessibleWidget(&Area) {}

    int childCount() const override { return static_cast<int>(Parts().size()); }
    QAccessibleInterface* child(int Index) const override { return Parts().value(Index); }
    int indexOfChild(const QAccessibleInterface* Child) const override
    {
        return static_cast<int>(Parts().indexOf(Child));
    }

  private:
    QList<QAccessibleInterface*> Parts() const
    {
        QList<QAccessibleInterface*> Result;
        for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
            QAccessibleInterface* Each = QAccessibleWidget::child(i);
            auto* List = dynamic_cast<ListBoxView*>(Each->object());
            if (List == nullptr || ColumnsOf(*List).front() == List)
                Result << Each;
        }
        return Result;
    }
};

QAccessibleInterface* InterfaceOf(const QString&, QObject* Object)
{
    if (auto* List = dynamic_cast<ListBoxView*>(Object))
        return new ListTable(*List);
    if (auto* Area = dynamic_cast<ScreenArea*>(Object))
        return new AreaInterface(*Area);
    return nullptr;
}

} // namespace

void InstallInterfaces()
{
    QAccessible::installFactory(InterfaceOf);
}

} // namespace orvane
