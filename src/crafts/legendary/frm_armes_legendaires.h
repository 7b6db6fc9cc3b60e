#pragma once

#include "app/feuille.h"
#include "crafts/common/material_line.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

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
    Shape NAMED(shp_Arme);
    Image NAMED(img_IcôneArme);
    Label NAMED(lbl_TitreArme);
    Label NAMED(lbl_TitreNiveauArme);
    Label NAMED(lbl_NiveauArme);
    Image NAMED(img_NiveauArme);
    Family<TextBox, 3> NAMED(txt_MatArme);
    Family<Label, 3> NAMED(lbl_ArmeX);
    Family<TextBox, 3> txt_QtéArmeN{*this, "txt_QtéArme"};
    Family<Label, 3> NAMED(lbl_Arme);
    Family<TextBox, 3> txt_PrixArmeN{*this, "txt_PrixArme"};
    Label NAMED(lbl_PrixCoûtantArme);
    TextBox NAMED(txt_PrixCoûtantArme);

    Shape NAMED(shp_Gemme);
    Image NAMED(img_IcôneGemme);
    Label NAMED(lbl_TitreGemme);
    Label NAMED(lbl_TitreNiveauGemme);
    Label NAMED(lbl_NiveauGemme);
    Image NAMED(img_NiveauGemme);
    Family<TextBox, 3> NAMED(txt_MatGemme);
    Family<Label, 3> NAMED(lbl_GemmeX);
    Family<TextBox, 3> txt_QtéGemmeN{*this, "txt_QtéGemme"};
    Family<Label, 3> NAMED(lbl_Gemme);
    Family<TextBox, 3> txt_PrixGemmeN{*this, "txt_PrixGemme"};
    Label NAMED(lbl_PrixCoûtantGemme);
    TextBox NAMED(txt_PrixCoûtantGemme);

    Shape NAMED(shp_Teinture);
    Image NAMED(img_IcôneTeinture);
    Label NAMED(lbl_TitreTeinture);
    Label NAMED(lbl_TitreNiveauTeinture);
    Label NAMED(lbl_NiveauTeinture);
    Image NAMED(img_NiveauTeinture);
    Family<TextBox, 3> NAMED(txt_MatTeinture);
    Family<Label, 3> NAMED(lbl_TeintureX);
    Family<TextBox, 3> txt_QtéTeintureN{*this, "txt_QtéTeinture"};
    Family<Label, 3> NAMED(lbl_Teinture);
    Family<TextBox, 3> txt_PrixTeintureN{*this, "txt_PrixTeinture"};
    Label NAMED(lbl_PrixCoûtantTeinture);
    TextBox NAMED(txt_PrixCoûtantTeinture);

    // Hidden holders
    Family<TextBox, 3> NAMED(txt_PrixMatUnitaireArme);
    Family<TextBox, 3> NAMED(txt_PrixMatUnitaireGemme);
    Family<TextBox, 3> NAMED(txt_PrixMatUnitaireTeinture);
    TextBox NAMED(txt_PrixUnitaireMatériau);
    TextBox NAMED(txt_ObjetNum); // keys of the rows of the three components
    TextBox NAMED(txt_GemmeNum);
    TextBox NAMED(txt_TeintureNum);
    TextBox NAMED(txt_Image); // files of the pictures
    TextBox NAMED(txt_Icône);
    TextBox NAMED(txt_IcôneArme);
    TextBox NAMED(txt_IcôneGemme);
    TextBox NAMED(txt_IcôneTeinture);

    Button NAMED(cmd_AjouterPanier);
    Button NAMED(cmd_Panier);
    Label NAMED(lbl_Panier);
    Button NAMED(cmd_Retour);

  private:
    // A component with a bill of its own.
    struct Bloc
    {
        Shape& Cadre;
        Label& Titre;
        Image& Icône;
        Label& TitreNiveau;
        Label& Niveau;
        Image& Indicateur;
        Family<TextBox, 3>& Noms;
        Family<Label, 3>& Fois;
        Family<TextBox, 3>& Quantités;
        Family<Label, 3>& Égale;
        Family<TextBox, 3>& PrixUnitaires;
        Family<TextBox, 3>& Prix;
        Label& TitrePrixCoûtant;
        TextBox& PrixCoûtant;
    };
    Bloc BlocArme();
    Bloc BlocGemme();
    Bloc BlocTeinture();
    static LigneMatériau Ligne(const Bloc& Composant, int i);

    // Definition
    void Définir();
    void DéfinirChoix();
    void DéfinirInfos();
    void DéfinirComposants();
    void DéfinirVente();
    static void DéfinirBloc(const Bloc& Composant, const char* Titre, int X);
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
    void ChercherMatériauArme(TextBox& txt_Nom, TextBox& txt_Prix);
    void ChargerTeinture();
    void ChargerImages();

    // Costing
    void RemettreQuantités();
    static void CalculerBloc(const Bloc& Composant);
    void CalculerComposants();
    void CalculerPrixMatériau();
    void CalculerPrixCoûtant();
    void CalculerTotaux();

    // The prices that every pick renews, and those that only this one does.
    std::vector<TextBox*> PrixDuChoix(std::vector<TextBox*> Siens = {});

    void cmd_AjouterPanier_Click();

    std::string CheminArtisanat;  // realm database of this activation
    std::string CheminTeintures;  // alchemy database
    std::int16_t NiveauCraft = 0; // the crafter's level in the trade
    std::int16_t NiveauArcanes = 0;
    std::int16_t NiveauAlchimie = 0;
    std::int16_t Marge = 0;       // percent, on the objects
    std::int16_t MargeEssais = 0; // percent, on the extra trials
};

} // namespace orvane
