#pragma once

#include "app/application.h"
#include "store/sql_text.h"
#include "toolkit/lists.h"

#include <string>
#include <string_view>

// The habit of every handler, in few words: open a database into a shared slot for the length of a
// block, send TexteSQL, read, and leave the slots empty behind, by return or by failure.
namespace orvane {

// A database open in a slot until the end of the block.
class [[nodiscard]] Ouverture
{
  public:
    Ouverture(Application& App, Slot<Database>& Base, const std::string& Chemin);
    ~Ouverture() { Base.Empty(); }
    Ouverture(const Ouverture&) = delete;
    Ouverture& operator=(const Ouverture&) = delete;

  private:
    Slot<Database>& Base;
};

// Sends TexteSQL to BaseDonnées, into Enregistrements. The set may be empty.
Recordset& OuvrirEnregistrements(Variables& Globals);

// The same, on the first row. Failure when there is none.
Recordset& PremierEnregistrement(Variables& Globals);

// The same pair on the second slots.
Recordset& OuvrirEnregistrements2(Variables& Globals);

// Sends TexteSQL to BaseDonnées and adds Colonne of each row to the list, behind what it holds; a
// query without rows adds nothing. Rows without a value are passed over.
void RemplirListe(Variables& Globals, ListControl& Liste, std::string_view Colonne);

// The same from a set that is open already.
void RemplirListe(Recordset& Lignes, ListControl& Liste, std::string_view Colonne);

} // namespace orvane
