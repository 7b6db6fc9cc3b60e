#pragma once

#include "app/feuille.h"

#include <string>

namespace orvane {

// The boxes of one craft: level, first margin, second margin; nothing where the craft has none.
struct RéglagesArtisanat
{
    TextBox* Niveau = nullptr;
    TextBox* Marge = nullptr;
    TextBox* Essai = nullptr;
};

// The crafter's settings for the current realm, and the skin and resolution. Its boxes are the live
// store of the settings: every craft screen reads them directly. It also keeps the three image
// lists.
class frm_Configuration : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_Configuration";

    explicit frm_Configuration(Application& App);

    // The boxes that bear a craft's name.
    RéglagesArtisanat Réglages(std::string_view Métier) const;

    // The large picture of a craft.
    const orvane::Picture& ImageMétier(std::string_view Métier) const;

    // "Num, CraftCorvane, Marges1Corvane, Marges2Corvane".
    static std::string ColonnesPour(const std::string& Royaume);

    // Hides the screen, storing nothing: the boxes keep what was typed.
    void WayBack() override { Hide(); }

    ImageList imglst_CouleurCraft; // seven bands of difficulty, 24 by 24
    ImageList imglst_CraftPetit;   // ten crafts and the basket, 16 by 16
    ImageList imglst_CraftGrand;   // the same, 32 by 32

    Shape NAMED(Shape1);
    Shape NAMED(Shape2);
    Shape NAMED(Shape3);
    Shape NAMED(Shape4);
    Shape NAMED(Shape5);
    Shape NAMED(Shape6);
    Shape NAMED(Shape7);
    Shape NAMED(Shape8);
    Image NAMED(img_Bannière);
    Family<Label, 10> LabelMétier{*this, "Label"}; // Label1 to Label10: the crafts
    Label NAMED(Label11);
    Label NAMED(Label12);
    Label NAMED(Label13);
    Label NAMED(Label14);
    Label NAMED(Label15);
    Label NAMED(Label16);
    Label NAMED(Label17);
    Label NAMED(Label18);
    Label NAMED(Label19);
    Label NAMED(Label20);
    Label NAMED(Label21);
    Label NAMED(Label22);
    Label NAMED(Label23);
    Label NAMED(Label24);
    Label NAMED(Label25);
    Label NAMED(Label27);

    TextBox NAMED(txt_NiveauArmurerie);
    TextBox NAMED(txt_MargeArmurerie);
    TextBox NAMED(txt_EssaiArmurerie);
    TextBox NAMED(txt_NiveauCouture);
    TextBox NAMED(txt_MargeCouture);
    TextBox NAMED(txt_EssaiCouture);
    TextBox NAMED(txt_NiveauEmpennage);
    TextBox NAMED(txt_MargeEmpennage);
    TextBox NAMED(txt_EssaiEmpennage);
    TextBox NAMED(txt_NiveauForge);
    TextBox NAMED(txt_MargeForge);
    TextBox NAMED(txt_EssaiForge);
    TextBox NAMED(txt_NiveauAlchimie);
    TextBox NAMED(txt_MargeAlchimie);
    TextBox NAMED(txt_NiveauArcanes);
    TextBox NAMED(txt_MargeArcanes);
    TextBox NAMED(txt_EssaiArcanes);
    TextBox NAMED(txt_NiveauMaroquinerie);
    TextBox NAMED(txt_MargeMaroquinerie);
    TextBox NAMED(txt_NiveauMenuiserie);
    TextBox NAMED(txt_NiveauMétallurgie);
    TextBox NAMED(txt_MargeMétallurgie);
    TextBox NAMED(txt_NiveauTissage);
    TextBox NAMED(txt_MargeTissage);
    TextBox NAMED(txt_MargeLégendaires);
    TextBox NAMED(txt_EssaiLégendaires);

    ComboBox NAMED(cbo_Skin);
    ComboBox NAMED(cbo_Résolution);
    Button NAMED(cmd_Validation);
    Button NAMED(cmd_Couleur); // developer's tools, hidden
    Button NAMED(cmd_Récup);
    PictureBox NAMED(pct_Logo); // handed to the side menus

  private:
    void Définir();
    void DéfinirRéglages();
    void cmd_Validation_Click();
    void cmd_Couleur_Click();

    // Every box, and what the disk holds of the skin and the resolution, before anything is
    // written; tells what is wrong and says whether all is right.
    bool ToutEstValable();
    void EnregistrerRéglages();

    // The home screen's hidden box that holds the skin or the resolution in force.
    TextBox& EnVigueur(const char* Case);

    // Stores the list's text as the one row of Table, and hands it to the home screen's hidden box.
    void EnregistrerChoix(const std::string& Table, ComboBox& Liste, const char* Case);

    std::string ColonnesRoyaume;
};

// A setting into the reader's variable; a text that is no 16-bit whole number leaves the variable
// as it was.
void LireRéglage(const TextBox* Réglage, std::int16_t& Variable);

} // namespace orvane
