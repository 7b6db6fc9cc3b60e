#pragma once

#include "crafts/common/nomenclature.h"

#include <vector>

// The reading of a choice, and what becomes of the figures when it is given up half-way.
namespace orvane {

// What a pick reads: whole bills, and single boxes beside them.
struct Lues
{
    std::vector<Nomenclature*> Nomenclatures;
    std::vector<TextBox*> Cases;

    void Marquer(bool Périmées) const
    {
        for (Nomenclature* Each : Nomenclatures)
            if (Périmées)
                Each->Périmer();
            else
                Each->Rafraîchir();
        for (TextBox* Each : Cases)
            Each->Stale = Périmées;
    }
};

// The one guard around a pick. What it reads is called fresh; when the reading is given up, or a
// line has no price, all of it is stale, and the screen's own sum, which runs at the end in any
// case, refuses to rest on it. So no count typed later makes old figures fresh.
template <class Lecture, class Calcul>
void LireOuPérimer(const Lues& Quoi, Lecture Lire, Calcul Calculer)
{
    Quoi.Marquer(false);
    try {
        Lire();
    } catch (...) {
        Quoi.Marquer(true);
        Calculer();
        throw;
    }
    for (Nomenclature* Each : Quoi.Nomenclatures)
        if (Each->EstPérimée())
            Each->Périmer();
    Calculer();
}

} // namespace orvane
