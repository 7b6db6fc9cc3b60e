#pragma once

#include "app/feuille.h"
#include "store/store.h"

#include <functional>
#include <string>
#include <vector>

namespace orvane {

// The home screen: the realm's shields and six buttons. Its load event is the start of the run.
class frm_Accueil : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_Accueil";

    explicit frm_Accueil(Application& App);

    void Load() override;

    // Closing by the frame is quitting.
    void WayBack() override { cmd_Quitter_Click(); }
    bool LeadsBack() const override { return false; }

    // Copies the rows of ConfigRoyaume for the current realm into the boxes of frm_Configuration.
    void PréparerFichiersDuJoueur();
    bool ChargerConfigRoyaume(const std::string& Royaume); // whether nothing was missing

    Shape NAMED(shp_Royaumes);
    Shape NAMED(shp_Ateliers);
    Label NAMED(lbl_Titre);
    Label NAMED(lbl_SousTitre);
    Label NAMED(lbl_Royaumes);
    Image NAMED(img_Valdren);
    Image NAMED(img_Corvane);
    Image NAMED(img_Brenmoor);
    Label NAMED(lbl_Valdren);
    Label NAMED(lbl_Corvane);
    Label NAMED(lbl_Brenmoor);
    Button NAMED(cmd_ArtisanatsManuels);
    Button NAMED(cmd_ArtisanatsMagiques);
    Button NAMED(cmd_ArtisanatsSecondaires);
    Button NAMED(cmd_Configuration);
    Button NAMED(cmd_News);
    Button NAMED(cmd_Quitter);
    TextBox NAMED(txt_Skin); // hidden: writing either one sets off a change of look
    TextBox NAMED(txt_Résolution);

  private:
    // A realm and the shield that stands for it.
    struct Écu
    {
        std::string Royaume;
        Image* Bouclier;
    };

    void Définir();
    std::vector<Écu> Écus();
    void MontrerÉcu(const Écu& Which, bool Choisi);

    void txt_Skin_Change();
    void txt_Résolution_Change();
    void Habiller(const std::function<void()>& Faire); // a lock is told later

    void RestaurerRoyaume();

    // What is wrong with a name, as a sentence; empty when nothing is.
    using Examen = std::function<std::string(const std::string& Nom)>;

    // Fills the list from Liste and writes the last choice, the row of Dernier, to its text. One
    // with a fault gives way to the first of the list that has none, which is told later; nothing
    // when there is none.
    std::string RestaurerChoix(const std::string& Liste, const std::string& Dernier, ComboBox& Box,
                               const Examen& FauteDe);

    void ChoisirRoyaume(const std::string& Royaume);
    void OuvrirArtisanat(const std::string& Feuille, const std::vector<std::string>& AvecIcône);
    void cmd_Configuration_Click();
    void cmd_News_Click();
    void cmd_Quitter_Click();
    void EnregistrerRoyaume();
};

} // namespace orvane
