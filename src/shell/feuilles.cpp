#include "shell/feuilles.h"

#include "basket/frm_panier.h"
#include "crafts/archery/frm_archerie.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "news/frm_news.h"
#include "news/frm_statut.h"
#include "settings/frm_configuration.h"
#include "shell/frm_accueil.h"
#include "shell/frm_avenir.h"

#include <array>

namespace orvane {

namespace {

struct ÀVenir
{
    const char* Nom;
    const char* Titre;
    Retour Comment;
};

constexpr std::array FeuillesÀVenir{
    ÀVenir{"frm_ArmesLégendaires", "Armes Légendaires", Retour::Cacher},
    ÀVenir{"frm_ArtisanatsSecondaires", "Artisanats Secondaires", Retour::CacherPuisAccueil},
};

template <class ScreenType>
void Enregistrer(Application& App)
{
    App.Feuilles.Register(ScreenType::ScreenName,
                          [&App] { return std::make_unique<ScreenType>(App); });
}

} // namespace

std::vector<std::string> NomsFeuilles()
{
    std::vector<std::string> Noms{frm_Accueil::ScreenName,
                                  frm_Configuration::ScreenName,
                                  frm_ArtisanatsManuels::ScreenName,
                                  frm_ArtisanatsMagiques::ScreenName,
                                  frm_Archerie::ScreenName,
                                  frm_Panier::ScreenName,
                                  frm_News::ScreenName,
                                  frm_Statut::ScreenName};
    for (const ÀVenir& Each : FeuillesÀVenir)
        Noms.emplace_back(Each.Nom);
    return Noms;
}

void EnregistrerFeuilles(Application& App)
{
    Enregistrer<frm_Accueil>(App);
    Enregistrer<frm_Configuration>(App);
    Enregistrer<frm_ArtisanatsManuels>(App);
    Enregistrer<frm_Archerie>(App);
    Enregistrer<frm_ArtisanatsMagiques>(App);
    Enregistrer<frm_Panier>(App);
    Enregistrer<frm_News>(App);
    Enregistrer<frm_Statut>(App);
    for (const ÀVenir& Each : FeuillesÀVenir)
        App.Feuilles.Register(Each.Nom, [&App, &Each] {
            return std::make_unique<frm_Avenir>(App, Each.Nom, Each.Titre, Each.Comment);
        });
}

void Démarrer(Application& App)
{
    App.Feuilles.Get<frm_Accueil>().Show();
    App.EmptySlots();
    App.TellNotices();
}

} // namespace orvane
