#pragma once

#include "toolkit/text_box.h"

#include <functional>
#include <string>
#include <vector>

namespace orvane {

// What a Change handler of an input box does on every craft screen: a text that is one of Réparés
// gives way to Réparation, which runs the handler again inside itself; then Calculer runs.
inline void RecalculerAuChangement(TextBox& Saisie, std::vector<std::string> Réparés,
                                   std::string Réparation, std::function<void()> Calculer)
{
    Saisie.OnChange = [&Saisie, Réparés = std::move(Réparés), Réparation = std::move(Réparation),
                       Calculer = std::move(Calculer)] {
        for (const std::string& Each : Réparés)
            if (Saisie.Text == Each) {
                Saisie.Text = Réparation;
                break;
            }
        Calculer();
    };
}

} // namespace orvane
