#include "command_line/options.h"

#include "app/version.h"
#include "base/text.h"
#include "command_line/purchases.h"
#include "makers/jet.h"

#include <algorithm>

namespace orvane {

namespace {

int TellHelp(const Given&, std::ostream& Out, std::ostream&)
{
    Out << "orvane [--dossier DOSSIER] [OPTION]\n"
           "Sans option, le programme ouvre ses fenêtres.\n\n";
    for (const Option& Row : Options())
        Out << "  " << Usage(Row) << "\n      " << Row.Help << "\n";
    return 0;
}

int TellVersion(const Given&, std::ostream& Out, std::ostream&)
{
    Out << "orvane " << VersionMajeure << "." << VersionMineure << "\n";
    return 0;
}

int Import(const Given& What, std::ostream&, std::ostream&)
{
    ImporterJet(What.Operands[0]);
    return 0;
}

} // namespace

std::span<const Option> Options()
{
    static const std::vector<Option> Table{
        {"--help", {}, "montre cette aide", TellHelp},
        {"--version", {}, "montre la version du programme", TellVersion},
        {"--liste",
         {"COMMANDE"},
         "écrit ce qu’il faut acheter pour une commande, en CSV",
         ListPurchases,
         {"--royaume"}},
        {"--royaume", {"ROYAUME"}, "ne prend que ce royaume"},
        {"--importer",
         {"FICHIER"},
         "convertit une base Jet à sa place ; l’original reste à côté, sous NOM.jet.mdb",
         Import},
        {"--dossier", {"DOSSIER"}, "prend les bases, les images et les habillages de ce dossier"},
    };
    return Table;
}

const Option* FindOption(std::string_view Name)
{
    const auto Found = std::ranges::find(Options(), Name, &Option::Name);
    return Found == Options().end() ? nullptr : &*Found;
}

std::string Usage(const Option& Row)
{
    std::string Text(Row.Name);
    for (const std::string_view Operand : Row.Operands)
        Text.append(" ").append(Operand);
    for (const std::string_view Word : Row.Words)
        Text.append(" [").append(Usage(*FindOption(Word))).append("]");
    return Text;
}

} // namespace orvane
