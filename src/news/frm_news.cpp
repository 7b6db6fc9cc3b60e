#include "news/frm_news.h"

#include "app/navigation.h"
#include "app/version.h"
#include "toolkit/placing.h"

namespace orvane {

frm_News::frm_News(Application& App) : Feuille(App, ScreenName, "Orvane Artisanats - News")
{
    Définir();
    cmd_Détails.OnClick = [this] { this->App.Feuilles.Touch("frm_Statut").Show(); };
    cmd_Retour.OnClick = [this] { WayBack(); };
}

void frm_News::Activate()
{
    lbl_Version.Caption = "Version du logiciel : " + std::to_string(VersionMajeure) + "." +
                          std::to_string(VersionMineure);
}

void frm_News::WayBack()
{
    Revenir(App, *this, Retour::AccueilPuisCacher);
}

void frm_News::Définir()
{
    SizeScreen(*this, 680, 420);
    PlaceTitle(lbl_Titre, "Nouvelles", {60, 40, 560, 36});
    PlacePanel(shp_Version, {60, 92, 560, 190});
    PlaceLabel(lbl_Version, "Version du logiciel :", {90, 116, 500, 34});
    PlaceLabel(Lbl_DernierPatch, "Dernier patch complet  :", {90, 170, 500, 30});
    PlaceLabel(lbl_PatchEnCours, "En cours : v1.85", {90, 220, 500, 30});
    for (Label* Each : {&lbl_Version, &Lbl_DernierPatch, &lbl_PatchEnCours})
        Each->FontSize = 12;
    lbl_Version.Bold = true;
    PlaceButton(cmd_Détails, "Détails", "État des données, royaume par royaume",
                {180, 320, 140, 46}, "Return");
    PlaceButton(cmd_Retour, "Retour", "Revenir à l’accueil", {360, 320, 140, 46}, "Esc");
}

} // namespace orvane
