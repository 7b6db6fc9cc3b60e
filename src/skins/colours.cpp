#include "skins/colours.h"

#include "app/queries.h"

#include <charconv>
#include <optional>

namespace orvane {

namespace {

// "F1E6D2": red, green and blue as people write them.
std::optional<Colour> CouleurDe(const std::string& Texte)
{
    constexpr std::size_t Chiffres = 6;
    int Nombre = 0;
    const auto [Fin, Faute] =
        std::from_chars(Texte.data(), Texte.data() + Texte.size(), Nombre, 16);
    if (Texte.size() != Chiffres || Faute != std::errc() || Fin != Texte.data() + Chiffres)
        return std::nullopt;
    return RGB(Nombre >> 16, Nombre >> 8 & 0xFF, Nombre & 0xFF);
}

} // namespace

void ChargerCouleurs(Application& App)
{
    App.Couleurs.clear();
    if (App.Globals.BaseDonnées2->HasTable("Palette"))
        for (Recordset Ligne =
                 OuvrirEnregistrements2(App.Globals, "SELECT Nom, Couleur FROM Palette");
             !Ligne.Eof(); Ligne.MoveNext())
            if (const auto Couleur = CouleurDe(Ligne.TextOrEmpty("Couleur")))
                App.Couleurs[Ligne.TextOrEmpty("Nom")] = *Couleur;
    App.OnColours();
}

} // namespace orvane
