#pragma once

#include "app/application.h"
#include "store/sql_text.h"
#include "toolkit/lists.h"

#include <string>
#include <string_view>

// The habit of every handler, in few words: open a database into a shared slot for the length of a
// block, send a query, get its rows. The shared record slots and TexteSQL are filled and emptied on
// the way: rows are values, which a handler nested in a write can't touch.
namespace orvane {

// A database open in a slot until the end of the block.
class [[nodiscard]] Ouverture
{
  public:
    Ouverture(Application& App, const std::string& Chemin); // in BaseDonnées
    Ouverture(Application& App, Slot<Database>& Base, const std::string& Chemin);
    ~Ouverture() { Base.Empty(); }
    Ouverture(const Ouverture&) = delete;
    Ouverture& operator=(const Ouverture&) = delete;

  private:
    Slot<Database>& Base;
};

// The rows of a query in BaseDonnées; there may be none.
Recordset OuvrirEnregistrements(Variables& Globals, const std::string& Requête);

// The same, on the first row. Failure when there is none.
Recordset PremierEnregistrement(Variables& Globals, const std::string& Requête);

// The rows of a query in BaseDonnées2.
Recordset OuvrirEnregistrements2(Variables& Globals, const std::string& Requête);

// Adds Colonne of each row to the list, behind what it holds; a query without rows adds nothing.
// Rows without a value are passed over.
void AjouterÀLaListe(Recordset Lignes, ListControl& Liste, std::string_view Colonne);

} // namespace orvane
