#pragma once

#include "app/application.h"
#include "view/order_panel.h"

namespace orvane {

// What stands at the right of every menu bar: the order in hand.
QString OrderInHand(Application& App);

// The same with its lines in the realm of the moment. One that can't be read has none.
OrderShown LinesInHand(Application& App);

} // namespace orvane
