#pragma once

#include "support/fichier.h"
#include "support/petit_dossier.h"

#include <algorithm>
#include <array>

namespace orvane {

// The magic crafts, opened with margins of 20, and of 10 on trials. An action gives the prices that
// it leaves.
class Magique : public EnMarche
{
  protected:
    void SetUp() override
    {
        EnMarche::SetUp();
        OuvrirMagie();
        Rouvrir("20", "20", "10");
    }

    // With margins typed beforehand: on alchemy objects, on gems, on trials.
    void Rouvrir(const char* Alchimie, const char* Arcanes, const char* Essais)
    {
        Door.Click(Magie().cmd_Retour);
        Door.Click(Accueil().cmd_Configuration);
        Door.Type(Réglages().txt_MargeAlchimie, Alchimie);
        Door.Type(Réglages().txt_MargeArcanes, Arcanes);
        Door.Type(Réglages().txt_EssaiArcanes, Essais);
        OuvrirMagie();
    }

    void Prendre(const char* Entrée) { Door.ClickItem(Magie().Bar_Menus, Entrée); }

    // A pick in each list in turn, as far as the path goes.
    void Suivre(const std::string& Chemin, const std::array<std::string, 3>& Listes)
    {
        std::size_t i = 0;
        for (const std::string& Nom : Couper(Chemin, '/')) {
            auto& Liste = dynamic_cast<ComboBox&>(Magie().Find("cbo_" + Listes.at(i++)));
            EXPECT_TRUE(Liste.Visible && Liste.FindItem(Nom) >= 0) << Nom;
            Door.Pick(Liste, Nom);
        }
    }
    std::string Fabriquer(const std::string& Chemin)
    {
        Suivre(Chemin, {"Produit", "ProduitDétaillé", "Objet"});
        return Alchimie();
    }
    std::string Tailler(const std::string& Chemin, const std::string& Côté = "Gemmes")
    {
        if (Magie().lbl_Artisanat.Caption() != "Arcanes")
            Prendre("Arcanes");
        Suivre(Chemin, {"Type" + Côté, "SousType" + Côté, "Degré" + Côté});
        return Arcanes();
    }

    // What then stands in the box, "!" if it is marked, and the prices of the craft in hand.
    std::string Taper(TextBox& Saisie, const std::string& Texte)
    {
        Door.Type(Saisie, Texte);
        return Saisie.Text() + (Saisie.Marked ? "!: " : ": ") +
               (Magie().lbl_Artisanat.Caption() == "Arcanes" ? Arcanes() : Alchimie());
    }

    TextBox& Case(const std::string& Nom) { return dynamic_cast<TextBox&>(Magie().Find(Nom)); }

    // "name x quantity = price" of each line, "*" behind an open price, "-" for a hidden line.
    std::string Lignes(const std::string& Famille, int Nombre)
    {
        std::string Textes;
        for (int i = 1; i <= Nombre; ++i) {
            const std::string Fin = Famille + std::to_string(i);
            const TextBox& Qté = Case("txt_" + Famille + "Qté" + std::to_string(i));
            const TextBox& Prix = Case("txt_Prix" + Fin);
            for (const std::string& Nom : {"txt_" + Fin, "lbl_" + Fin,
                                           "lbl_" + Famille + "X" + std::to_string(i), Qté.Name()})
                EXPECT_EQ(Magie().Find(Nom).Visible(), Prix.Visible()) << Nom;
            EXPECT_EQ(Prix.BackColor(), (Prix.Locked ? White : InputGrey)) << Prix.Name();
            const std::string Texte = Case("txt_" + Fin).Text() + " x " + Qté.Text() + " = " +
                                      Prix.Text() + (Prix.Locked ? "" : "*");
            Textes += (i == 1 ? "" : " | ") + (Prix.Visible ? Texte : "-");
        }
        return Textes;
    }
    std::string Matériaux() { return Lignes("Ingdt", 6); }

    static std::string Dessin(const PictureControl& Où) { return Où.Picture().File.stem(); }

