#pragma once

#include "crafts/secondary/frm_artisanats_secondaires.h"
#include "support/petit_dossier.h"
#include "support/secondaires.h"

namespace orvane {

// The secondary crafts open. Margins: Maroquinerie 67, Métallurgie 69, Tissage 70.
class Secondaire : public PetitDossier
{
  protected:
    void SetUp() override
    {
        Modifier("Artisanat_Valdren.mdb", RangéesSecondaires);
        Lancer();
        Door.Click(Accueil().cmd_Configuration); // stays open below
        Ouvrir();
    }

    frm_ArtisanatsSecondaires& Écran() { return App.Feuilles.Get<frm_ArtisanatsSecondaires>(); }

    void Ouvrir() { Door.Click(Accueil().cmd_ArtisanatsSecondaires); }
    void Menu(const std::string& Clé) { Door.ClickItem(Écran().Bar_Menus, Clé); }

    void Prendre(ComboBox& Liste, const std::string& Entrée)
    {
        Door.Pick(Liste, Entrée);
        ASSERT_EQ(Liste.Text(), Entrée);
    }

    void Objet(const std::string& Nom) { Prendre(Écran().cbo_ObjetSecondaire, Nom); }
    void Degré(const std::string& Nom) { Prendre(Écran().cbo_Degré, Nom); } // or the filter

    std::string Objets() { return Jointes(Écran().cbo_ObjetSecondaire.Items()); }
    std::string Degrés() { return Jointes(Écran().cbo_Degré.Items()); }

    // "name x quantity = price" of each row, "-" for a hidden one.
    std::string Rangées()
    {
        std::vector<std::string> Textes;
        for (int i = 1; i <= 4; ++i) {
            const bool Montrée = Écran().txt_Matériaux[i].Visible;
            for (const Control* Each :
                 std::initializer_list<Control*>{&Écran().lbl_MatX[i], &Écran().txt_MatériauxQté[i],
                                                 &Écran().lbl_Mat[i], &Écran().txt_PrixMat[i]})
                EXPECT_EQ(Each->Visible(), Montrée) << Each->Name();
            Textes.push_back(Montrée ? Écran().txt_Matériaux[i].Text() + " x " +
                                           Écran().txt_MatériauxQté[i].Text() + " = " +
                                           Écran().txt_PrixMat[i].Text()
                                     : "-");
        }
        return Jointes(Textes);
    }

    // Cost of one object, cost and sale price of all, "?" behind them when they are stale.
    std::string Vente()
    {
        EXPECT_EQ(Écran().txt_SelleriePrixCoûtant.Stale(), Écran().txt_SelleriePrixVente.Stale());
        return Jointes({Écran().txt_PrixCoûtant.Text(), Écran().txt_SelleriePrixCoûtant.Text(),
                        Écran().txt_SelleriePrixVente.Text()}) +
               (Écran().txt_SelleriePrixVente.Stale ? " ?" : "");
    }

    // Cost and resale of one object, gain, likewise.
    std::string Gain()
    {
        return Jointes({Écran().txt_PrixCoûtant.Text(), Écran().txt_PrixRevente.Text(),
                        Écran().txt_Gain.Text()}) +
               (Écran().txt_Gain.Stale ? " ?" : "");
    }

    // Level and the band of its indicator, "-" for none.
    std::string Niveau()
    {
        const Picture& Vue = Écran().img_Niveau.Picture();
        return Écran().lbl_Niveau.Caption() + " " +
               (Vue.IsEmpty() ? '-' : Vue.File.stem().string().back());
    }

    static constexpr auto Vides = " x 0 = 0 |  x 0 = 0 |  x 0 = 0 |  x 0 = 0";
};

} // namespace orvane
