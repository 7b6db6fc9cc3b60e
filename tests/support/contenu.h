#pragma once

#include "support/temp_folder.h"

#include <filesystem>
#include <string>

// What petit_dossier puts into its folder.
namespace orvane {

class Fichier;

// Level and margins of each craft in Valdren; rows 8 and 11 hold cells that no screen shows.
void FaireConfig(const std::filesystem::path& Dossier);

// Essences for arms: the sum of their materials is 2,5 with fire and with energy, 5,5 with ice, 4
// with fire at the higher degree.
void FaireAlchimie(const std::filesystem::path& Dossier);

// Behind them, whole rows for the screen of the magic crafts: dyes of 37,5, 1,2345 and 39,845, and
// blades of 3 to which an oil of 15 or a breath of 8,5 is added.
void AjouterMagie(Fichier& Alchimie);

// Gems, whose figures their tests tell.
void FaireArcanes(Fichier& Royaume);

// Royaume counts from 0.
void FaireRoyaume(const std::filesystem::path& Dossier, int Royaume);

// Files that only have to be there.
void FaireImages(const TempFolder& Dossier);

// A skin whose pictures only have to be there and whose layouts move nothing. frm_Configuration and
// frm_Panier are common to the resolutions.
void FaireSkin(const TempFolder& Dossier, const std::string& Skin);

} // namespace orvane
