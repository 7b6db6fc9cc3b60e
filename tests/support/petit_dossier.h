#pragma once

#include "basket/frm_panier.h"
#include "crafts/archery/frm_archerie.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "settings/frm_configuration.h"
#include "shell/application.h"
#include "shell/feuilles.h"
#include "shell/frm_accueil.h"
#include "support/scripted_dialogs.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orvane {

// "a | b | c"
std::string Jointes(const std::vector<std::string>& Textes);

// Scripted boxes that can also be expected by the beginning of their text, where the rest is for
// people who keep the data files.
class BoîtesDuDossier : public ScriptedDialogs
{
  public:
    ~BoîtesDuDossier() override { EXPECT_EQ(Début, "") << "box that never came up"; }

    void ExpectMsgBoxBeginning(std::string Text) { Début = std::move(Text); }
    void MsgBox(const std::string& Text) override;

    std::string Dernière; // the last message

  private:
    std::string Début;
};

// A program's folder with small databases, whose figures are easy to work out by hand, and a run
// in it. Degrees: 0, 1, 3, 4, 7, 8, 9.
//
// The unit price of a material at degree d is base × (d + 1); merchants pay 4 + d for any object.
//   type 1 "lin" 5 (Corvane "laine" 6, Brenmoor "chanvre" 7), type 2 "fil" 0,5, type 3 "bouton" 0,
//   type 4 "(aucun)" 0, type 9 "perle" 3, type 5 "rareté" 1: no price at degree 1, no row at 3.
// Extra objects and magic crafts: contenu.h. Quivers: Flèches "simple" has lines of 1,5 and 2 and
// 0,25, "barbelé" of 0,5 each; Carreaux "simple" of 0,5 and 1 and 0,25; "Billes" has none.
// Valdren, level/margin/margin on trials: Armurerie 200/30/5, Couture 100/20/10, Empennage
// 300/40/15, Forge 400/50/25, Alchimie 505/65, Arcanes 506/66/76. Corvane has one more everywhere,
// Brenmoor two more.
class PetitDossier : public testing::Test
{
  protected:
    PetitDossier();

    void Lancer() { Démarrer(App); }

    frm_Accueil& Accueil() { return App.Feuilles.Get<frm_Accueil>(); }
    frm_Configuration& Réglages() { return App.Feuilles.Get<frm_Configuration>(); }
    frm_ArtisanatsManuels& Atelier() { return App.Feuilles.Get<frm_ArtisanatsManuels>(); }
    frm_ArtisanatsMagiques& Magie() { return App.Feuilles.Get<frm_ArtisanatsMagiques>(); }
    frm_Archerie& Archerie() { return App.Feuilles.Get<frm_Archerie>(); }
    frm_Panier& Panier() { return App.Feuilles.Get<frm_Panier>(); }

    void OuvrirAtelier() { Door.Click(Accueil().cmd_ArtisanatsManuels); }
    void OuvrirMagie() { Door.Click(Accueil().cmd_ArtisanatsMagiques); }
    void OuvrirPanier() { Door.ClickItem(Atelier().Bar_Menus, "OuvrirPanier"); }

    // From the home screen: the settings stay open under the craft screen.
    void OuvrirRéglagesEtAtelier();

    // A pick in each list in turn, from the menu down: "Couture/Tissu/Robes/Robe 0/brut".
    void Choisir(const std::string& Chemin);

    std::string Lignes();   // the six line prices
    std::string Totaux();   // cost of one object, cost of the line, sale price
    bool TotauxPérimés();   // shown as stale, all three or none
    std::string Visibles(); // the visible screens from the lowest to the highest, the active one

    // Columns, divided by |, of the rows that a query finds in a file: "a | b / c | d".
    std::string Lire(const std::string& Fichier, const std::string& Requête,
                     const std::string& Colonnes);

    // All rows of the basket.
    std::string Stockées(const std::string& Colonnes = "Nom|Acheteur")
    {
        return Lire("Panier.mdb", "SELECT * FROM PanierGlobal", Colonnes);
    }

    // Plain SQL on a file, as another tool would do it.
    void Modifier(const std::string& Fichier, const std::string& Sql);

    // Takes a file away, and the box that the next event meets it with is expected.
    void Perdre(const std::string& Fichier);

    TempFolder Dossier;
    BoîtesDuDossier Boîtes;
    Application App;
    User& Door = App.Door;
    int Quittés = 0; // how often the run has asked to end
};

// The same, started.
class EnMarche : public PetitDossier
{
  protected:
    void SetUp() override { Lancer(); }
};

// The same, with the manual crafts open.
class DansLAtelier : public PetitDossier
{
  protected:
    void SetUp() override
    {
        Lancer();
        OuvrirAtelier();
    }

    // The object that most figures are told of: 10 and 2,5, resale 4 at "brut"; 20, 5 and 5 at
    // "simple".
    void ChoisirBéret(const std::string& Degré = "brut")
    {
        Choisir("Couture/Tissu/Chapeaux/Béret/" + Degré);
    }
};

} // namespace orvane
