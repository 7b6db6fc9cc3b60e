#pragma once

#include "app/slot.h"
#include "store/store.h"

#include <string>

namespace orvane {

// The state that all screens share. Paths are texts without a closing separator unless told.
struct Variables
{
    std::string RoyaumeCourant; // "Valdren", "Corvane" or "Brenmoor"
    std::string CheminSkin;     // folder of the chosen skin, with a closing separator
    std::string CheminImages;  // image folder of the screen being dressed, with a closing separator
    std::string CheminStatut;  // the status screen's own image folder
    std::string CheminRoyaume; // database of the current realm
    std::string CheminConfig;
    std::string CheminBaseSkin; // layout database of the chosen skin
    std::string CheminPanier;
    std::string CheminAlchimie;

    Slot<Database> BaseDonnées;
    Slot<Recordset> Enregistrements;
    std::string TexteSQL; // set immediately before each use: a nested handler may overwrite it
    Slot<Database> BaseDonnées2;
    Slot<Recordset> Enregistrements2;
};

} // namespace orvane
