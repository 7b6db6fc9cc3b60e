#pragma once

#include "app/feuille.h"

namespace orvane {

// The version of the program, and which version of the game the data follows.
class frm_News : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_News";

    explicit frm_News(Application& App);

    void Activate() override;
    void WayBack() override;

    Shape NAMED(shp_Version);
    Label NAMED(lbl_Titre);
    Label NAMED(lbl_Version);
    Label NAMED(Lbl_DernierPatch);
    Label NAMED(lbl_PatchEnCours);
    Button NAMED(cmd_Détails);
    Button NAMED(cmd_Retour);

  private:
    void Définir();
};

} // namespace orvane
