#pragma once

#include "toolkit/screen.h"

#include <optional>
#include <string>

// What of a screen is told to who doesn't see it.
namespace orvane {

// Visible, and neither an ornament nor a row that holds nothing: signs between boxes, frames and
// pictures without a meaning are passed over.
bool IsTold(const Control& Which);

// In a row of a bill that holds no material.
bool IsEmptyRow(const Control& Which);

// The price of a row that nobody but the crafter knows, and that hasn't been typed yet.
bool AwaitsPrice(const TextBox& Which);
inline constexpr const char* AwaitingWords = "prix à saisir";

// A result, where the keyboard stops on the walk through the values only.
bool IsValue(const Control& Which);

// What a picture shows: its tip, or what it depicts; empty for an ornament.
std::string ShownIn(const PictureControl& Which);

// The headings on a panel, joined; empty for one without.
std::string TitleOf(const Control& Panel);

// A figure with its name: "Prix de vente : 12,5".
std::string Told(const TextBox& Figure);

// Of a box or a list that holds a setting: whether the disk holds another text.
template <class Kind>
bool IsUnkept(const Kind& Setting)
{
    const std::optional<std::string>& Stored = Setting.Stored;
    return Stored && Setting.Text != *Stored;
}
inline constexpr const char* UnkeptWords = "Pas encore enregistré : « Valider » le garde.";

} // namespace orvane
