#include "news/frm_statut.h"

#include "toolkit/placing.h"

namespace orvane {

frm_Statut::frm_Statut(Application& App) : Feuille(App, ScreenName, "Mise à Jour")
{
    Définir();
    for (const Volet& Each : Volets()) {
        Each.Bouton->Picture =
            App.Images.LoadOr(App.Chemin(std::string("/Interface/Bouton") + Each.Royaume + ".gif"));
        Each.Bouton->OnClick = [this, Royaume = Each.Royaume] { MontrerRoyaume(Royaume); };
    }
    cmd_Retour.OnClick = [this] { Hide(); };
}

void frm_Statut::Activate()
{
    for (const Volet& Each : Volets())
        if (Globals.RoyaumeCourant == Each.Royaume)
            MontrerRoyaume(Each.Royaume);
}

void frm_Statut::MontrerRoyaume(const std::string& Royaume)
{
    Picture = App.Images.LoadOr(Globals.CheminStatut + "/" + Royaume + ".jpg");
    cmd_Retour.Picture =
        App.Images.LoadOr(Globals.CheminStatut + "/BoutonRetour" + Royaume + ".jpg");
    shp.Visible = true;
    lbl_Alchimie.Visible = true;
    for (const Volet& Each : Volets())
        for (const État& Ligne : Each.États)
            Ligne.Étiquette->Visible = Each.Royaume == Royaume;
}

std::vector<frm_Statut::Volet> frm_Statut::Volets()
{
    return {{"Valdren",
             &cmd_Valdren,
             {{&lbl_ValArmurerie, "Armurerie : Non implémentée."},
              {&lbl_ValCouture, "Couture : A jour (v1.85)."},
              {&lbl_ValEmpennage, "Empennage : A jour (v1.85)"},
              {&lbl_ValForge, "Forge : En cours (Déjà fait : Bouclier, Armes flexibles)."},
              {&lbl_ValArcanes, "Arcanes : A jour (v1.85)"}}},
            {"Corvane",
             &cmd_Corvane,
             {{&lbl_CorArmurerie,
               "Armurerie : A jour (v1.84) pour le Renforcé. Ecailles non implémentés"},
              {&lbl_CorCouture, "Couture : A jour (v1.85)."},
              {&lbl_CorEmpennage, "Empennage : A jour (v1.85)"},
              {&lbl_CorForge, "Forge : A jour (v1.85)"},
              {&lbl_CorArcanes, "Arcanes : A jour (v1.85)"}}},
            {"Brenmoor",
             &cmd_Brenmoor,
             {{&lbl_BreArmurerie, "Armurerie : A jour (v1.84)."},
              {&lbl_BreCouture, "Couture : A jour (v1.84)."},
              {&lbl_BreEmpennage, "Empennage : Non implémenté."},
              {&lbl_BreForge, "Forge : Non implémentée."},
              {&lbl_BreArcanes, "Arcanes : A jour (v1.85)"}}}};
}

void frm_Statut::Définir()
{
    SizeScreen(*this, 680, 480);
    PlacePanel(shp, {40, 160, 600, 236});
    int X = 116;
    for (const Volet& Each : Volets()) {
        PlaceButton(*Each.Bouton, Each.Royaume, std::string("Voir l’état de ") + Each.Royaume,
                    {X, 28, 104, 120});
        int Y = 176;
        for (const État& Ligne : Each.États) {
            PlaceLabel(*Ligne.Étiquette, Ligne.Texte, {60, Y, 560, 26});
            Ligne.Étiquette->Visible = false;
            Y += 35;
        }
        X += 172;
    }
    PlaceLabel(lbl_Alchimie, "Alchimie : A jour (v1.85)", {60, 351, 560, 26});
    shp.Visible = false;
    lbl_Alchimie.Visible = false;
    PlaceButton(cmd_Retour, "Retour", "Revenir aux nouvelles", {270, 414, 140, 46}, "Esc");
}

} // namespace orvane
