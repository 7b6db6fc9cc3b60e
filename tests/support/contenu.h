#pragma once

#include "support/temp_folder.h"

#include <filesystem>
#include <string>

// What petit_dossier puts into its folder.
namespace orvane {

// Level and margins of each craft in Valdren; rows 8 and 11 hold cells that no screen shows.
void FaireConfig(const std::filesystem::path& Dossier);

// Essences for arms: the sum of their materials is 2,5 with fire and with energy, 5,5 with ice, 4
// with fire at the higher degree.
void FaireAlchimie(const std::filesystem::path& Dossier);

// Royaume counts from 0.
void FaireRoyaume(const std::filesystem::path& Dossier, int Royaume);

// Files that only have to be there.
void FaireImages(const TempFolder& Dossier);

// A skin whose pictures only have to be there and whose layouts move nothing. frm_Configuration and
// frm_Panier are common to the resolutions.
void FaireSkin(const TempFolder& Dossier, const std::string& Skin);

} // namespace orvane
