#pragma once

#include "app/application.h"
#include "scenario/appearance.h"
#include "scenario/program_folder.h"
#include "scenario/stage.h"

namespace orvane::scenario {

// The program as a scene, but for the hands: what the screens show, and what happens to the folder.
class ProgramScene : public Scene
{
  public:
    explicit ProgramScene(const std::filesystem::path& Path) : Folder(Path), Looks(Path) {}

    std::vector<std::string> Entries(const std::string& List) override;
    bool IsVisible(const std::string& Control) override;

    // Beside the controls: "écrans", the visible screens from the lowest to the highest; "fins",
    // how often the program was asked to end; rows of a table; "lignes (lst_Objet, lst_Nb)", lists
    // that stand side by side; what a command line answers, "orvane --version"; "copie achats" and
    // "copie acheteur" of the order in hand.
    std::string Look(const std::string& What) override;

    void Act(const Step& Which) override;

    const std::filesystem::path& Path() const { return Folder.Path(); }

  protected:
    // The run, started when it isn't yet.
    virtual Application& Running() = 0;

    Screen& ActiveScreen();

    // The control of a name, on the active screen unless a screen's name stands before it.
    // CannotGoOn.
    Control& Named(const std::string& Name);

    template <class Type>
    Type& Named(const std::string& Name)
    {
        Control& Found = Named(Name);
        auto* Wanted = dynamic_cast<Type*>(&Found);
        if (Wanted == nullptr)
            throw CannotGoOn(Name + " can't be used like that");
        return *Wanted;
    }

    // The same, if a hand can reach it.
    template <class Type>
    Type& Reached(const std::string& Name)
    {
        Type& Found = Named<Type>(Name);
        if (!Found.Visible || !Found.Owner().IsVisible())
            throw CannotGoOn(Name + " can't be seen");
        return Found;
    }

    ProgramFolder Folder;
    int Quits = 0;

  private:
    std::string Screens();
    std::string RowsOf(const std::string& Lists);

    Appearance Looks;
};

} // namespace orvane::scenario
