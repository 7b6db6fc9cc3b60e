#include "app/queries.h"
#include "base/number_text.h"
#include "crafts/common/degree_level.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "settings/level_indicator.h"
#include "toolkit/calculation.h"

#include <algorithm>
#include <array>
#include <string_view>

// What one gem at one degree brings onto the screen. The first material depends on the degree
// alone; the others are the gem's own.
namespace orvane {

namespace {

constexpr const char* Trophées = "Gemmes pour trophés"; // as the data spell it
constexpr std::array<std::string_view, 2> Délicates{"Délicate", "Délicat"};
constexpr std::array<std::string_view, 4> Travaillées{"Eclatante", "Eclatant", "Délicate",
                                                      "Délicat"};

std::string Matériau(int i, const char* Colonne)
{
    return ColonneJointe("Matériaux_Arcanes", i, Colonne);
}

} // namespace

// These gems exist at the first degree only.
bool frm_ArtisanatsMagiques::PremierDegréSeul() const
{
    return cbo_TypeGemmes.Text == Trophées ||
           std::ranges::count(Délicates, cbo_SousTypeGemmes.Text) > 0;
}

bool frm_ArtisanatsMagiques::ASixLignes() const
{
    return cbo_TypeGemmes.Text == Trophées ||
           std::ranges::count(Travaillées, cbo_SousTypeGemmes.Text) > 0;
}

// Needs the realm database open.
void frm_ArtisanatsMagiques::ChargerGemme()
{
    const Recordset Degré =
        PremierEnregistrement("SELECT NuméroDegré, PrixRevente, DegréType1 FROM Degrés_Arcanes "
                              "WHERE DegréType1=" +
                              Quoted(cbo_DegréGemmes.Text));
    const std::int16_t NuméroDegré = Degré.Whole("NuméroDegré");
    txt_ArcanesPrixRevente.Text = Degré.Text("PrixRevente");

    const Recordset Gemme = PremierEnregistrement(
        "SELECT * FROM R_ArcanesObjets WHERE (Arcanes_Bonus.Nom=" + Quoted(cbo_TypeBonus.Text) +
        " AND Bonus=" + Quoted(cbo_SousTypeBonus.Text) + ")");
    Ingrédients[2].Nom.Text = Gemme.Text(Matériau(1, "Nom"));
    txt_ArcanesCoefQté2.Text = Gemme.Text("CoefQté2");
    Ingrédients[3].Nom.Text = Gemme.Text(Matériau(2, "Nom"));
    lbl_NiveauAlchimie.Caption = NiveauAuDegré(Gemme, NuméroDegré);
    Ingrédients[1].Qté.Text = "1";
    Ingrédients[2].Qté.Text = std::to_string(Entier16(1 + I(txt_ArcanesCoefQté2) * NuméroDegré));
    Ingrédients[3].Qté.Text = std::to_string(Entier16(1 + NuméroDegré));
    Ingrédients[2].PrixUnitaire.Text = Gemme.Text(Matériau(1, "Prix"));
    Ingrédients[3].PrixUnitaire.Text = Gemme.Text(Matériau(2, "Prix"));
    ChargerLignesSup(Gemme, NuméroDegré);
    txt_AlchimieObjetSup.Text = Gemme.TextOrEmpty("NomObjet");
    txt_NbAlchimieObjetSup.Text = Gemme.Text("NbObjet");
    ChargerBase(NuméroDegré);
    if (txt_AlchimieObjetSup.Text != "")
        ChargerGemmeSup();
}

// Lines 4 to 6. The "1" before the price makes its text change also when the stored price is 0, so
// that the line opens for a price of the crafter's own.
void frm_ArtisanatsMagiques::ChargerLignesSup(const Recordset& Gemme, std::int16_t NuméroDegré)
{
    if (!ASixLignes()) {
        for (int i = 4; i <= 6; ++i)
            Ingrédients[i].Nom.Text = std::string(SansNom);
        return;
    }
    const std::string Qté = cbo_SousTypeGemmes.Text == "Eclatant"
                                ? T(Gemme.Number("QtéSup") + Entier16(6 * NuméroDegré))
                                : Gemme.Text("QtéSup");
    for (int i = 4; i <= 6; ++i)
        Ingrédients[i].Nom.Text = Gemme.Text(Matériau(i - 1, "Nom"));
    for (int i = 4; i <= 6; ++i)
        Ingrédients[i].Qté.Text = Qté;
    for (int i = 4; i <= 6; ++i) {
        Ingrédients[i].PrixUnitaire.Text = "1";
        Ingrédients[i].PrixUnitaire.Text = Gemme.Text(Matériau(i - 1, "Prix"));
    }
}

// Line 1.
void frm_ArtisanatsMagiques::ChargerBase(std::int16_t NuméroDegré)
{
    if (cbo_TypeGemmes.Text == Trophées) {
        Ingrédients[1].Nom.Text = std::string(SansNom);
        Ingrédients[1].PrixUnitaire.Text = "0";
        return;
    }
    const Recordset Base = PremierEnregistrement("SELECT * FROM Matériaux_Arcanes WHERE Degré=" +
                                                 std::to_string(NuméroDegré));
    Ingrédients[1].Nom.Text = Base.Text("Nom");
    Ingrédients[1].PrixUnitaire.Text = Base.Text("Prix");
}

// The gem that another one needs: a whole gem of its own row, without a degree.
void frm_ArtisanatsMagiques::ChargerGemmeSup()
{
    const Recordset Gemme = PremierEnregistrement(
        "SELECT * FROM R_ArcanesObjets WHERE (Arcanes_ProduitsDétaillés.Nom=" +
        Quoted(txt_AlchimieObjetSup.Text) + ")");
    lbl_AlchimieObjetSupNiveauCraft.Caption = Gemme.Text("NiveauCraft");
    txt_AlchimieIconeObjetSup.Text = Gemme.TextOrEmpty("Icône");
    for (int i = 1; i <= 3; ++i) {
        MatériauxSup[i].Nom.Text = Gemme.Text(Matériau(i + 2, "Nom"));
        MatériauxSup[i].Qté.Text = i == 1 ? "1" : Gemme.Text("QtéSup");
        MatériauxSup[i].PrixUnitaire.Text = Gemme.Text(Matériau(i + 2, "Prix"));
    }
    MatériauxSup[4].Nom.Text = std::string(SansNom);
    MatériauxSup[4].Qté.Text = "0";
    MatériauxSup[4].PrixUnitaire.Text = "0";
    ChangerCouleurCraft(App, lbl_AlchimieObjetSupNiveauCraft.Caption, NiveauArcanes,
                        img_AlchimieObjetSupNiveau);
}

} // namespace orvane
