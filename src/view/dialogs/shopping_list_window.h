#pragma once

#include "app/application.h"

namespace orvane {

// Opens the list of what to buy for the order in hand in all realms, or brings it up. It stands
// beside the screens and reads the basket afresh whenever it becomes the active window. App
// outlives it.
void OpenShoppingList(Application& App);

// Onto the clipboard, of the order in hand in all realms: what its buyer is told, and what is to be
// bought for it. An order without a line leaves the clipboard alone and says so.
void CopyForBuyer(Application& App);
void CopyPurchases(Application& App);

} // namespace orvane
