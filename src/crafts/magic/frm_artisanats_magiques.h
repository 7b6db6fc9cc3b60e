#pragma once

#include "app/feuille.h"
#include "basket/order_lines.h"
#include "crafts/common/alchemy_object.h"
#include "crafts/common/nomenclature.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// Two crafts on one screen: alchemy, a walk down three lists to one object, and arcane gems, named
// either by the gem or by the bonus that it gives. The menu flips between them by showing one group
// of controls and hiding the other; both share the material table, the extra object and the level.
// The caption of lbl_Artisanat says which craft is in hand. The text of a control is the value.
class frm_ArtisanatsMagiques : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_ArtisanatsMagiques";

    explicit frm_ArtisanatsMagiques(Application& App);

    void Load() override;
    void Activate() override;
    bool HasChoice() const override;
    void WayBack() override;

    // Shared by both crafts
    Image NAMED(img_Bannière);
    Shape NAMED(shp_Artisanat);
    PictureBox NAMED(pct_Artisanat);
    Label NAMED(lbl_Artisanat);
    SideMenu NAMED(Bar_Menus);

    // Alchemy: choice and characteristics
    Shape NAMED(Shp_AlchimieChoix);
    Label NAMED(lbl_AlchimieChoix);
    Label NAMED(lbl_Produit);
    ComboBox NAMED(cbo_Produit);
    Label NAMED(lbl_ProduitDétaillé);
    ComboBox NAMED(cbo_ProduitDétaillé);
    Label NAMED(lbl_Type);
    ComboBox NAMED(cbo_Type);
    Label NAMED(lbl_Objet);
    ComboBox NAMED(cbo_Objet);
    Shape NAMED(shp_AlchimieObjet);
    Label NAMED(lbl_Caractéristiques);
    Label NAMED(lbl_NiveauObjet);
    TextBox NAMED(txt_NiveauObjet);
    Label NAMED(lbl_ChargesObjet);
    TextBox NAMED(txt_ChargesObjet);
    Label NAMED(lbl_EffetObjet);
    TextBox NAMED(txt_EffetObjet);
    Label NAMED(lbl_DuréeObjet);
    TextBox NAMED(txt_DuréeObjet);
    Label NAMED(lbl_valeurObjet);
    TextBox NAMED(txt_ValeurObjet);
    Label NAMED(lbl_RésistObjet);
    TextBox NAMED(txt_RésistObjet);

    // Gems: choice from both sides
    Shape NAMED(shp_ArcanesChoix);
    Label NAMED(lbl_ArcanesGemmes);
    Label NAMED(lbl_ArcanesBonus);
    Label NAMED(lbl_ArcanesType);
    ComboBox NAMED(cbo_TypeGemmes);
    ComboBox NAMED(cbo_TypeBonus);
    Label NAMED(lbl_ArcanesSousType);
    ComboBox NAMED(cbo_SousTypeGemmes);
    ComboBox NAMED(cbo_SousTypeBonus);
    Label NAMED(lbl_ArcanesDegré);
    ComboBox NAMED(cbo_DegréGemmes);
    ComboBox NAMED(cbo_DegréBonus);

    // Shared: materials, level
    Shape NAMED(shp_AlchimieMatériaux);
    Label NAMED(lbl_AlchimieMatériaux);
    Nomenclature Ingrédients{*this,
                             {"txt_Ingdt",
                              "lbl_IngdtX",
                              "txt_IngdtQté",
                              "lbl_Ingdt",
                              "txt_PrixIngdt",
                              "txt_PrixIngdtUnitaire",
                              {}},
                             6};
    Shape NAMED(shp_AlchimieArtisanat);
    Label NAMED(lbl_ArtisanatObjet);
    Label NAMED(lbl_NiveauCraftAlchimie);
    Label NAMED(lbl_NiveauAlchimie); // the level of the object in hand, in both crafts
    Image NAMED(img_NiveauAlchimie);
    Image NAMED(img_NiveauArcanes); // never drawn in
    PictureBox NAMED(pct_IconeAlchimie);
    PictureBox NAMED(pct_IconeArcanes);

    // Shared: the object that another one needs
    Shape NAMED(shp_AlchimieObjetSup);
    Label NAMED(lbl_AlchimieObjetSup);
    TextBox NAMED(txt_AlchimieObjetSup);
    Image NAMED(img_AlchimieObjetSup);
    Label NAMED(lbl_NbAlchimieObjetSup);
    TextBox NAMED(txt_NbAlchimieObjetSup);
    Label NAMED(lbl_AlchimieObjetSupNiveau);
    Label NAMED(lbl_AlchimieObjetSupNiveauCraft);
    Image NAMED(img_AlchimieObjetSupNiveau);
    Nomenclature MatériauxSup{*this, NomsObjetSup, 4};
    Label NAMED(lbl_AlchimieObjetSUpPrixCoûtant);
    TextBox NAMED(txt_AlchimieObjetSUpPrixCoûtant);

    // Alchemy: prices
    Shape NAMED(shp_AlchimiePrix);
    Label NAMED(lbl_PrixAlchimie);
    Label NAMED(lbl_AlchimieNbObjet);
    TextBox NAMED(txt_NbObjetAlchimie);
    Label NAMED(lbl_AlchimiePrixCoûtant);
    TextBox NAMED(txt_PrixCoûtantAlchimie);
    Label NAMED(lbl_AlchimiePrixrevente);
    TextBox NAMED(txt_PrixReventeAlchimie);
    Label NAMED(lbl_AlchimiePrixvente);
    TextBox NAMED(txt_PrixVenteAlchimie);

    // Gems: prices of one gem, with trials, of several gems, and of all together
    Shape NAMED(shp_ArcanesPrix);
    Label NAMED(lbl_ArcanesInfos);
    Label NAMED(lbl_ArcanesQualité);
    Label NAMED(lbl_ArcanesQuantité);
    Label NAMED(lbl_ArcanesToutInclus);
    Label NAMED(lbl_ArcanesPrixCoûtant);
    TextBox NAMED(txt_ArcanesPrixCoûtant);
    Label NAMED(lbl_ArcanesPrixRevente);
    TextBox NAMED(txt_ArcanesPrixRevente);
    Label NAMED(lbl_ArcanesPrixVente);
    TextBox NAMED(txt_ArcanesPrixVente);
    Label NAMED(lbl_ArcanesNbEssais);
    TextBox NAMED(txt_ArcanesNbEssais);
    Label NAMED(lbl_ArcanesPrixCoûtantQualité);
    TextBox NAMED(txt_ArcanesPrixCoûtantQualité);
    Label NAMED(lbl_ArcanesPrixVenteQualité);
    TextBox NAMED(txt_ArcanesPrixVenteQualité);
    Label NAMED(lbl_ArcanesNbObjet);
    TextBox NAMED(txt_ArcanesNbObjet);
    Label NAMED(lbl_ArcanesPrixCoûtantQuantité);
    TextBox NAMED(txt_ArcanesPrixCoûtantQuantité);
    Label NAMED(lbl_ArcanesPrixVenteQuantité);
    TextBox NAMED(txt_ArcanesPrixVenteQuantité);
    Label NAMED(lbl_ArcanesPrixCoûtantTotal);
    TextBox NAMED(txt_ArcanesPrixCoûtantTotal);
    Label NAMED(lbl_ArcanesPrixVenteTotal);
    TextBox NAMED(txt_ArcanesPrixVenteTotal);

    // Hidden holders: working values that are never shown
    TextBox NAMED(txt_IcôneAlchimie);
    TextBox NAMED(txt_IcôneArcanes);
    TextBox NAMED(txt_AlchimieIconeObjetSup);
    TextBox NAMED(txt_Degré);           // number of the bonus type's degree column
    TextBox NAMED(txt_ArcanesCoefQté2); // by how much a gem's second line grows with the degree

    Button NAMED(cmd_AjouterPanier);
    Button NAMED(cmd_Retour);

  private:
    // Definition
    void Définir();
    void DéfinirChoixAlchimie();
    void DéfinirCaractéristiques();
    void DéfinirChoixArcanes();
    void DéfinirMatériaux();
    void DéfinirObjetSup();
    void DéfinirPrixAlchimie();
    void DéfinirPrixArcanes();
    void Relier(); // handlers to their controls
    void RelierLignes();

    // Menu and the two groups of controls
    void Bar_Menus_ItemClick(const SideMenu::Item& Entrée);
    void PrendreAlchimie();
    void PrendreArcanes();
    void PrendreMétier(const char* Nom);
    void AfficherAlchimie(bool Visible);
    void AfficherArcanes(bool Visible);
    void RemplirProduits();
    void RemplirGemmes();

    // Clearing
    void EffacerSélection(std::int16_t Palier);
    void EffacerSélectionGemmes(std::int16_t Palier);
    void EffacerMatériaux();

    // Alchemy selection
    void cbo_Produit_Click();
    void cbo_ProduitDétaillé_Click();
    void cbo_Type_Click();
    void cbo_Objet_Click();
    void LireObjet();
    void LireCaractéristiques(const Recordset& Objet);

    // Gem selection. RemplirTexte writes a column of the first row of a query; needs the realm
    // database open.
    template <class BoxType>
    void RemplirTexte(const std::string& Requête, BoxType& Où, const std::string& Colonne);
    void RemplirSousTypesGemmes();
    void RemplirSousTypesBonus();
    void LireDegréBonus();
    std::string ColonneDegré() const;
    void cbo_TypeGemmes_Click();
    void cbo_TypeBonus_Click();
    void PréparerDegrés();
    void cbo_SousTypeGemmes_Click();
    void cbo_SousTypeBonus_Click();
    void LireIcône();
    void cbo_DegréGemmes_Click();
    void cbo_DegréBonus_Click();

    // Loading a gem
    bool PremierDegréSeul() const;
    bool ASixLignes() const;
    void ChargerGemme();
    void ChargerLignesSup(const Recordset& Gemme, std::int16_t NuméroDegré);
    void ChargerBase(std::int16_t NuméroDegré);
    void ChargerGemmeSup();

    // Lines of both crafts
    void txt_PrixIngdtUnitaire_Change(LigneMatériau& Ligne);
    void txt_PrixMatSuptUnitaire_Change(LigneMatériau& Ligne);
    void PoserVerrou(LigneMatériau& Ligne, const TextBox& Rempli);
    void txt_MatSup_Change(LigneMatériau& Ligne);
    void txt_AlchimieObjetSup_Change();
    void MontrerCaractéristique(TextBox& Valeur, Label& Titre);

    // Costing
    void CalculerPrix(); // of the craft in hand
    void CalculerPrixAlchimie();
    void CalculerPrixArcanes();
    Montant CoûtObjetSup();

    // A pick of either craft: the reading, then the sum. One that is given up leaves both crafts
    // without good prices, as they share the bills.
    void LireChoix(const std::function<void()>& Lire, void (frm_ArtisanatsMagiques::*Calculer)());

    // Basket
    void cmd_AjouterPanier_Click();
    std::int64_t LotsDeGemmes();
    Achats Achetés(std::int64_t Lots);

    std::int16_t NiveauAlchimie = 0; // the crafter's levels
    std::int16_t NiveauArcanes = 0;
    std::int16_t MargeAlchimie = 0; // percent, on alchemy objects
    std::int16_t MargeArcanes = 0;  // percent, on gems
    std::int16_t MargeEssais = 0;   // percent, on the loss of each trial
};

} // namespace orvane
