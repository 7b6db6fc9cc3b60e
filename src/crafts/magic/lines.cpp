#include "base/number_text.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "toolkit/calculation.h"
#include "toolkit/visibility.h"

// The lines of the material table and of the extra object, which both crafts share: prices, locks,
// and which of them are to be seen.
namespace orvane {

// A named material that comes to cost nothing is left to the crafter to price. Only a change of the
// unit price's text decides anew: the same text again leaves the lock as it is.
void frm_ArtisanatsMagiques::txt_PrixIngdtUnitaire_Change(LigneMatériau& Ligne)
{
    Ligne.CalculerPrix();
    PoserVerrou(Ligne, Ligne.Nom);
}

// Of the extra object, line 2 alone can be opened.
void frm_ArtisanatsMagiques::txt_PrixMatSuptUnitaire_Change(LigneMatériau& Ligne)
{
    Ligne.CalculerPrix();
    if (&Ligne == &MatériauxSup[2])
        PoserVerrou(Ligne, Ligne.Prix);
}

void frm_ArtisanatsMagiques::PoserVerrou(LigneMatériau& Ligne, const TextBox& Rempli)
{
    // the price as it stands, not as money: 0,00001 isn't free
    if (const auto Prix = DoubleFromText(Ligne.PrixUnitaire.Text))
        Ligne.PoserVerrou(*Prix == 0.0 && Rempli.Text != "", txt_NbObjetAlchimie.BackColor,
                          txt_PrixCoûtantAlchimie.BackColor);
}

void frm_ArtisanatsMagiques::txt_MatSup_Change(LigneMatériau& Ligne)
{
    if (txt_AlchimieObjetSup.Text != "") // the block is hidden without a name
        Ligne.Montrer(!Ligne.EstSansMatériau());
}

// The whole block follows the name of the extra object.
void frm_ArtisanatsMagiques::txt_AlchimieObjetSup_Change()
{
    const bool Montré = txt_AlchimieObjetSup.Text != "";
    ShowAll({&shp_AlchimieObjetSup, &lbl_AlchimieObjetSup, &txt_AlchimieObjetSup}, Montré);
    MatériauxSup.Montrer(Montré);
    ShowAll({&lbl_AlchimieObjetSupNiveau, &lbl_AlchimieObjetSupNiveauCraft,
             &img_AlchimieObjetSupNiveau, &img_AlchimieObjetSup, &lbl_AlchimieObjetSUpPrixCoûtant,
             &txt_AlchimieObjetSUpPrixCoûtant, &txt_NbAlchimieObjetSup, &lbl_NbAlchimieObjetSup},
            Montré);
    txt_AlchimieIconeObjetSup.Text = "";
}

} // namespace orvane
