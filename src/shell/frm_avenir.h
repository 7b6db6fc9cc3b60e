#pragma once

#include "shell/feuille.h"
#include "shell/navigation.h"

namespace orvane {

// A screen whose craft isn't there yet: its title, the realm's banner, and the way back.
class frm_Avenir : public Feuille
{
  public:
    frm_Avenir(Application& App, const std::string& Name, const std::string& Caption,
               Retour Comment);

    void WayBack() override { Revenir(App, *this, Comment); }

    Shape NAMED(shp_Cadre);
    Image NAMED(img_Bannière);
    Label NAMED(lbl_Titre);
    Label NAMED(lbl_Texte);
    Button NAMED(cmd_Retour);

  private:
    Retour Comment;
};

} // namespace orvane
