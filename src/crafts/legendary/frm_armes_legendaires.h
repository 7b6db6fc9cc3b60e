#pragma once

#include "app/feuille.h"
#include "basket/order_lines.h"
#include "crafts/common/nomenclature.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

// One of the three things that a legendary weapon is made of, with a bill of its own. Its name
// stands in the names of its controls: shp_Gemme, txt_MatGemme1...
struct Composant
{
    Composant(Screen& Owner, const std::string& Nom)
        : Cadre(Owner, "shp_" + Nom),
          Icône(Owner, "img_Icône" + Nom),
          Titre(Owner, "lbl_Titre" + Nom),
          TitreNiveau(Owner, "lbl_TitreNiveau" + Nom),
          Niveau(Owner, "lbl_Niveau" + Nom),
          Indicateur(Owner, "img_Niveau" + Nom),
          Matériaux(Owner,
                    {"txt_Mat" + Nom,
                     "lbl_" + Nom + "X",
                     "txt_Qté" + Nom,
                     "lbl_" + Nom,
                     "txt_Prix" + Nom,
                     "txt_PrixMatUnitaire" + Nom,
                     {}},
                    3),
          TitrePrixCoûtant(Owner, "lbl_PrixCoûtant" + Nom),
          PrixCoûtant(Owner, "txt_PrixCoûtant" + Nom),
          FichierIcône(Owner, "txt_Icône" + Nom)
    {
    }

    Shape Cadre;
    Image Icône;
    Label Titre;
    Label TitreNiveau;
    Label Niveau;
    Image Indicateur;
    Nomenclature Matériaux;
    Label TitrePrixCoûtant;
    TextBox PrixCoûtant;
    TextBox FichierIcône; // hidden
};

// A legendary weapon is assembled from the products of other crafts: a weapon, a gem, a dye, a
// material and a special object. The weapon fixes three of them, the type the two others; either
// may be chosen first. Weapon, gem and dye show their own bills of three materials. The trade is
// the one in hand on frm_ArtisanatsManuels, from where the screen is opened. Each activation begins
// afresh; the text of a control is the value.
//
// Where a box of the final bill and a family of a block share a stem, the family's member ends in
// N: txt_PrixArme is the box, txt_PrixArmeN[1] is "txt_PrixArme1".
class frm_ArmesLégendaires : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_ArmesLégendaires";

    explicit frm_ArmesLégendaires(Application& App);

    void Load() override;
    void Activate() override;
    bool HasChoice() const override { return cbo_Arme.Text != "" && cbo_Type.Text != ""; }

    // Choice and trade
    Shape NAMED(shp_Choix);
    Label NAMED(lbl_Choix);
    PictureBox NAMED(pct_Craft);
    Label NAMED(lbl_ChoixArme);
    ComboBox NAMED(cbo_Arme);
    Label NAMED(lbl_ChoixType);
    ComboBox NAMED(cbo_Type);

    // Weapon facts and pictures
    Shape NAMED(shp_Infos);
    Label NAMED(lbl_TitreNiveau);
    Label NAMED(lbl_Niveau);
    Image NAMED(img_Niveau);
    Image NAMED(img_Icône);
    Label NAMED(lbl_NiveauObjet);
    TextBox NAMED(txt_Niveau);
    Label NAMED(lbl_Dps);
    TextBox NAMED(txt_Dps);
    Label NAMED(lbl_Vit);
    TextBox NAMED(txt_Vit);
    Label NAMED(lbl_Dégâts);
    TextBox NAMED(txt_Dégâts);
    Label NAMED(lbl_PrixRevente);
    TextBox NAMED(txt_PrixRevente);
    Shape NAMED(shp_Image);
    Image NAMED(img_Objet);

    // Final bill
    Shape NAMED(shp_Composants);
    Label NAMED(lbl_Composants);
    Family<Label, 5> NAMED(lbl_Composant);
    Family<Label, 5> NAMED(lbl_ComposantX);
    Family<Label, 5> NAMED(lbl_ComposantÉgale);
    TextBox NAMED(txt_Arme);
    TextBox NAMED(txt_QtéArme);
    TextBox NAMED(txt_PrixArme);
    TextBox NAMED(txt_Gemme);
    TextBox NAMED(txt_QtéGemme);
    TextBox NAMED(txt_PrixGemme);
    TextBox NAMED(txt_Teinture);
    TextBox NAMED(txt_QtéTeinture);
    TextBox NAMED(txt_PrixTeinture);
    TextBox NAMED(txt_Matériau);
    TextBox NAMED(txt_QtéMatériau);
    TextBox NAMED(txt_PrixMatériau);
    TextBox NAMED(txt_Spécial);
    TextBox NAMED(txt_QtéSpécial);
    TextBox NAMED(txt_PrixSpécial);
    Label NAMED(lbl_PrixCoûtant);
    TextBox NAMED(txt_PrixCoûtant);

    // Sale
    Shape NAMED(shp_Vente);
    Label NAMED(lbl_Vente);
    Label NAMED(lbl_NbObjet);
    TextBox NAMED(txt_NbObjet);
    Label NAMED(lbl_NbEssais);
    TextBox NAMED(txt_NbEssais);
    Label NAMED(lbl_PrixCoûtantTotal);
    TextBox NAMED(txt_PrixCoûtantTotal);
    Label NAMED(lbl_PrixVente);
    TextBox NAMED(txt_PrixVente);

    // The three blocks
    Label NAMED(lbl_Détails);
    Composant Arme{*this, "Arme"};
    Composant Gemme{*this, "Gemme"};
    Composant Teinture{*this, "Teinture"};

    // Hidden holders
    TextBox NAMED(txt_PrixUnitaireMatériau);
    TextBox NAMED(txt_ObjetNum); // keys of the rows of the three components
    TextBox NAMED(txt_GemmeNum);
    TextBox NAMED(txt_TeintureNum);
    TextBox NAMED(txt_Image); // files of the pictures
    TextBox NAMED(txt_Icône);

    Button NAMED(cmd_AjouterPanier);
    Button NAMED(cmd_Panier);
    Label NAMED(lbl_Panier);
    Button NAMED(cmd_Retour);

  private:
    // Definition
    void Définir();
    void DéfinirChoix();
    void DéfinirInfos();
    void DéfinirComposants();
    void DéfinirVente();
    static void DéfinirComposant(Composant& Lequel, const char* Titre, int X);
    void DéfinirCachés();
    void Relier(); // handlers to their controls

    // Activation
    void EffacerArme();
    void RemplirChoix(const std::string& Métier);
    void LireRéglages(const std::string& Métier);

    // Components
    void cbo_Arme_Click();
    void LireArme();
    void cbo_Type_Click();
    void LireType();
    void ChargerArmeEtGemme();
    void ChargerGemme();
    void ChercherMatériauArme(LigneMatériau& Ligne);
    void ChargerTeinture();
    void ChargerImages();

    // Costing
    void RemettreQuantités();
    static void CalculerComposant(Composant& Lequel);
    void CalculerComposants();
    void CalculerPrixMatériau();
    void CalculerPrixCoûtant();
    void CalculerTotaux();

    void cmd_AjouterPanier_Click();
    Achats Achetés();

    std::string CheminArtisanat;  // realm database of this activation
    std::string CheminTeintures;  // alchemy database
    std::int16_t NiveauCraft = 0; // the crafter's level in the trade
    std::int16_t NiveauArcanes = 0;
    std::int16_t NiveauAlchimie = 0;
    std::int16_t Marge = 0;       // percent, on the objects
    std::int16_t MargeEssais = 0; // percent, on the extra trials
};

} // namespace orvane
