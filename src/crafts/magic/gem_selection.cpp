#include "app/queries.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "settings/level_indicator.h"
#include "toolkit/calculation.h"
#include "toolkit/visibility.h"

// A gem is named from either side, by the gem or by the bonus it gives; each pick writes the
// matching text on the other side, which runs nothing there.
namespace orvane {

template <class BoxType>
void frm_ArtisanatsMagiques::RemplirTexte(const std::string& Requête, BoxType& Où,
                                          const std::string& Colonne)
{
    Où.Text = PremierEnregistrement(Requête).Text(Colonne);
}

void frm_ArtisanatsMagiques::RemplirSousTypesGemmes()
{
    RemplirListe("SELECT Arcanes_ProduitsDétaillés.Nom,Arcanes_Produits.Nom FROM R_Arcanes "
                 "WHERE (Arcanes_Produits.Nom=" +
                     Quoted(cbo_TypeGemmes.Text) + ")",
                 cbo_SousTypeGemmes, "Arcanes_ProduitsDétaillés.Nom");
}

void frm_ArtisanatsMagiques::RemplirSousTypesBonus()
{
    RemplirListe("SELECT Bonus,Arcanes_Bonus.Nom FROM R_Arcanes WHERE (Arcanes_Bonus.Nom=" +
                     Quoted(cbo_TypeBonus.Text) + ")",
                 cbo_SousTypeBonus, "Bonus");
}

void frm_ArtisanatsMagiques::LireDegréBonus()
{
    RemplirTexte("SELECT Degré FROM Arcanes_Bonus WHERE Nom=" + Quoted(cbo_TypeBonus.Text),
                 txt_Degré, "Degré");
}

// The column of Degrés_Arcanes that spells the degrees for the bonus type.
std::string frm_ArtisanatsMagiques::ColonneDegré() const
{
    return "DegréType" + txt_Degré.Text;
}

void frm_ArtisanatsMagiques::cbo_TypeGemmes_Click()
{
    EffacerSélectionGemmes(2);
    ShowAll({&cbo_DegréBonus, &cbo_DegréGemmes, &lbl_ArcanesDegré}, false);
    EffacerMatériaux();
    const Ouverture Base(App, Globals.CheminRoyaume);
    RemplirSousTypesGemmes();
    RemplirTexte("SELECT DISTINCT Arcanes_Produits.Nom, Arcanes_Bonus.Nom FROM R_Arcanes "
                 "WHERE Arcanes_Produits.Nom=" +
                     Quoted(cbo_TypeGemmes.Text),
                 cbo_TypeBonus, "Arcanes_Bonus.Nom");
    LireDegréBonus();
    RemplirSousTypesBonus();
}

void frm_ArtisanatsMagiques::cbo_TypeBonus_Click()
{
    EffacerSélectionGemmes(2);
    ShowAll({&cbo_DegréBonus, &cbo_DegréGemmes}, false);
    cbo_DegréBonus.Clear();
    lbl_ArcanesDegré.Visible = false;
    EffacerMatériaux();
    const Ouverture Base(App, Globals.CheminRoyaume);
    RemplirSousTypesBonus();
    LireDegréBonus();
    RemplirListe("SELECT " + ColonneDegré() + " FROM Degrés_Arcanes", cbo_DegréBonus,
                 ColonneDegré());
    RemplirTexte("SELECT DISTINCT Arcanes_Produits.Nom, Arcanes_Bonus.Nom FROM R_Arcanes "
                 "WHERE Arcanes_Bonus.Nom=" +
                     Quoted(cbo_TypeBonus.Text),
                 cbo_TypeGemmes, "Arcanes_Produits.Nom");
    RemplirSousTypesGemmes();
}

// What both picks of a sub-type begin with.
void frm_ArtisanatsMagiques::PréparerDegrés()
{
    ShowAll({&cbo_DegréBonus, &cbo_DegréGemmes, &lbl_ArcanesDegré}, true);
    cbo_DegréBonus.Text = "";
    cbo_DegréGemmes.Text = "";
    EffacerMatériaux();
}

void frm_ArtisanatsMagiques::cbo_SousTypeGemmes_Click()
{
    PréparerDegrés();
    const Ouverture Base(App, Globals.CheminRoyaume);
    RemplirTexte("SELECT DISTINCT Arcanes_ProduitsDétaillés.Nom, Arcanes_Produits.Nom, Bonus "
                 "FROM R_ArcanesObjets WHERE (Arcanes_Produits.Nom=" +
                     Quoted(cbo_TypeGemmes.Text) +
                     " AND Arcanes_ProduitsDétaillés.Nom=" + Quoted(cbo_SousTypeGemmes.Text) + ")",
                 cbo_SousTypeBonus, "Bonus");
    LireIcône();
}

void frm_ArtisanatsMagiques::cbo_SousTypeBonus_Click()
{
    PréparerDegrés();
    const Ouverture Base(App, Globals.CheminRoyaume);
    RemplirTexte("SELECT DISTINCT Arcanes_ProduitsDétaillés.Nom, Arcanes_Bonus.Nom, Bonus "
                 "FROM R_ArcanesObjets WHERE (Arcanes_Bonus.Nom=" +
                     Quoted(cbo_TypeBonus.Text) + " AND Bonus=" + Quoted(cbo_SousTypeBonus.Text) +
                     ")",
                 cbo_SousTypeGemmes, "Arcanes_ProduitsDétaillés.Nom");
    LireIcône();
}

void frm_ArtisanatsMagiques::LireIcône()
{
    txt_IcôneArcanes.Text =
        PremierEnregistrement("SELECT Icône FROM R_ArcanesObjets WHERE (Arcanes_Bonus.Nom=" +
                              Quoted(cbo_TypeBonus.Text) +
                              " AND Bonus=" + Quoted(cbo_SousTypeBonus.Text) + ")")
            .TextOrEmpty("Icône");
}

// Setting the first entry runs the whole handler once more inside, unless it was the first already.
void frm_ArtisanatsMagiques::cbo_DegréGemmes_Click()
{
    EffacerMatériaux();
    if (PremierDegréSeul())
        cbo_DegréGemmes.ListIndex = 0;
    const auto Lire = [&] {
        const Ouverture Base(App, Globals.CheminRoyaume);
        const std::string Degrés = "SELECT DegréType1, " + ColonneDegré() + " FROM Degrés_Arcanes";
        cbo_DegréBonus.Clear();
        RemplirListe(Degrés, cbo_DegréBonus, ColonneDegré());
        RemplirTexte(Degrés + " WHERE DegréType1=" + Quoted(cbo_DegréGemmes.Text), cbo_DegréBonus,
                     ColonneDegré());
        ChargerGemme();
        ChangerCouleurCraft(App, lbl_NiveauAlchimie.Caption, NiveauArcanes, img_NiveauAlchimie);
    };
    LireChoix(Lire, &frm_ArtisanatsMagiques::CalculerPrixArcanes);
}

void frm_ArtisanatsMagiques::cbo_DegréBonus_Click()
{
    EffacerMatériaux();
    if (PremierDegréSeul())
        cbo_DegréBonus.ListIndex = 0;
    const auto Lire = [&] {
        const Ouverture Base(App, Globals.CheminRoyaume);
        RemplirTexte("SELECT DegréType1, " + ColonneDegré() + " FROM Degrés_Arcanes WHERE " +
                         ColonneDegré() + "=" + Quoted(cbo_DegréBonus.Text),
                     cbo_DegréGemmes, "DegréType1");
        ChargerGemme();
        ChangerCouleurCraft(App, lbl_NiveauAlchimie.Caption, NiveauArcanes, img_NiveauAlchimie);
    };
    LireChoix(Lire, &frm_ArtisanatsMagiques::CalculerPrixArcanes);
}

} // namespace orvane
