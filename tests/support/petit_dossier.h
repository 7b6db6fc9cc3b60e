#pragma once

#include "basket/frm_panier.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "settings/frm_configuration.h"
#include "shell/application.h"
#include "shell/frm_accueil.h"
#include "support/scripted_dialogs.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orvane {

// "a | b | c"
inline std::string Jointes(const std::vector<std::string>& Textes)
{
    std::string Résultat;
    for (std::size_t i = 0; i < Textes.size(); ++i)
        Résultat += (i == 0 ? "" : " | ") + Textes[i];
    return Résultat;
}

// Scripted boxes that can also be expected by the beginning of their text, where the rest is for
// people who keep the data files.
class BoîtesDuDossier : public ScriptedDialogs
{
  public:
    ~BoîtesDuDossier() override { EXPECT_EQ(Début, "") << "box that never came up"; }

    void ExpectMsgBoxBeginning(std::string Text) { Début = std::move(Text); }

    void MsgBox(const std::string& Text) override
    {
        if (Début.empty())
            return ScriptedDialogs::MsgBox(Text);
        EXPECT_TRUE(Text.starts_with(Début)) << "the box's text: " << Text;
        Début.clear();
    }

  private:
    std::string Début;
};

// A program's folder with small databases, whose figures are easy to work out by hand, and a run
// that starts in it when told to. Degrees: 0, 1, 3, 4, 7, 8, 9.
//
// The unit price of a material at degree d is base × (d + 1); merchants pay 4 + d for any object.
//   type 1 "lin" 5 (Corvane "laine" 6, Brenmoor "chanvre" 7), type 2 "fil" 0,5, type 3 "bouton" 0,
//   type 4 "(aucun)" 0, type 9 "perle" 3, type 5 "rareté": no price at degree 1, no row at 3.
// Valdren, level/margin/margin on trials: Armurerie 200/30/5, Couture 100/20/10, Empennage
// 300/40/15, Forge 400/50/25. Corvane has one more everywhere, Brenmoor two more.
class PetitDossier : public testing::Test
{
  protected:
    PetitDossier();

    void Lancer();

    frm_Accueil& Accueil() { return App.Feuilles.Get<frm_Accueil>(); }
    frm_Configuration& Réglages() { return App.Feuilles.Get<frm_Configuration>(); }
    frm_ArtisanatsManuels& Atelier() { return App.Feuilles.Get<frm_ArtisanatsManuels>(); }
    frm_Panier& Panier() { return App.Feuilles.Get<frm_Panier>(); }
    User& Door() { return App.Door; }

    void OuvrirAtelier() { Door().Click(Accueil().cmd_ArtisanatsManuels); }
    void OuvrirPanier() { Door().ClickItem(Atelier().Bar_Menus, "OuvrirPanier"); }

    // Settings open above the craft screen: what is typed there is read when it is left.
    void OuvrirRéglagesEtAtelier();

    // A pick in each list in turn, from the menu down; an empty Degré picks none.
    void Choisir(const std::string& Métier, const std::string& Produit, const std::string& Détail,
                 const std::string& Objet, const std::string& Degré = {});

    // The object that most figures are told of: cost 12,5, resale 4 at "brut"; 25 and 5 at
    // "simple".
    void ChoisirBéret(const std::string& Degré = "brut")
    {
        Choisir("Couture", "Tissu", "Chapeaux", "Béret", Degré);
    }

    // Line prices 25 | 0,005 | 0 (free) | 0 | 15 at "rare", resale 8.
    void ChoisirChapeau() { Choisir("Couture", "Tissu", "Chapeaux", "Chapeau", "rare"); }

    std::string Lignes();   // the six line prices: "10 | 2,5 | 0 | 0 | 0 | 0"
    std::string Totaux();   // cost of one object, cost of the line, sale price
    bool TotauxPérimés();   // all three
    std::string Visibles(); // the visible screens from the lowest to the highest, the last active

    // The text of one cell of a file, through a store of its own.
    std::string Cellule(const std::string& Fichier, const std::string& Requête);

    // The rows of a query, columns joined: "a,b".
    std::vector<std::string> Rangées(const std::string& Fichier, const std::string& Requête,
                                     const std::vector<std::string>& Colonnes);

    // Plain SQL on a file, as another tool would do it, before the run starts.
    void Modifier(const std::string& Fichier, const std::string& Sql);

    TempFolder Dossier;
    BoîtesDuDossier Boîtes;
    Application App;
    int Quittés = 0; // how often the run has asked to end
};

// The same, started.
class EnMarche : public PetitDossier
{
  protected:
    void SetUp() override { Lancer(); }
};

// The same, with the manual crafts open.
class DansLAtelier : public EnMarche
{
  protected:
    void SetUp() override
    {
        Lancer();
        OuvrirAtelier();
    }
};

} // namespace orvane
