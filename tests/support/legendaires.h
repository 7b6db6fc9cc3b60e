#pragma once

// Legendary weapons, their gems and their dyes, in SQL. Dyes and gems would stand in the lists of
// the magic crafts, so that these rows join a folder only where a test asks for them.
namespace orvane {

// For the file of a realm. Weapons of Forge: "Lame du couchant" (gem of 32, two of them; material
// 10; weapon 19; two dyes; resale 30), "Hache des cendres" (14, 5, 11; five dyes; resale 200) and
// "Masse perdue", a material of which isn't found. Empennage has an arc, Armurerie a shield.
extern const char* const RangéesLégendaires;

// For the alchemy file: the dye of the type "de brume" costs 8,5, that of "d'aube" 3,5.
extern const char* const RangéesTeintures;

} // namespace orvane
