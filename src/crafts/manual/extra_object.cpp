#include "app/queries.h"
#include "base/table.h"
#include "base/text.h"
#include "crafts/common/alchemy_object.h"
#include "crafts/common/lecture.h"
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

} // namespace

void frm_ArtisanatsManuels::cbo_TypeDégats_Click()
{
    const TypeDégats* Type = FindRow(TypesDégats, &TypeDégats::Type, cbo_TypeDégats.Text);
    if (Type != nullptr)
        txt_ObjetSup.Text = txt_ObjetSupBis.Text + Type->Suffixe;
    const SuffixeDegré* Degré = FindRow(SuffixesDegrés, &SuffixeDegré::Degré, cbo_Degré.Text);
    if (Degré == nullptr) {
        App.MsgBox("Il faut d'abord sélectionner un degré.");
        txt_ObjetSup.Text = txt_ObjetSupBis.Text;
        cbo_TypeDégats.Text = "";
        return;
    }
    txt_ObjetSup.Text = txt_ObjetSup.Text + Degré->Suffixe;
    LireOuPérimer(
        {{&MatériauxSup}, {}},
        [&] {
            LireObjetSup();
            if (txt_ObjetSup.Text != "")
                ChangerCouleurCraft(App, lbl_ObjetSupNiveauCraft.Caption, NiveauAlchimie,
                                    img_ObjetSupNiveau);
            if (Type != nullptr) {
                const bool Durable = ContainsIgnoringCase(cbo_Objet.Text, "durable");
                lbl_Niveau.Caption = WithoutLastCharacters(lbl_Niveau.Caption, 2) +
                                     (Durable ? Type->NiveauDurable : Type->Niveau);
            }
            ChangerCouleurCraft(App, lbl_Niveau.Caption, NiveauCraft, img_Niveau);
            // whole numbers here; the handler of a unit price takes them as amounts
            MatériauxSup.Chiffrer(EntierFoisMontant);
        },
        [&] { CalculerPrixObjetSup(); });
}

// One row of the alchemy objects, found by the name just built.
void frm_ArtisanatsManuels::LireObjetSup()
{
    const Ouverture Base(App, Globals.CheminAlchimie);
    ChargerObjetSup(Globals, txt_ObjetSup.Text,
                    {lbl_ObjetSupNiveauCraft, txt_IconeObjetSup, MatériauxSup});
}

// The sale price follows, also when the price of the object is the same as before.
void frm_ArtisanatsManuels::CalculerPrixObjetSup()
{
    const bool Juste = Calculate({&txt_ObjetSUpPrixCoûtant}, [&] {
        txt_ObjetSUpPrixCoûtant.Text = T(I(txt_NbObjetSup) * MatériauxSup.Somme());
    });
    if (!Juste || txt_PrixVente.Stale)
        CalculerPrixVente();
}

// The whole panel follows the name: empty or not.
void frm_ArtisanatsManuels::txt_ObjetSup_Change()
{
    MontrerObjetSup(txt_ObjetSup.Text != "");
    txt_IconeObjetSup.Text = "";
    for (int i : {3, 4}) // hides again the rows without a material
        if (TextBox& Nom = MatériauxSup[i].Nom; Nom.Text == SansNom) {
            Nom.Text = "";
            Nom.Text = std::string(SansNom);
        }
}

void frm_ArtisanatsManuels::MontrerObjetSup(bool Montré)
{
    ShowAll({&shp_ObjetSup, &lbl_ObjetSup, &txt_ObjetSup}, Montré);
    MatériauxSup.Montrer(Montré);
    ShowAll({&lbl_ObjetSupNiveau, &lbl_ObjetSupNiveauCraft, &img_ObjetSupNiveau, &img_ObjetSup,
             &lbl_ObjetSUpPrixCoûtant, &txt_ObjetSUpPrixCoûtant, &txt_NbObjetSup, &lbl_NbObjetSup},
            Montré);
}

void frm_ArtisanatsManuels::txt_MatSup_Change(LigneMatériau& Ligne)
{
    if (txt_ObjetSup.Text != "")
        Ligne.Montrer(!Ligne.EstSansMatériau());
}

} // namespace orvane
