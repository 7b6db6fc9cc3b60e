#pragma once

#include "crafts/legendary/frm_armes_legendaires.h"
#include "support/legendaires.h"
#include "support/petit_dossier.h"

namespace orvane {

// The legendary weapons within reach. Margins 10 and 20; Forge 400, Empennage 300.
class Légendaire : public PetitDossier
{
  protected:
    void SetUp() override
    {
        Modifier("Artisanat_Valdren.mdb", RangéesLégendaires);
        Modifier("Artisanat_Alchimie.mdb", RangéesTeintures);
        Modifier("Config.mdb", "UPDATE ConfigRoyaume SET Marges1Valdren = 10, Marges2Valdren = 20 "
                               "WHERE Num = 11");
        Lancer();
        OuvrirAtelier();
    }

    frm_ArmesLégendaires& Armes() { return App.Feuilles.Get<frm_ArmesLégendaires>(); }

    void Ouvrir(const std::string& Métier = "Forge") { Choisir(Métier + "/Armes légendaires"); }

    void Prendre(ComboBox& Liste, const std::string& Entrée)
    {
        Door.Pick(Liste, Entrée);
        ASSERT_EQ(Liste.Text(), Entrée);
    }

    void Arme(const std::string& Nom) { Prendre(Armes().cbo_Arme, Nom); }
    void Type(const std::string& Nom) { Prendre(Armes().cbo_Type, Nom); }

    void Compter(const std::string& Objets, const std::string& Essais)
    {
        Door.Type(Armes().txt_NbObjet, Objets);
        Door.Type(Armes().txt_NbEssais, Essais);
    }

    void Ajouter() { Door.Click(Armes().cmd_AjouterPanier); }

    std::string Texte(const std::string& Nom)
    {
        return dynamic_cast<TextBox&>(Armes().Find(Nom)).Text();
    }

    std::string Ligne(const std::string& Nom, const std::string& Suite)
    {
        return Texte("txt_" + Nom + Suite) + " x " + Texte("txt_Qté" + Suite) + " = " +
               Texte("txt_Prix" + Suite);
    }

    std::string Facture() // the final bill
    {
        return Jointes({Ligne("", "Arme"), Ligne("", "Gemme"), Ligne("", "Teinture"),
                        Ligne("", "Matériau"), Ligne("", "Spécial")});
    }

    // Of "Arme", "Gemme" or "Teinture": three lines, in parentheses when hidden, total and level.
    std::string Bloc(const std::string& Lequel)
    {
        std::string Textes;
        for (const std::string i : {"1", "2", "3"}) {
            const bool Montrée = Armes().Find("txt_Mat" + Lequel + i).Visible();
            for (const std::string& Nom : {"lbl_" + Lequel + "X" + i, "txt_Qté" + Lequel + i,
                                           "lbl_" + Lequel + i, "txt_Prix" + Lequel + i})
                EXPECT_EQ(Armes().Find(Nom).Visible(), Montrée) << Nom;
            const std::string LaLigne = Ligne("Mat", Lequel + i);
            Textes += (Montrée ? LaLigne : "(" + LaLigne + ")") + " | ";
        }
        return Textes + Texte("txt_PrixCoûtant" + Lequel) + " | " +
               dynamic_cast<Label&>(Armes().Find("lbl_Niveau" + Lequel)).Caption();
    }

    // Levels, Dps, speed, damage, resale.
    std::string Infos()
    {
        return Jointes({Armes().lbl_Niveau.Caption(), Texte("txt_Niveau"), Texte("txt_Dps"),
                        Texte("txt_Vit"), Texte("txt_Dégâts"), Texte("txt_PrixRevente")});
    }

    // Cost of one weapon, cost and sale price of all, "?" behind them when they are stale.
    std::string Prix()
    {
        EXPECT_EQ(Armes().txt_PrixCoûtantTotal.Stale(), Armes().txt_PrixVente.Stale());
        return Jointes({Texte("txt_PrixCoûtant"), Texte("txt_PrixCoûtantTotal"),
                        Texte("txt_PrixVente")}) +
               (Armes().txt_PrixVente.Stale ? " ?" : "");
    }

    // Files of the weapon in its type, large and icon, then of its three components; "-" for none.
    std::string Images()
    {
        std::vector<std::string> Fichiers;
        for (const Image* Each : {&Armes().img_Objet, &Armes().img_Icône, &Armes().img_IcôneArme,
                                  &Armes().img_IcôneGemme, &Armes().img_IcôneTeinture}) {
            const auto& Vue = Each->Picture();
            Fichiers.push_back(Vue.IsEmpty() ? "-"
                                             : Vue.File.lexically_relative(Dossier / "Objets"));
        }
        return Jointes(Fichiers);
    }

    // Bands of the indicators: weapon, its three components; "-" for none.
    std::string Bandes()
    {
        std::string Signes;
        for (const Image* Each : {&Armes().img_Niveau, &Armes().img_NiveauArme,
                                  &Armes().img_NiveauGemme, &Armes().img_NiveauTeinture})
            Signes += Each->Picture().IsEmpty() ? '-' : Each->Picture().File.stem().string().back();
        return Signes;
    }
};

} // namespace orvane
