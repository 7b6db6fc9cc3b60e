#pragma once

#include <filesystem>
#include <vector>

// The way in for data files that are Jet databases: each becomes one of ours in its place.
namespace orvane {

// Whether the file begins as a Jet database; not so for one that isn't there.
bool EstJet(const std::filesystem::path& Fichier);

// The Jet files among a program folder's databases, those of its skins included and the kept
// originals left out; in a fixed order.
std::vector<std::filesystem::path> FichiersJet(const std::filesystem::path& Dossier);

// Converts a Jet file in its place. The original is kept beside it as <name>.jet.mdb, or as
// <name>.jet.2.mdb and so on when another one bears that name. At any moment there is a whole file
// under the file's own name, the original or the converted one. A Failure that names the file
// (FailureKind::FileUnreadable, NotJet, JetDamaged, JetProtected or one of writing) leaves all as
// it was; its sentence stands on one line. Reading goes on in a process of its own, so that no file
// can harm this one.
void ImporterJet(const std::filesystem::path& Fichier);

} // namespace orvane
