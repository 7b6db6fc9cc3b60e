#pragma once

#include "basket/shopping_list.h"

#include <QString>

class QWidget;

namespace orvane {

// An order as a page that one hands over, in PDF: objects, counts, sale prices and their total in
// the texts that are shown, nothing of the cost. Banner is a picture's file; one that can't be read
// is left out. False when the file can't be written; one that was there is whole then.
bool WriteOrderPage(const ListeDAchats& Of, const QString& Banner, const QString& File);

// The same page on paper, on the printer that the print box gives. Nothing when it is cancelled.
void PrintOrderPage(const ListeDAchats& Of, const QString& Banner, QWidget* Above);

} // namespace orvane
