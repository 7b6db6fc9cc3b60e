#pragma once

#include "app/feuille.h"
#include "basket/order_lines.h"
#include "crafts/common/alchemy_object.h"
#include "crafts/common/nomenclature.h"

#include <cstdint>
#include <string>

namespace orvane {

// The four main trades: a walk down three lists to one object, a degree that gives it materials,
// levels and statistics, and its cost and sale price. The text of a control is the value: handlers
// read and write controls, and the writes set off further handlers.
class frm_ArtisanatsManuels : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_ArtisanatsManuels";

    explicit frm_ArtisanatsManuels(Application& App);

    void Load() override;
    void Activate() override;
    bool HasChoice() const override { return cbo_Degré.Text != ""; }
    void WayBack() override;

    // Trade, menu, choice
    Image NAMED(img_Bannière);
    Shape NAMED(shp_Artisanat);
    PictureBox NAMED(pct_Artisanat);
    Label NAMED(lbl_Artisanat);
    SideMenu NAMED(Bar_Menus);
    Shape NAMED(shp_Choix);
    Label NAMED(lbl11);
    Label NAMED(lbl14);
    Label NAMED(lbl15);
    Label NAMED(lbl16);
    ComboBox NAMED(cbo_Produit);
    ComboBox NAMED(cbo_ProduitDétaillé);
    ComboBox NAMED(cbo_Objet);
    Label NAMED(lbl_Degré);
    ComboBox NAMED(cbo_Degré);
    Label NAMED(lbl_TypeDégats);
    ComboBox NAMED(cbo_TypeDégats);

    // Level and object
    Shape NAMED(shp_Niveau);
    Label NAMED(lbl12);
    Label NAMED(lbl_Niveau);
    Image NAMED(img_Niveau);
    Shape NAMED(shp_Objet);
    Label NAMED(lbl31);
    Label NAMED(lbl32);
    TextBox NAMED(txt_Niveau);
    Label NAMED(lbl_AF);
    TextBox NAMED(txt_AF);
    Label NAMED(lbl_Dps);
    TextBox NAMED(txt_Dps);
    Label NAMED(lbl_Vit);
    TextBox NAMED(txt_Vit);
    Label NAMED(lbl_BonusSpécial);
    TextBox NAMED(txt_BonusSpécial);
    Image NAMED(img_Icône);
    Image NAMED(img_Objet);

    // Materials
    Shape NAMED(shp_Matériaux);
    Label NAMED(lbl21);
    Nomenclature Matériaux{*this,
                           {"txt_Matériaux", "lbl_MatX", "txt_MatériauxQté", "lbl_Mat",
                            "txt_PrixMat", "txt_PrixMatUnitaire", "txt_MatériauxBruts"},
                           6};
    Label NAMED(lbl23);
    TextBox NAMED(txt_PrixCoûtant);
    Label NAMED(lbl22);
    TextBox NAMED(txt_PrixRevente);

    // Sale
    Shape NAMED(shp_InfosVente);
    Label NAMED(lbl_InfosVente);
    Label NAMED(lbl411);
    TextBox NAMED(txt_NbObjet);
    Label NAMED(lbl44);
    TextBox NAMED(txt_NbEssais);
    Label NAMED(lbl48);
    TextBox NAMED(txt_PrixCoûtantTotal);
    Label NAMED(lbl42);
    TextBox NAMED(txt_PrixVente);

    // Extra object
    Shape NAMED(shp_ObjetSup);
    Label NAMED(lbl_ObjetSup);
    TextBox NAMED(txt_ObjetSup);
    Label NAMED(lbl_NbObjetSup);
    TextBox NAMED(txt_NbObjetSup);
    Label NAMED(lbl_ObjetSupNiveau);
    Label NAMED(lbl_ObjetSupNiveauCraft);
    Image NAMED(img_ObjetSupNiveau);
    Image NAMED(img_ObjetSup);
    Label NAMED(lbl_ObjetSUpPrixCoûtant);
    TextBox NAMED(txt_ObjetSUpPrixCoûtant);
    Nomenclature MatériauxSup{*this, NomsObjetSup, 4};

    // Hidden holders: working values that are never shown
    TextBox NAMED(txt_Sup);
    TextBox NAMED(txt_Image);
    TextBox NAMED(txt_Icône);
    TextBox NAMED(txt_IconeObjetSup);
    TextBox NAMED(txt_ObjetSupBis);

    Button NAMED(cmd_AjouterPanier);
    Button NAMED(cmd_Retour);

  private:
    // Definition
    void Définir();
    void DéfinirChoix();
    void DéfinirObjet();
    void DéfinirMatériaux();
    void DéfinirVente();
    void DéfinirObjetSup();
    void Relier(); // handlers to their controls

    // Selection
    void Bar_Menus_ItemClick(const SideMenu::Item& Entrée);
    void PrendreArtisanat(const std::string& Nom);
    void EffacerSélection(std::int16_t Palier);
    void EffacerPrix();
    void EffacerInfosObjet();
    void RemplirProduits();
    void cbo_Produit_Click();
    void cbo_ProduitDétaillé_Click();
    void cbo_Objet_Click();
    void LireObjet();
    void PréparerTypeDégats();
    void txt_Sup_Change();

    // Degree
    void cbo_Degré_Click();
    void LireDegré();
    void LireNiveaux(const Recordset& Objet);
    void LireStatistiques(const Recordset& Objet);
    static void txt_MatériauxBruts_Change(LigneMatériau& Ligne);
    void MontrerStatistique(TextBox& Valeur, Label& Titre);

    // Costing
    void CalculerPrixVente();
    bool CalculerVente();
    void ActualiserVerrouPrix(LigneMatériau& Ligne);

    // Extra object
    void cbo_TypeDégats_Click();
    void LireObjetSup();
    void CalculerPrixObjetSup();
    void txt_ObjetSup_Change();
    void MontrerObjetSup(bool Montré); // the whole panel
    void txt_MatSup_Change(LigneMatériau& Ligne);

    void cmd_AjouterPanier_Click();
    Achats Achetés();

    std::int16_t NiveauCraft = 0;    // the crafter's level in the trade in hand
    std::int16_t NiveauAlchimie = 0; // and in alchemy
    std::int16_t Marge = 0;          // percent, on the objects
    std::int16_t MargeEssais = 0;    // percent, on the extra trials
    std::string ColonneDegré;     // column of Degrés_ListeTypes that spells the product's degrees
    std::int16_t NuméroDegré = 0; // of the degree chosen last
    bool ObjetLu = true;          // not when the pick of the object in hand was given up
};

} // namespace orvane
