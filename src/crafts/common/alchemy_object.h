#pragma once

#include "app/application.h"
#include "crafts/common/nomenclature.h"

// What several crafts take from the alchemy database.
namespace orvane {

// Some materials are named by realm: the last character of the name gives way to the realm's own
// ending. Needs the alchemy database open; fails when no material bears the name.
void RemplacerDernierCaractère(Variables& Globals, TextBox& Nom);

// The bill of an object that another one needs, as two screens call it.
inline const NomsNomenclature NomsObjetSup{"txt_MatSup",
                                           "lbl_MatSupX",
                                           "txt_MatSupQté",
                                           "lbl_MatSup",
                                           "txt_PrixMatSup",
                                           "txt_PrixMatSuptUnitaire",
                                           {}};

// Where an object that another one needs shows its level, its icon and its first four materials.
struct ObjetSup
{
    Label& Niveau;
    TextBox& Icône;
    Nomenclature& Matériaux;
};

// Fills it from the alchemy object of that name, whatever its product. Needs the alchemy database
// open; fails when there is no such object.
void ChargerObjetSup(Variables& Globals, const std::string& Nom, const ObjetSup& Où);

} // namespace orvane
