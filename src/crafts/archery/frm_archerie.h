#pragma once

#include "app/feuille.h"
#include "crafts/common/nomenclature.h"

#include <cstdint>

namespace orvane {

// Quivers of arrows and bolts: two lists, three materials, and one margin on the whole. Level and
// margin are those of the trade "Empennage".
class frm_Archerie : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_Archerie";

    explicit frm_Archerie(Application& App);

    void Load() override;
    void Activate() override;
    bool HasChoice() const override { return cbo_Objet.Text != ""; }

    Shape NAMED(shp_Choix);
    Label NAMED(lbl11);
    ComboBox NAMED(cbo_Type);
    Label NAMED(lbl13);
    ComboBox NAMED(cbo_Objet);
    Shape NAMED(shp_Niveau);
    Label NAMED(lbl12);
    Label NAMED(lbl_Niveau);
    Image NAMED(img_Niveau);
    Image NAMED(img_Icône);
    Image NAMED(Image1);
    Shape NAMED(shp_Matériaux);
    Label NAMED(lbl21);
    Nomenclature Matériaux{*this,
                           {"txt_Matériaux",
                            "lbl_MatX",
                            "txt_MatériauxQté",
                            "lbl_Mat",
                            "txt_PrixMat",
                            "txt_PrixMatUnitaire",
                            {}},
                           3};
    Shape NAMED(shp_Vente);
    Label NAMED(lbl32);
    TextBox NAMED(txt_NbObjet);
    Label NAMED(lbl33);
    Label NAMED(lbl31);
    TextBox NAMED(txt_PrixCoûtant);
    Label NAMED(lbl34);
    TextBox NAMED(txt_PrixVente);
    Label NAMED(lbl35);
    Button NAMED(cmd_AjouterPanier);
    Button NAMED(cmd_Retour);
    TextBox NAMED(txt_Icône); // hidden

  private:
    void Définir();
    void cbo_Type_Click();
    void cbo_Objet_Click();
    void LireCarquois();
    void CalculerPrixCarquois();
    void cmd_AjouterPanier_Click();

    std::int16_t NiveauCraft = 0; // the crafter's level
    std::int16_t Marge = 0;       // percent
};

} // namespace orvane
