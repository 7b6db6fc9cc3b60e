#pragma once

#include "app/application.h"
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
    Application& App;
    Variables& Globals;
};

} // namespace orvane
