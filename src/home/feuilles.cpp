#include "home/feuilles.h"

#include "basket/frm_panier.h"
#include "crafts/archery/frm_archerie.h"
#include "crafts/legendary/frm_armes_legendaires.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "crafts/secondary/frm_artisanats_secondaires.h"
#include "home/frm_accueil.h"
#include "news/frm_news.h"
#include "news/frm_statut.h"
#include "settings/frm_configuration.h"

namespace orvane {

namespace {

struct Inscription
{
    const char* Nom;
    std::unique_ptr<Screen> (*Faire)(Application&);
};

template <class ScreenType>
constexpr Inscription Inscrire()
{
    return {ScreenType::ScreenName, [](Application& App) -> std::unique_ptr<Screen> {
                return std::make_unique<ScreenType>(App);
            }};
}

constexpr Inscription LesFeuilles[] = {
    Inscrire<frm_Accueil>(),
    Inscrire<frm_Configuration>(),
    Inscrire<frm_ArtisanatsManuels>(),
    Inscrire<frm_Archerie>(),
    Inscrire<frm_ArmesLégendaires>(),
    Inscrire<frm_ArtisanatsMagiques>(),
    Inscrire<frm_ArtisanatsSecondaires>(),
    Inscrire<frm_Panier>(),
    Inscrire<frm_News>(),
    Inscrire<frm_Statut>(),
};

} // namespace

std::vector<std::string> NomsFeuilles()
{
    std::vector<std::string> Noms;
    for (const Inscription& Each : LesFeuilles)
        Noms.emplace_back(Each.Nom);
    return Noms;
}

void EnregistrerFeuilles(Application& App)
{
    for (const Inscription& Each : LesFeuilles)
        App.Feuilles.Register(Each.Nom, [&App, &Each] { return Each.Faire(App); });
}

void Charger(Application& App)
{
    App.Feuilles.Touch(frm_Accueil::ScreenName);
}

void Démarrer(Application& App)
{
    Charger(App);
    App.Feuilles.Get<frm_Accueil>().Show();
    App.EmptySlots();
    App.TellNotices();
}

void Quitter(Application& App)
{
    App.Door.Event([&] { App.Feuilles.Get<frm_Accueil>().cmd_Quitter.OnClick(); });
}

} // namespace orvane
