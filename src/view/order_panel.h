#pragma once

#include <QString>
#include <QWidget>

#include <array>
#include <functional>
#include <vector>

class QLabel;
class QTableWidget;

namespace orvane {

// An order in the texts that are shown.
struct OrderShown
{
    QString Title;
    std::vector<std::array<QString, 3>> Lines; // object, count, sale price
    QString Total;                             // of the sale prices
};
using OrderSource = std::function<OrderShown()>;

// The order in hand, beside a screen whose window is wider than it needs.
class OrderPanel : public QWidget
{
  public:
    static constexpr int Narrowest = 260; // pixels
    static constexpr int Widest = 460;

    OrderPanel(OrderSource Source, QWidget* Parent);

    void Refresh();

  private:
    OrderSource Source;
    QLabel* Title;
    QTableWidget* Lines;
    QLabel* Total;
};

} // namespace orvane
