#include "scenario/appearance.h"

#include "scenario/lines.h"

#include <iomanip>
#include <sstream>

namespace orvane::scenario {

namespace {

const std::string Hidden = "-";

std::string YesOrNo(bool Given)
{
    return Given ? "oui" : "non";
}

std::string Told(Colour Given)
{
    std::ostringstream Result;
    Result << '#' << std::hex << std::setfill('0');
    for (const int Part : {Given.Red(), Given.Green(), Given.Blue()})
        Result << std::setw(2) << Part;
    return Result.str();
}

std::string Told(double Given)
{
    std::ostringstream Result;
    Result << Given;
    return Result.str();
}

std::string StemOf(const Picture& Given)
{
    return Given.IsEmpty() ? "aucune" : Given.File.stem().string();
}

// "Métiers: Couture, Forge | Panier: Ouvrir"
std::string Told(const SideMenu& Menu)
{
    std::vector<std::string> Bars;
    for (const SideMenu::Bar& Each : Menu.Bars()) {
        std::vector<std::string> Entries;
        for (const SideMenu::Item& Entry : Each.Items)
            Entries.push_back(Entry.Text);
        Bars.push_back(Each.Title + ": " + Joined(Entries, ", "));
    }
    return Joined(Bars, " | ");
}

// Tips, or icons, of a menu as its bars are told: "Métier: Armures, Habits | Panier: Commandes".
std::string Told(const SideMenu& Menu, const std::string& Side)
{
    std::vector<std::string> Bars;
    for (const SideMenu::Bar& Each : Menu.Bars()) {
        std::vector<std::string> Entries;
        for (const SideMenu::Item& Entry : Each.Items)
            Entries.push_back(Side == "bulles" ? Entry.Tip : std::to_string(Entry.Icon));
        Bars.push_back((Side == "bulles" ? Each.Tip : StemOf(Each.Picture)) + ": " +
                       Joined(Entries, ", "));
    }
    return Joined(Bars, " | ");
}

std::string Told(const TextBox& Box)
{
    std::string Result = Box.Text;
    for (const auto& [Holds, Sign] : {std::pair(Box.Marked(), '!'), std::pair(Box.Stale(), '?')})
        if (Holds)
            Result += (Result.empty() ? "" : " ") + std::string(1, Sign);
    return Result;
}

} // namespace

std::string Appearance::Of(const Control& Which) const
{
    if (!Which.Visible)
        return Hidden;
    if (const auto* Box = dynamic_cast<const TextBox*>(&Which))
        return Told(*Box);
    if (const auto* Box = dynamic_cast<const ComboBox*>(&Which))
        return Box->Text;
    if (const auto* Box = dynamic_cast<const ListBox*>(&Which))
        return Box->Text;
    if (const auto* Words = dynamic_cast<const Label*>(&Which))
        return Words->Caption;
    if (const auto* Menu = dynamic_cast<const SideMenu*>(&Which))
        return Told(*Menu);
    if (const auto* Shown = dynamic_cast<const PictureControl*>(&Which))
        return StemOf(Shown->Picture);
    return "visible";
}

std::string Appearance::Openness(const Control& Which)
{
    const auto* Box = dynamic_cast<const TextBox*>(&Which);
    if (Box == nullptr)
        throw CannotGoOn(Which.Name() + " is no box to type in");
    if (!Which.Visible)
        return {};
    const bool IsOpen = !Box->Locked;
    const bool IsGrey = Box->BackColor() == InputGrey;
    return (IsOpen ? "*" : "") + std::string(IsOpen == IsGrey ? "" : "(fond)");
}

std::string Appearance::Of(const Control& Which, const std::string& Side) const
{
    if (Side == "bulle")
        return Which.Tip;
    if (Side == "nom")
        return Which.Called;
    if (Side == "gauche" || Side == "haut" || Side == "largeur" || Side == "hauteur")
        return Told(Side == "gauche"    ? Which.Left
                    : Side == "haut"    ? Which.Top
                    : Side == "largeur" ? Which.Width
                                        : Which.Height);
    if (Side == "police")
        return Told(Which.FontSize());
    if (Side == "encre" || Side == "fond")
        return Told(Side == "encre" ? Which.ForeColor() : Which.BackColor());
    if (const auto* Box = dynamic_cast<const TextBox*>(&Which)) {
        if (Side == "ouvert")
            return YesOrNo(!Box->Locked);
        if (Side == "texte") // whether it is hidden or not
            return Told(*Box);
    }
    if (const auto* Box = dynamic_cast<const ComboBox*>(&Which); Box != nullptr && Side == "texte")
        return Box->Text;
    if (const auto* List = dynamic_cast<const ListControl*>(&Which)) {
        if (Side == "liste")
            return Joined(List->Items(), " | ");
        if (Side == "nombre")
            return std::to_string(List->ListCount());
        if (Side == "index")
            return std::to_string(List->ListIndex);
    }
    if (const auto* Menu = dynamic_cast<const SideMenu*>(&Which))
        if (Side == "bulles" || Side == "icônes")
            return Told(*Menu, Side);
    if (const auto* Shown = dynamic_cast<const PictureControl*>(&Which))
        if (Side == "fichier")
            return File(Shown->Picture);
    if (const auto* Pressed = dynamic_cast<const Button*>(&Which))
        if (Side == "mots")
            return Pressed->Words;
    if (const auto* Words = dynamic_cast<const Label*>(&Which))
        if (Side == "gras")
            return YesOrNo(Words->Bold);
    if (const auto* Drawn = dynamic_cast<const Shape*>(&Which))
        if (Side == "bord")
            return Told(Drawn->BorderColor());
    if (const auto* Drawn = dynamic_cast<const Line*>(&Which)) {
        if (Side == "bord")
            return Told(Drawn->BorderColor());
        if (Side == "bouts")
            return Joined({Told(Drawn->X1), Told(Drawn->Y1), Told(Drawn->X2), Told(Drawn->Y2)},
                          " ");
    }
    throw CannotGoOn(Which.Name() + " has no " + Side);
}

std::string Appearance::Of(const Screen& Which, const std::string& Side) const
{
    if (Side == "titre")
        return Which.Caption;
    if (Side == "icône")
        return StemOf(Which.Icon);
    if (Side == "image")
        return File(Which.Picture);
    if (Side == "largeur" || Side == "hauteur")
        return Told(Side == "largeur" ? Which.Width : Which.Height);
    throw CannotGoOn(Which.Name() + " has no " + Side);
}

std::string Appearance::File(const Picture& Given) const
{
    return Given.IsEmpty() ? "aucune" : Given.File.lexically_relative(Folder).string();
}

} // namespace orvane::scenario
