#include "app/navigation.h"

namespace orvane {

void Revenir(Application& App, Screen& Which, Retour Comment)
{
    if (Comment == Retour::AccueilPuisCacher)
        App.Feuilles.Touch("frm_Accueil").Show();
    Which.Hide();
    if (Comment == Retour::CacherPuisAccueil)
        App.Feuilles.Touch("frm_Accueil").Show();
}

void PoserBannière(Application& App, Image& Bannière)
{
    Bannière.Picture =
        App.Images.LoadOr(App.Chemin("/Interface/Bannière" + App.Globals.RoyaumeCourant + ".gif"));
    Bannière.Tip = "Royaume de " + App.Globals.RoyaumeCourant;
}

void PoserIcône(Application& App, Screen& Which)
{
    Which.Icon =
        App.Images.LoadOr(App.Chemin("/Interface/Icônes/" + App.Globals.RoyaumeCourant + ".ico"));
}

} // namespace orvane
