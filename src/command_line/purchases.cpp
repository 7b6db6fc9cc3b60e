#include "command_line/purchases.h"

#include "base/failure.h"
#include "base/typography.h"
#include "basket/copies.h"
#include "catalogue/catalogue.h"

#include <algorithm>

namespace orvane {

namespace {

// The realm that was named, if one was.
std::optional<std::string> Realm(const Given& What)
{
    if (!What.Has("--royaume"))
        return {};
    const std::string& Named = What.Words.at("--royaume");
    if (std::ranges::find(Royaumes(), Named) == Royaumes().end())
        throw Misunderstanding{"Le royaume « " + Named + " » n’existe pas."};
    return Named;
}

} // namespace

int ListPurchases(const Given& What, std::ostream& Out, std::ostream& Remarks)
{
    const std::string& Order = What.Operands.front();
    const std::optional<std::string> InRealm = Realm(What);
    Store Bases;
    ListeDAchats List(Bases, What.Folder / PanierFile);
    List.Lire({Order, {}});
    if (List.Objets().empty())
        throw Failure(FailureKind::Told, "La commande « " + Order + " » n’existe pas.");
    if (InRealm)
        List.Lire({Order, InRealm});
    Out << AchatsEnCsv(List);
    if (const std::string Unknown = List.SansMatériaux(); !Unknown.empty())
        Remarks << Unknown << "\n";
    return 0;
}

} // namespace orvane
