#pragma once

#include "app/application.h"
#include "base/failure.h"

#include <string>
#include <vector>

// Where a skin's files lie, and the pictures that dress the ten screens.
namespace orvane {

// The pictures that a skin holds below each of its image folders: "Accueil/Fond.jpg".
std::vector<std::string> ImagesDeSkin();

// The screens that couldn't be dressed or laid out, each with its failure.
class ÉcransManqués
{
  public:
    explicit ÉcransManqués(Application& App) : App(App) {}

    // What is wrong with the database itself is told later as it is. When it is locked, Failure
    // again: each further screen would wait for it in vain.
    void Ajouter(Screen& Feuille, const Failure& Cause);

    // Tells later, in one notice, which ones the skin doesn't know at this resolution.
    void Annoncer() const;

  private:
    Application& App;
    std::string Inconnus;
};

// Fixes the paths of the skin and loads background and button pictures of all ten screens afresh;
// a screen's first touch here loads it. A picture that is missing leaves the plain look, a screen
// that the skin doesn't know keeps what it has; both are told later. Failure when the database
// can't be opened or is locked.
void ChargerSkin(Application& App, const std::string& Skin, const std::string& Résolution);

// The resolution's name as it stands in names of folders and tables: without its spaces.
std::string SansEspaces(std::string Résolution);

// Whether a row of RésolutionCommune marks its screen as common to all resolutions.
bool EstCommun(const Recordset& Ligne);

// "Commun" for a screen that all resolutions share, else the resolution's name without its spaces.
// Needs BaseDonnées2 open on the skin's database; fails for a screen that the skin doesn't know.
std::string Déclinaison(Application& App, const std::string& Feuille,
                        const std::string& Résolution);

// Sets CheminImages for one screen: the common folder or the resolution's. Needs BaseDonnées2 open
// on the skin's database.
void ChoisirDossierImages(Application& App, const std::string& Feuille,
                          const std::string& Résolution);

// Repairs the link of the alchemy objects in one realm's database, which goes stale when the
// program's folder moves; for this run only where nothing can be written.
void RelierAlchimie(Application& App, const std::string& Royaume);

} // namespace orvane
