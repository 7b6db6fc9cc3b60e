#pragma once

// Saddlery and recycling in SQL, for the file of a realm.
namespace orvane {

// Recycling: materials as in petit_dossier.h; all of level 50. "Étoles" brings 12,5 at "brut", 20
// at "simple", 31 at "fin"; other objects 1, 2 and 3.
//
// Saddlery of Métallurgie: a heavy bard of 30 (two materials), a light one of 19 (three), a
// chamfron of 10,0999 (four), and a bit, whose second material isn't there. The other trades have
// one object of 100 each. The "(aucun)" of this table has a price.
extern const char* const RangéesSecondaires;

} // namespace orvane
