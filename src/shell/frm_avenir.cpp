#include "shell/frm_avenir.h"

#include "toolkit/placing.h"

namespace orvane {

frm_Avenir::frm_Avenir(Application& App, const std::string& Name, const std::string& Words,
                       Retour Comment)
    : Feuille(App, Name, Words),
      Comment(Comment)
{
    SizeScreen(*this, 680, 320);
    Place(img_Bannière, {40, 16, 600, 64});
    PlacePanel(shp_Cadre, {40, 96, 600, 130});
    PlaceTitle(lbl_Titre, Words, {60, 112, 560, 34});
    PlaceLabel(lbl_Texte, "Cet atelier n’a pas encore ouvert ses portes.", {60, 156, 560, 28});
    lbl_Texte.FontSize = 10;
    PlaceButton(cmd_Retour, "Retour", "Revenir à l’écran précédent", {270, 246, 140, 46});
    cmd_Retour.OnClick = [this] { WayBack(); };
}

} // namespace orvane
