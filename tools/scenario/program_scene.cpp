#include "scenario/program_scene.h"

#include "basket/orders.h"
#include "basket/undo.h"
#include "scenario/lines.h"
#include "scenario/outputs.h"

namespace orvane::scenario {

std::vector<std::string> ProgramScene::Entries(const std::string& List)
{
    return Reached<ListControl>(List).Items();
}

bool ProgramScene::IsVisible(const std::string& Control)
{
    return Named(Control).Visible;
}

std::string ProgramScene::Look(const std::string& What)
{
    if (What == "écrans")
        return Screens();
    if (What == "fins")
        return std::to_string(Quits);
    if (What.starts_with("orvane "))
        return Answer(What, Path());
    if (What.starts_with("copie "))
        return Copied(What, Running());
    if (What.find(".mdb/") != std::string::npos)
        return Folder.Stored(What);
    if (What.starts_with("lignes "))
        return RowsOf(What);
    if (What.ends_with('*')) {
        const std::string Name = What.substr(0, What.size() - 1);
        return Look(Name) + Appearance::Openness(Named(Name));
    }
    const auto [Name, Side] = Halves(What, ".");
    if (Side.empty())
        return Looks.Of(Named(Name));
    if (Name.starts_with("frm_") && Name.find('/') == std::string::npos)
        return Looks.Of(Running().Feuilles.Touch(Name), Side);
    return Looks.Of(Named(Name), Side);
}

void ProgramScene::Act(const Step& Which)
{
    if (Which.Verb == "montrer")
        Named(Which.Target).Visible = true;
    else if (Which.Verb == "annuler")
        Annuler(Running());
    else if (Which.Verb == "passer")
        PrendreCommande(Running(), Which.Target);
    else if (Which.Verb == "base")
        Folder.Change(Which.Target, Which.Text);
    else if (Which.Verb == "perdre")
        Folder.Lose(Which.Target);
    else if (Which.Verb == "rendre")
        Folder.GiveBack(Which.Target);
    else if (Which.Verb == "bloquer")
        Folder.Lock(Which.Target);
    else if (Which.Verb == "libérer")
        Folder.Unlock(Which.Target);
    else if (Which.Verb == "écrire")
        Folder.Write(Which.Target, Which.Text);
    else
        throw CannotGoOn("this can't be done here");
}

Screen& ProgramScene::ActiveScreen()
{
    Screen* Active = Running().Feuilles.Active();
    if (Active == nullptr)
        throw CannotGoOn("no screen is open");
    return *Active;
}

Control& ProgramScene::Named(const std::string& Name)
{
    const auto [Before, Behind] = Halves(Name, "/");
    Screen& Where = Behind.empty() ? ActiveScreen() : Running().Feuilles.Touch(Before);
    Control* Found = Where.FindOrNull(Behind.empty() ? Before : Behind);
    if (Found == nullptr)
        throw CannotGoOn(Where.Name() + " has no " + (Behind.empty() ? Before : Behind));
    return *Found;
}

std::string ProgramScene::Screens()
{
    const Forms& Open = Running().Feuilles;
    std::vector<std::string> Names;
    for (const Screen* Each : Open.Stack())
        Names.push_back(Each->Name());
    if (!Open.Stack().empty() && Open.Active() != Open.Stack().back())
        Names.push_back("(the highest isn't the active one)");
    return Joined(Names, " | ");
}

std::string ProgramScene::RowsOf(const std::string& Lists)
{
    const auto Names =
        Parts(Lists.substr(Lists.find('(') + 1, Lists.find(')') - Lists.find('(') - 1), ",");
    std::vector<std::string> Rows;
    for (std::size_t Row = 0;; ++Row) {
        std::vector<std::string> Cells;
        bool Any = false;
        for (const std::string& Each : Names) {
            const auto& Items = Named<ListControl>(Each).Items();
            Any = Any || Row < Items.size();
            Cells.push_back(Row < Items.size() ? Items[Row] : "(none)");
        }
        if (!Any)
            return Joined(Rows, " / ");
        Rows.push_back(Joined(Cells, " | "));
    }
}

} // namespace orvane::scenario
