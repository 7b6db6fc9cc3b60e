#pragma once

#include "basket/order_lines.h"
#include "crafts/common/nomenclature.h"

#include <cstdint>
#include <initializer_list>
#include <vector>

// What a crafter buys to make the objects on screen: the one place that turns bills into purchases.
namespace orvane {

// Something that one set takes: a bill, so often; or a thing that has a price of its own. Where it
// has both, the thing itself is bought when its price isn't what the bill comes to: somebody has
// typed it.
struct Besoin
{
    Nomenclature* Matériaux = nullptr;
    TextBox* Nombre = nullptr; // once when there is none
    TextBox* Nom = nullptr;
    TextBox* Prix = nullptr; // of all of them, for one set
};

// How many sets objects and extra trials take: a trial uses up a whole one. A count below 0 counts
// 0.
std::int64_t Lots(std::initializer_list<TextBox*> Comptes);

// The purchases for so many sets. A line that is hidden, or that bears no material's name, is none.
// A figure that is wrong or stale ends the calculation that asks, as one that is too great does.
Achats AchatsPour(std::int64_t Lots, const std::vector<Besoin>& Besoins);

} // namespace orvane
