#pragma once

#include "app/feuille.h"
#include "crafts/common/nomenclature.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

// Two jobs of the secondary trades on one screen: saddlery, objects for horses that go into the
// basket, and recycling, what making an object only to sell it to a merchant gains. The caption of
// lbl_Zone2 tells the mode: "Tri :" saddlery, "Degré :" recycling, nothing before the first choice
// in the menu. There is no activation: all that stands here outlasts a visit elsewhere.
class frm_ArtisanatsSecondaires : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_ArtisanatsSecondaires";

    explicit frm_ArtisanatsSecondaires(Application& App);

    void Load() override;
    void WayBack() override;
    bool HasChoice() const override { return cbo_ObjetSecondaire.Text != ""; }

    // Trade, menu, choice, object
    Image NAMED(img_Bannière);
    Shape NAMED(shp_Artisanat);
    PictureBox NAMED(pct_Artisanat);
    Label NAMED(lbl_Artisanat);
    SideMenu NAMED(Bar_Menus);
    Shape NAMED(shp_Choix);
    Label NAMED(lbl_Zone1);
    ComboBox NAMED(cbo_ObjetSecondaire);
    Label NAMED(lbl_Zone2);
    ComboBox NAMED(cbo_Degré); // the degree, or the filter of the objects
    Shape NAMED(shp_Niveau);
    Label NAMED(lbl12);
    Label NAMED(lbl_Niveau);
    Image NAMED(img_Niveau);
    Image NAMED(img_Icône);

    // Materials
    Shape NAMED(shp_Matériaux);
    Label NAMED(lbl21);
    Nomenclature Matériaux{*this,
                           {"txt_Matériaux", "lbl_MatX", "txt_MatériauxQté", "lbl_Mat",
                            "txt_PrixMat", "txt_PrixMatUnitaire", "txt_MatériauxBruts"},
                           4};
    Label NAMED(lbl23);
    TextBox NAMED(txt_PrixCoûtant);
    Label NAMED(lbl22);
    TextBox NAMED(txt_PrixRevente);

    // Saddlery: sale
    Shape NAMED(shp_ImageObjet);
    Image NAMED(img_Objet);
    Shape NAMED(shp_InfosVente);
    Label NAMED(lbl_InfosVente);
    Label NAMED(lbl_SellerieNbObjets);
    TextBox NAMED(txt_SellerieNbObjets);
    Label NAMED(lbl_SelleriePrixCoûtant);
    TextBox NAMED(txt_SelleriePrixCoûtant);
    Label NAMED(lbl_SelleriePrixVente);
    TextBox NAMED(txt_SelleriePrixVente);

    // Recycling: gain
    Shape NAMED(shp_Recyclage);
    Label NAMED(lbl_Recyclage);
    Label NAMED(lbl_RecyclageMatPremière);
    TextBox NAMED(txt_CoûtSuppl);
    Label NAMED(lbl_RecyclageNbObjets);
    TextBox NAMED(txt_NbObjet);
    Label lbl_RecyclageGain{*this, "lbl__RecyclageGain"}; // its name is no C++ identifier
    TextBox NAMED(txt_Gain);

    // Hidden holders
    TextBox NAMED(txt_Icône);
    TextBox NAMED(txt_Image);

    Button NAMED(cmd_AjouterPanier);
    Button NAMED(cmd_Retour);

  private:
    // Definition
    void Définir();
    void DéfinirChoix();
    void DéfinirMatériaux();
    void DéfinirVente();
    void DéfinirRecyclage();
    void Relier(); // handlers to their controls

    // Menu and modes
    bool EnSellerie() const;
    bool EnRecyclage() const;
    void Bar_Menus_ItemClick(const SideMenu::Item& Entrée);
    void cbo_ObjetSecondaire_Click();
    void cbo_Degré_Click(); // of a degree, or of a filter
    void PrendreArtisanat(const std::string& Nom);
    void LireNiveauCraft();
    void ViderListes();
    void ViderChamps();
    void AfficherVente(bool Visible);
    void AfficherRecyclage(bool Visible);
    void MontrerIcône(const Recordset& Objet);
    void txt_Matériaux_Change(LigneMatériau& Ligne);
    void cmd_AjouterPanier_Click();

    // Saddlery
    void PréparerSellerie();
    void FiltrerSellerie();
    void ChoisirSellerie();
    void LireSellerie();
    void CalculerSellerie();

    // Recycling
    void PréparerRecyclage();
    void ChoisirRecyclage();
    void LireRecyclage();
    void ChoisirDegré();
    void LireDegré();
    void CalculerCoût();
    void CalculerGain();

    std::int16_t NiveauCraft = 0; // the crafter's level in the trade in hand
    std::int16_t Marge = 0;       // percent; Menuiserie has none and leaves the former one

    // After the pick of an object to recycle, the number of the column that spells its degrees;
    // after the pick of a degree, the degree's own number.
    std::int16_t NuméroDegré = 0;
    std::string ColonneDegré;
    std::string ColonneRevente;
    bool ObjetLu = true; // not when the pick of the object in hand was given up
};

} // namespace orvane
