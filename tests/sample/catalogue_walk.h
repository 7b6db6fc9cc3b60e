#pragma once

#include "app/application.h"

#include <functional>
#include <string>
#include <vector>

namespace orvane {

// A crafter who picks every entry of every list of a realm's crafts. The run has started; its
// screens are registered.
class CatalogueWalk
{
  public:
    // Runs after each pick, with its screen, the box of the price it leads to, and its words.
    using Look = std::function<void(const Screen&, const TextBox&, const std::string&)>;

    CatalogueWalk(Application& App, Look AfterPick) : App(App), AfterPick(std::move(AfterPick)) {}

    // Begins and ends on the home screen. A list in sight without an entry fails the test.
    void GoThrough(const std::string& Royaume);

  private:
    struct Way;

    template <class Type>
    Type& Le(const char* Screen, const char* Control)
    {
        return dynamic_cast<Type&>(App.Feuilles.Touch(Screen).Find(Control));
    }

    void Cliquer(const char* Screen, const char* Control);
    void Choisir(const Way& Along, std::size_t Depth, const std::string& Entry);

    // Picks each entry of a list in turn and goes on below it. Picks are those above it.
    void Descendre(const Way& Along, const std::string& Menu, std::vector<std::string> Picks = {});

    // Another screen has opened: it's walked and closed.
    void VisiterDerrière();

    // Some objects have no degrees, and the damage types belong to the two highest ones.
    bool HasList(const Way& Along, std::size_t Depth);

    static const std::vector<Way>& Ways();
    static const std::vector<Way>& Behind();

    Application& App;
    Look AfterPick;
};

} // namespace orvane
