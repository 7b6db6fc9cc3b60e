#include "skins/skin_check.h"

#include "base/failure.h"
#include "base/typography.h"
#include "catalogue/catalogue.h"
#include "skins/layout.h"
#include "skins/skin_assets.h"

#include <functional>

namespace orvane {

namespace {

// A typed name stands in paths: it must not lead out of the folder that it is looked for in.
bool NommeUnDossier(const std::string& Nom)
{
    return Nom != "." && Nom != ".." && Nom.find_first_of("/\\") == std::string::npos;
}

// The row of each screen that the skin knows.
Recordset Écrans(const Database& Base)
{
    return Base.OpenRecordset("SELECT * FROM RésolutionCommune");
}

bool TableExiste(const Database& Base, const std::string& Table)
{
    try {
        LignesDeDisposition(Base, Table);
        return true;
    } catch (const Failure& Given) {
        if (Given.Kind() != FailureKind::DatabaseIncomplete)
            throw;
        return false;
    }
}

bool RésolutionExiste(const Database& Base, const std::string& Fin)
{
    Recordset Lignes = Écrans(Base);
    bool TousCommuns = !Lignes.Eof();
    for (; !Lignes.Eof(); Lignes.MoveNext()) {
        if (EstCommun(Lignes))
            continue;
        TousCommuns = false;
        if (TableExiste(Base, Lignes.TextOrEmpty("Nom") + Fin))
            return true;
    }
    return TousCommuns;
}

using Examen = std::function<std::string(const Database& Base)>;

std::string Examiner(Application& App, const std::string& Skin, const Examen& Regarder)
{
    if (SansEspaces(Skin).empty())
        return "Aucun habillage n’est choisi.";
    std::string Absent = Typeset("L’habillage « " + Skin + " » n’existe pas.");
    if (!NommeUnDossier(Skin))
        return Absent;
    try {
        return Regarder(App.Bases.Open(App.Chemin("/Skins/" + Skin + "/" + SkinFile(Skin))));
    } catch (const Failure& Given) {
        return Given.Kind() == FailureKind::DatabaseMissing ? Absent : Given.Sentence();
    }
}

} // namespace

std::string FauteDeSkin(Application& App, const std::string& Skin)
{
    return Examiner(App, Skin, [](const Database& Base) {
        Écrans(Base);
        return std::string();
    });
}

std::string FauteDeRésolution(Application& App, const std::string& Skin,
                              const std::string& Résolution)
{
    return Examiner(App, Skin, [&](const Database& Base) -> std::string {
        const std::string Fin = "_" + SansEspaces(Résolution);
        if (Fin == "_")
            return "Aucune résolution n’est choisie.";
        if (NommeUnDossier(Résolution) && RésolutionExiste(Base, Fin))
            return {};
        return Typeset("L’habillage « " + Skin + " » n’a pas la résolution « " + Résolution +
                       " » : il manque les tables « frm_…" + Fin + " » dans « " + SkinFile(Skin) +
                       " ».");
    });
}

} // namespace orvane
