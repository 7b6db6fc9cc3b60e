#include "app/queries.h"
#include "base/notation.h"
#include "base/number_text.h"
#include "base/text.h"
#include "crafts/common/degree_level.h"
#include "crafts/common/lecture.h"
#include "crafts/common/material_codes.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "settings/level_indicator.h"
#include "toolkit/calculation.h"
#include "toolkit/visibility.h"

#include <array>

// What a degree makes of the chosen object: named materials with unit prices, levels, statistics
// and the price a merchant pays for it.
namespace orvane {

namespace {

constexpr const char* NonDéfini = "ND";

struct PremierNiveau
{
    double NiveauObjet;
    const char* Niveau;
};

// Levels of the lowest degree that the formula doesn't give.
constexpr std::array PremiersNiveaux{PremierNiveau{0, "2"}, PremierNiveau{1, "3"},
                                     PremierNiveau{3, "5"}};

std::string TexteNiveau(double NiveauObjet, std::int16_t Degré)
{
    if (Degré == 0)
        for (const PremierNiveau& Each : PremiersNiveaux)
            if (Each.NiveauObjet == NiveauObjet)
                return Each.Niveau;
    return T(NiveauObjet + Entier16(5 * Degré));
}

} // namespace

// Each line price that changes runs CalculerPrixVente inside its write.
void frm_ArtisanatsManuels::cbo_Degré_Click()
{
    if (!ObjetLu) // the counts are of two objects
        throw Failure(FailureKind::ChoiceMissing, cbo_Objet.Text);
    LireOuPérimer(
        {{&Matériaux}, {&txt_PrixRevente, &txt_NbObjetSup}},
        [&] {
            LireDegré();
            ChangerCouleurCraft(App, lbl_Niveau.Caption, NiveauCraft, img_Niveau);
            Matériaux.Chiffrer(ProduitDeMontants, [](const LigneMatériau& Each) {
                return Each.Num < 3 || AUnMatériau(Each);
            });
        },
        [&] { CalculerPrixVente(); });
    for (LigneMatériau& Each : Matériaux)
        ActualiserVerrouPrix(Each);
}

void frm_ArtisanatsManuels::LireDegré()
{
    const Ouverture Base(App, Globals.CheminRoyaume);
    NuméroDegré = PremierEnregistrement("SELECT * FROM Degrés_ListeTypes WHERE " + ColonneDegré +
                                        "=" + Quoted(cbo_Degré.Text))
                      .Whole("NuméroDegré");
    const std::string& Nom = cbo_Objet.Text;
    const bool Couronne = Contains(Nom, "couronne") || Contains(Nom, "Couronne");
    for (LigneMatériau& Each : Matériaux)
        RésoudreMatériau(Globals, NuméroDegré, Couronne, Each);

    const Recordset Objet = PremierEnregistrement("SELECT * FROM Classique_ListeObjets WHERE Nom=" +
                                                  Quoted(cbo_Objet.Text));
    LireNiveaux(Objet);
    txt_ObjetSupBis.Text = Objet.TextOrEmpty("NomObjet");
    txt_NbObjetSup.Text = Objet.Text("NbObjet");
    LireStatistiques(Objet);
    txt_PrixRevente.Text = Objet.Text("PrixReventeDegré" + std::to_string(NuméroDegré));
}

void frm_ArtisanatsManuels::LireNiveaux(const Recordset& Objet)
{
    lbl_Niveau.Caption = NiveauAuDegré(Objet, NuméroDegré);
    txt_Niveau.Text = TexteNiveau(Objet.Number("NiveauObjet"), NuméroDegré);
}

void frm_ArtisanatsManuels::LireStatistiques(const Recordset& Objet)
{
    const std::string& Métier = lbl_Artisanat.Caption;
    if (Métier == "Empennage" || Métier == "Forge") {
        txt_Dps.Text = Objet.Text("Dps") == NonDéfini
                           ? NonDéfini
                           : T(Objet.Number("Dps") + 1.5 * D(NuméroDegré));
        txt_Vit.Text = Objet.Text("Vit");
        txt_AF.Text = NonDéfini;
        txt_BonusSpécial.Text = Objet.Text("BonusSpécial");
    } else if (Métier == "Armurerie" || Métier == "Couture") {
        const int Facteur = cbo_Produit.Text == "Tissu" ? 1 : 2;
        txt_AF.Text = std::to_string(Entier16(Facteur * I(txt_Niveau)));
        txt_BonusSpécial.Text = Objet.Text("BonusSpécial");
        txt_Dps.Text = NonDéfini;
        txt_Vit.Text = NonDéfini;
    }
}

// Shows or hides a row with its code, and opens its price for a material that the crafter prices.
void frm_ArtisanatsManuels::txt_MatériauxBruts_Change(LigneMatériau& Ligne)
{
    Ligne.Montrer(AUnMatériau(Ligne));
    Ligne.PoserVerrou(EstLibre(Ligne), InputGrey, White);
}

void frm_ArtisanatsManuels::MontrerStatistique(TextBox& Valeur, Label& Titre)
{
    ShowAll({&Valeur, &Titre}, Valeur.Text != NonDéfini);
}

} // namespace orvane
