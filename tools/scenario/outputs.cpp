#include "scenario/outputs.h"

#include "basket/copies.h"
#include "basket/frm_panier.h"
#include "command_line/command_line.h"
#include "scenario/lines.h"

#include <iomanip>
#include <sstream>

namespace orvane::scenario {

namespace {

std::string Lines(std::string Text)
{
    if (Text.ends_with('\n'))
        Text.pop_back();
    return Replaced(Replaced(Text, "\t", " | "), "\n", " / ");
}

} // namespace

std::string Answer(const std::string& Command, const std::filesystem::path& Folder)
{
    std::vector<std::string> Arguments;
    std::istringstream Words(Command);
    for (std::string Each; Words >> std::quoted(Each);)
        Arguments.push_back(Each);
    Arguments[0] = "--dossier"; // in place of the program's name
    Arguments.insert(Arguments.begin() + 1, Folder.string());
    std::ostringstream Out;
    std::ostringstream Errors;
    const int Status = RunCommandLine(Arguments, Folder, Out, Errors).Status.value_or(0);
    return (Status == 0 ? "" : std::to_string(Status) + ": ") + Lines(Out.str() + Errors.str());
}

std::string Copied(const std::string& What, Application& App)
{
    ListeDAchats List(App.Bases, App.Globals.CheminPanier);
    List.Lire({App.Feuilles.Get<frm_Panier>().cbo_Commandes.Text, {}});
    if (What == "copie achats")
        return Lines(CopieDesAchats(List));
    if (What == "copie acheteur")
        return Lines(CopiePourAcheteur(List));
    throw CannotGoOn("no such copy");
}

} // namespace orvane::scenario
