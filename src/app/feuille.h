#pragma once

#include "app/queries.h"
#include "toolkit/screen.h"

#include <string>

namespace orvane {

// A screen of this program: one that reaches the run it belongs to.
class Feuille : public Screen
{
  public:
    Feuille(Application& App, std::string Name, std::string Caption)
        : Screen(App.Feuilles, std::move(Name), std::move(Caption)),
          App(App),
          Globals(App.Globals)
    {
    }

  protected:
    // The queries of a handler, in the database that it has opened.
    Recordset OuvrirEnregistrements(const std::string& Requête)
    {
        return orvane::OuvrirEnregistrements(Globals, Requête);
    }
    Recordset PremierEnregistrement(const std::string& Requête)
    {
        return orvane::PremierEnregistrement(Globals, Requête);
    }
    void RemplirListe(const std::string& Requête, ListControl& Liste, std::string_view Colonne)
    {
        AjouterÀLaListe(OuvrirEnregistrements(Requête), Liste, Colonne);
    }

    Application& App;
    Variables& Globals;
};

} // namespace orvane