    // "name x count = cost, level band icon: lines"; "-" when the block is hidden.
    std::string ObjetSup()
    {
        auto& M = Magie();
        const bool Montré = M.txt_AlchimieObjetSup.Visible;
        for (const char* Nom :
             {"shp_AlchimieObjetSup", "lbl_AlchimieObjetSup", "lbl_AlchimieObjetSupNiveau",
              "lbl_AlchimieObjetSupNiveauCraft", "img_AlchimieObjetSupNiveau",
              "img_AlchimieObjetSup", "lbl_AlchimieObjetSUpPrixCoûtant", "lbl_NbAlchimieObjetSup",
              "txt_AlchimieObjetSUpPrixCoûtant", "txt_NbAlchimieObjetSup"})
            EXPECT_EQ(M.Find(Nom).Visible(), Montré) << Nom;
        const std::string Rangées = Lignes("MatSup", 4);
        EXPECT_TRUE(Montré || Rangées == "- | - | - | -");
        return !Montré ? "-"
                       : M.txt_AlchimieObjetSup.Text() + " x " + M.txt_NbAlchimieObjetSup.Text() +
                             " = " + M.txt_AlchimieObjetSUpPrixCoûtant.Text() + ", " +
                             M.lbl_AlchimieObjetSupNiveauCraft.Caption() + " " +
                             Dessin(M.img_AlchimieObjetSupNiveau) + " " +
                             Dessin(M.img_AlchimieObjetSup) + ": " + Rangées;
    }

    // Pairs of cost and sale price, one if all are the same; "?" behind them when they are stale.
    std::string Prix(const std::string& Début, const std::vector<std::string>& Fins)
    {
        std::vector<std::string> Paires;
        const bool Périmés = Case("txt_" + Début + "PrixVente" + Fins[0]).Stale;
        for (const std::string& Fin : Fins) {
            const TextBox& Coût = Case("txt_" + Début + "PrixCoûtant" + Fin);
            const TextBox& Vente = Case("txt_" + Début + "PrixVente" + Fin);
            EXPECT_TRUE(Coût.Stale == Périmés && Vente.Stale == Périmés) << Coût.Name();
            Paires.push_back(Coût.Text() + " " + Vente.Text());
        }
        if (std::ranges::count(Paires, Paires[0]) == std::ssize(Paires))
            Paires.resize(1);
        return Jointes(Paires) + (Périmés ? " ?" : "");
    }
    std::string Alchimie() { return Prix("", {"Alchimie"}); } // of all the objects

    // Of one gem, with trials, of several, of all together.
    std::string Arcanes() { return Prix("Arcanes", {"", "Qualité", "Quantité", "Total"}); }

    // Level, its band, the icons of both crafts.
    std::string Niveau()
    {
        return Magie().lbl_NiveauAlchimie.Caption() + " " + Dessin(Magie().img_NiveauAlchimie) +
               " " + Dessin(Magie().pct_IconeAlchimie) + "," + Dessin(Magie().pct_IconeArcanes);
    }

    void RefuserAjout()
    {
        Boîtes.ExpectMsgBoxBeginning("Les prix affichés ne sont pas à jour");
        Door.Click(Magie().cmd_AjouterPanier);
        EXPECT_EQ(Stockées(), "");
    }

    static constexpr auto Bleu = "Teintures/Étoffes/Bleu roi";                       // 37,5
    static constexpr auto Vert = "Teintures/Étoffes/Vert d'eau";                     // 39,845
    static constexpr auto Lame = "Effets à déclenchement/Effets d'arme/Lame de feu"; // 33
    static constexpr auto Simple = "Gemmes de veille/Simple/taillée";                // 150
    static constexpr auto Eclatant = "Gemmes de veille/Eclatant/taillée";            // 291,5
    static constexpr auto Vides = " x 0 = 0 |  x 0 = 0 |  x 0 = 0 |  x 0 = 0 |  x 0 = 0 |  x 0 = 0";
};

} // namespace orvane
