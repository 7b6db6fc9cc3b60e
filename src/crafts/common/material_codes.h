#pragma once

#include "app/application.h"
#include "crafts/common/nomenclature.h"

#include <cstdint>
#include <string_view>

// The material codes of an object's row. Most are a type of the materials table, which names the
// material and its price together with the degree; a few are not.
namespace orvane {

// Whether a line's code stands for a material at all: one without is hidden and costs nothing.
bool AUnMatériau(const LigneMatériau& Ligne);

// Whether the crafter prices it.
bool EstLibre(const LigneMatériau& Ligne);

// Name and unit price of the material that a line's code means at a degree; a line without material
// is left as it is. PatronCouronne tells which of the two sewing patterns the object takes. Needs
// the realm database open; fails when the table has no such material.
void RésoudreMatériau(Variables& Globals, std::int16_t NuméroDegré, bool PatronCouronne,
                      LigneMatériau& Ligne);

} // namespace orvane
