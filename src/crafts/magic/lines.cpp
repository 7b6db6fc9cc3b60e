#include "crafts/magic/frm_artisanats_magiques.h"
#include "toolkit/calculation.h"
#include "toolkit/visibility.h"

// The lines of the material table and of the extra object, which both crafts share: prices, locks,
// and which of them are to be seen.
namespace orvane {

void frm_ArtisanatsMagiques::ChargerLigne(int i, const std::string& Nom, const std::string& Qté,
                                          const std::string& Prix)
{
    txt_Ingdt[i].Text = Nom;
    txt_IngdtQté[i].Text = Qté;
    txt_PrixIngdtUnitaire[i].Text = Prix;
}

// A named material that comes to cost nothing is left to the crafter to price. Only a change of the
// unit price's text decides anew: the same text again leaves the lock as it is.
void frm_ArtisanatsMagiques::txt_PrixIngdtUnitaire_Change(int i)
{
    CalculerPrixLigne(txt_PrixIngdtUnitaire[i], txt_IngdtQté[i], txt_PrixIngdt[i]);
    Calculate({}, [&] {
        const bool Gratuit = D(txt_PrixIngdtUnitaire[i]) == 0.0;
        PoserVerrou(txt_PrixIngdt[i], Gratuit && txt_Ingdt[i].Text != "", txt_NbObjetAlchimie,
                    txt_PrixCoûtantAlchimie);
    });
}

// Of the extra object, line 2 alone can be opened.
void frm_ArtisanatsMagiques::txt_PrixMatSuptUnitaire_Change(int i)
{
    CalculerPrixLigne(txt_PrixMatSuptUnitaire[i], txt_MatSupQté[i], txt_PrixMatSup[i]);
    if (i != 2)
        return;
    Calculate({}, [&] {
        const bool Gratuit = D(txt_PrixMatSuptUnitaire[i]) == 0.0;
        PoserVerrou(txt_PrixMatSup[i], Gratuit && txt_PrixMatSup[i].Text != "", txt_NbObjetAlchimie,
                    txt_PrixCoûtantAlchimie);
    });
}

void frm_ArtisanatsMagiques::txt_MatSup_Change(int i)
{
    if (txt_AlchimieObjetSup.Text != "") // the block is hidden without a name
        Montrer(LigneSup(i), txt_MatSup[i].Text != SansNom);
}

// The whole block follows the name of the extra object.
void frm_ArtisanatsMagiques::txt_AlchimieObjetSup_Change()
{
    const bool Montré = txt_AlchimieObjetSup.Text != "";
    ShowAll({&shp_AlchimieObjetSup, &lbl_AlchimieObjetSup, &txt_AlchimieObjetSup}, Montré);
    for (int i = 1; i <= 4; ++i)
        Montrer(LigneSup(i), Montré);
    ShowAll({&lbl_AlchimieObjetSupNiveau, &lbl_AlchimieObjetSupNiveauCraft,
             &img_AlchimieObjetSupNiveau, &img_AlchimieObjetSup, &lbl_AlchimieObjetSUpPrixCoûtant,
             &txt_AlchimieObjetSUpPrixCoûtant, &txt_NbAlchimieObjetSup, &lbl_NbAlchimieObjetSup},
            Montré);
    txt_AlchimieIconeObjetSup.Text = "";
}

} // namespace orvane
