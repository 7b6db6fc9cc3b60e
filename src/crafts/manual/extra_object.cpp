#include "app/queries.h"
#include "base/text.h"
#include "crafts/common/alchemy_object.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "settings/level_indicator.h"
#include "toolkit/calculation.h"
#include "toolkit/visibility.h"

#include <array>

// The alchemical object that a durable or superior object needs in a damage type: its name, its
// materials, its price in the cost, and what the type does to the level.
namespace orvane {

namespace {

struct TypeDégats
{
    const char* Type;
    const char* Suffixe;
    const char* Niveau;        // last two digits of the level
    const char* NiveauDurable; // the same for a durable object
};

constexpr std::array TypesDégats{
    TypeDégats{"de feu", " de feu d'arme", "30", "40"},
    TypeDégats{"de glace", " de glace d'arme", "40", "50"},
    TypeDégats{"conducteur", " d'énergie d'arme", "50", "60"},
    TypeDégats{"conductrice", " d'énergie d'arme", "50", "60"},
};

struct SuffixeDegré
{
    const char* Degré;
    const char* Suffixe;
};

constexpr std::array SuffixesDegrés{
    SuffixeDegré{"en dyr", " de néthérium"},
    SuffixeDegré{"en arcania", " d'arcanium"},
};

const TypeDégats* ChercherType(const std::string& Type)
{
    for (const TypeDégats& Each : TypesDégats)
        if (Type == Each.Type)
            return &Each;
    return nullptr;
}

const SuffixeDegré* ChercherDegré(const std::string& Degré)
{
    for (const SuffixeDegré& Each : SuffixesDegrés)
        if (Degré == Each.Degré)
            return &Each;
    return nullptr;
}

} // namespace

void frm_ArtisanatsManuels::cbo_TypeDégats_Click()
{
    const TypeDégats* Type = ChercherType(cbo_TypeDégats.Text);
    if (Type != nullptr)
        txt_ObjetSup.Text = txt_ObjetSupBis.Text() + Type->Suffixe;
    const SuffixeDegré* Degré = ChercherDegré(cbo_Degré.Text);
    if (Degré == nullptr) {
        App.MsgBox("Il faut d'abord sélectionner un degré.");
        txt_ObjetSup.Text = txt_ObjetSupBis.Text();
        cbo_TypeDégats.Text = "";
        return;
    }
    txt_ObjetSup.Text = txt_ObjetSup.Text() + Degré->Suffixe;
    std::vector<TextBox*> Renouvelés = Résultats();
    Renouvelés.push_back(&txt_ObjetSUpPrixCoûtant);
    ReadOrStale(Renouvelés, [&] {
        LireObjetSup();
        if (txt_ObjetSup.Text != "")
            ChangerCouleurCraft(App, lbl_ObjetSupNiveauCraft.Caption, NiveauAlchimie,
                                img_ObjetSupNiveau);
        if (Type != nullptr) {
            const bool Durable = ContainsIgnoringCase(cbo_Objet.Text(), "durable");
            lbl_Niveau.Caption = WithoutLastCharacters(lbl_Niveau.Caption(), 2) +
                                 (Durable ? Type->NiveauDurable : Type->Niveau);
        }
        ChangerCouleurCraft(App, lbl_Niveau.Caption, NiveauCraft, img_Niveau);
    });
    if (CalculerPrixObjetSup() && txt_PrixVente.Stale) // the same price runs nothing by itself
        CalculerPrixVente();
}

// One row of the alchemy objects, found by the name just built.
void frm_ArtisanatsManuels::LireObjetSup()
{
    const Ouverture Base(App, Globals.BaseDonnées, Globals.CheminAlchimie);
    ChargerObjetSup(Globals, txt_ObjetSup.Text,
                    {lbl_ObjetSupNiveauCraft, txt_IconeObjetSup, txt_MatSup, txt_MatSupQté,
                     txt_PrixMatSuptUnitaire});
}

// Here quantities are whole numbers; the handler of a unit price takes them as amounts. Tells
// whether the price is good; if not, the prices that rest on it are shown as stale.
bool frm_ArtisanatsManuels::CalculerPrixObjetSup()
{
    std::array<Montant, 4> Lignes;
    Montant Total;
    const bool Juste = Calculate({}, [&] {
        Montant Somme;
        for (int i = 1; i <= 4; ++i) {
            Montant& Ligne = Lignes[static_cast<std::size_t>(i - 1)];
            Ligne = I(txt_MatSupQté[i]) * M(txt_PrixMatSuptUnitaire[i]);
            Somme = Somme + Ligne;
        }
        Total = I(txt_NbObjetSup) * Somme;
    });
    txt_ObjetSUpPrixCoûtant.Stale = !Juste;
    if (!Juste) {
        for (TextBox* Each : Résultats())
            Each->Stale = true;
        return false;
    }
    for (int i = 1; i <= 4; ++i)
        txt_PrixMatSup[i].Text = T(Lignes[static_cast<std::size_t>(i - 1)]);
    txt_ObjetSUpPrixCoûtant.Text = T(Total);
    return true;
}

// The whole panel follows the name: empty or not.
void frm_ArtisanatsManuels::txt_ObjetSup_Change()
{
    const bool Montré = txt_ObjetSup.Text != "";
    ShowAll({&shp_ObjetSup, &lbl_ObjetSup, &txt_ObjetSup}, Montré);
    for (int i = 1; i <= 4; ++i)
        Montrer(LigneSup(i), Montré);
    txt_IconeObjetSup.Text = "";
    ShowAll({&lbl_ObjetSupNiveau, &lbl_ObjetSupNiveauCraft, &img_ObjetSupNiveau, &img_ObjetSup,
             &lbl_ObjetSUpPrixCoûtant, &txt_ObjetSUpPrixCoûtant, &txt_NbObjetSup, &lbl_NbObjetSup},
            Montré);
    for (int i : {3, 4}) // hides again the rows without a material
        if (txt_MatSup[i].Text == SansNom) {
            txt_MatSup[i].Text = "";
            txt_MatSup[i].Text = std::string(SansNom);
        }
}

void frm_ArtisanatsManuels::txt_MatSup_Change(int i)
{
    if (txt_ObjetSup.Text != "")
        Montrer(LigneSup(i), txt_MatSup[i].Text != SansNom);
}

} // namespace orvane
