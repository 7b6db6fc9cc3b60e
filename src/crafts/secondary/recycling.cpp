#include "app/queries.h"
#include "base/number_text.h"
#include "base/text.h"
#include "crafts/common/degree_level.h"
#include "crafts/common/lecture.h"
#include "crafts/common/material_codes.h"
#include "crafts/secondary/frm_artisanats_secondaires.h"
#include "settings/level_indicator.h"
#include "toolkit/calculation.h"
#include "toolkit/visibility.h"

// What making an object only to sell it to a merchant gains. What counts as cost is what the
// crafter types; the bill of materials is there to look at, and nothing reaches the basket.
namespace orvane {

void frm_ArtisanatsSecondaires::PréparerRecyclage()
{
    ViderListes();
    lbl_Zone1.Caption = "Objet :";
    lbl_Zone2.Caption = "Degré :";
    cbo_Degré.Called = "Degré";
    ShowAll({&lbl_Zone2, &cbo_Degré}, true);
    Matériaux[4].Montrer(false);
    cmd_AjouterPanier.Visible = false;
    LireNiveauCraft();

    const Ouverture Base(App, Globals.CheminRoyaume);
    RemplirListe("SELECT DISTINCT * FROM R_Secondaire WHERE (Artisanat_Liste.Nom=" +
                     Quoted(lbl_Artisanat.Caption) + ")",
                 cbo_ObjetSecondaire, "Secondaire_Produits.Nom");
}

// Nothing is named or priced before a degree is picked.
void frm_ArtisanatsSecondaires::ChoisirRecyclage()
{
    cbo_Degré.Clear();
    ObjetLu = false;
    LireOuPérimer(
        {{&Matériaux}, {}},
        [&] {
            LireRecyclage();
            ObjetLu = true;
        },
        [&] {
            if (!ObjetLu)
                CalculerCoût();
        });
}

void frm_ArtisanatsSecondaires::LireRecyclage()
{
    const Ouverture Base(App, Globals.CheminRoyaume);
    const Recordset Objet =
        PremierEnregistrement("SELECT * FROM R_SecondaireObjets WHERE Secondaire_Produits.Nom=" +
                              Quoted(cbo_ObjetSecondaire.Text));
    Matériaux.ChargerCodes(Objet, 3);
    MontrerIcône(Objet);

    NuméroDegré =
        PremierEnregistrement("SELECT * FROM R_Secondaire WHERE (Artisanat_Liste.Nom=" +
                              Quoted(lbl_Artisanat.Caption) + " AND Secondaire_Produits.Nom=" +
                              Quoted(cbo_ObjetSecondaire.Text) + ")")
            .Whole("Degré");
    ColonneDegré = "DegréType" + std::to_string(NuméroDegré);
    RemplirListe("SELECT * FROM Degrés_ListeTypes", cbo_Degré, ColonneDegré);
}

void frm_ArtisanatsSecondaires::ChoisirDegré()
{
    if (!ObjetLu) // the counts are of two objects
        throw Failure(FailureKind::ChoiceMissing, cbo_ObjetSecondaire.Text);
    LireOuPérimer(
        {{&Matériaux}, {&txt_PrixRevente}},
        [&] {
            LireDegré();
            ChangerCouleurCraft(App, lbl_Niveau.Caption, NiveauCraft, img_Niveau);
            Matériaux.Chiffrer(ProduitDeMontants, [](const LigneMatériau& Each) {
                return Each.Num == 1 || (Each.Num < 4 && AUnMatériau(Each));
            });
        },
        [&] { CalculerCoût(); });
}

void frm_ArtisanatsSecondaires::LireDegré()
{
    const Ouverture Base(App, Globals.CheminRoyaume);
    NuméroDegré = PremierEnregistrement("SELECT * FROM Degrés_ListeTypes WHERE " + ColonneDegré +
                                        "=" + Quoted(cbo_Degré.Text))
                      .Whole("NuméroDegré");
    const bool Couronne = Contains(cbo_ObjetSecondaire.Text, "couronne");
    for (int i = 1; i <= 3; ++i)
        RésoudreMatériau(Globals, NuméroDegré, Couronne, Matériaux[i]);

    const Recordset Objet =
        PremierEnregistrement("SELECT * FROM R_SecondaireObjets WHERE Secondaire_Produits.Nom=" +
                              Quoted(cbo_ObjetSecondaire.Text));
    MontrerIcône(Objet);
    ColonneRevente = "PrixReventeDegré" + std::to_string(NuméroDegré);
    txt_PrixRevente.Text = Objet.Text(ColonneRevente);
    lbl_Niveau.Caption = NiveauAuDegré(Objet, NuméroDegré);
}

void frm_ArtisanatsSecondaires::CalculerCoût()
{
    Calculate({&txt_PrixCoûtant}, [&] { txt_PrixCoûtant.Text = T(Matériaux.Somme()); });
    CalculerGain();
}

// No figure of the bill takes part, but a bill that couldn't be read is no object to sell.
void frm_ArtisanatsSecondaires::CalculerGain()
{
    Calculate({&txt_Gain}, [&] {
        Matériaux.Somme();
        txt_Gain.Text = T(M(txt_PrixRevente) * M(txt_NbObjet) - M(txt_CoûtSuppl));
    });
}

} // namespace orvane
