#pragma once

#include "app/application.h"

#include <functional>
#include <string>

namespace orvane {

// A deletion or a naming of this run, with what takes it back.
struct Geste
{
    std::string Annulation;                       // what taking it back is called
    std::string Commande;                         // the order in hand before it
    std::function<void(const Database&)> Défaire; // one durable write in the basket's file
};

// What Annuler would do now, as the crafter calls it; empty when nothing is left to take back.
std::string ÀAnnuler(Application& App);

// Takes back the latest deletion or naming; its order is then the one in hand. A failure is told,
// and it can be tried again.
void Annuler(Application& App);

// The basket's file is another one now: the orders are read afresh, and nothing of before can be
// taken back.
void RelireCommandes(Application& App);

} // namespace orvane
