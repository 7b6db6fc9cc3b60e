#include "app/queries.h"
#include "base/table.h"
#include "base/text.h"
#include "crafts/common/lecture.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "toolkit/visibility.h"
#include "toolkit/writing.h"

#include <array>

// The walk down the lists, from the products of a trade to one object and the degrees it may have.
namespace orvane {

namespace {

constexpr int DegréLarge = 3135; // twips
constexpr int DegréÉtroit = 1215;

struct RègleDegrés
{
    const char* Sup;
    const char* Restriction;
};

// The letter of an object decides which degrees exist.
constexpr std::array RèglesDegrés{
    RègleDegrés{"O", " WHERE NuméroDegré>3"}, RègleDegrés{"N", ""},
    RègleDegrés{"S", " WHERE NuméroDegré=0"}, RègleDegrés{"E", " WHERE NuméroDegré=9"},
    RègleDegrés{"A", " WHERE NuméroDegré>7"},
};

} // namespace

// Clears the screen from one level of the cascade down: 1 the products, 2 their details, 3 the
// objects, 4 what belongs to one object.
void frm_ArtisanatsManuels::EffacerSélection(std::int16_t Palier)
{
    if (Palier <= 1)
        cbo_Produit.Clear();
    if (Palier <= 2) {
        cbo_ProduitDétaillé.Clear();
        cbo_Degré.Clear();
    }
    if (Palier <= 3) {
        cbo_Objet.Clear();
        txt_Image.Text = "";
        txt_Icône.Text = "";
        ShowAll({&lbl_TypeDégats, &cbo_TypeDégats}, false);
        cbo_Degré.Width = DegréLarge;
        txt_ObjetSup.Text = "";
        txt_ObjetSupBis.Text = "";
    }
    txt_Sup.Text = "";
    EffacerPrix();
    EffacerInfosObjet();
}

// Prices are recalculated as they fall; counts, totals and level aren't written here.
void frm_ArtisanatsManuels::EffacerPrix()
{
    Matériaux.Vider();
    txt_PrixRevente.Text = "0";
    txt_PrixCoûtant.Text = "0";
    MatériauxSup.Vider();
    txt_ObjetSUpPrixCoûtant.Text = "0";
    txt_NbObjetSup.Text = "1";
}

void frm_ArtisanatsManuels::EffacerInfosObjet()
{
    WriteAll({&txt_Dps, &txt_Vit, &txt_AF, &txt_Niveau, &txt_BonusSpécial}, "");
}

void frm_ArtisanatsManuels::RemplirProduits()
{
    const Ouverture Base(App, Globals.CheminRoyaume);
    RemplirListe("SELECT DISTINCT Classique_Produits.Nom,Artisanat_Liste.Nom FROM R_Classique "
                 "WHERE (Artisanat_Liste.Nom=" +
                     Quoted(lbl_Artisanat.Caption) + ")",
                 cbo_Produit, "Classique_Produits.Nom");
}

void frm_ArtisanatsManuels::cbo_Produit_Click()
{
    EffacerSélection(2);
    const Ouverture Base(App, Globals.CheminRoyaume);
    if (cbo_Produit.Text == "Armes légendaires") {
        App.Feuilles.Touch("frm_ArmesLégendaires").Show();
        return;
    }
    RemplirListe("SELECT DISTINCT Classique_ProduitsDétaillés.Nom,Classique_Produits.Nom "
                 "FROM R_Classique WHERE ((Artisanat_Liste.Nom = " +
                     Quoted(lbl_Artisanat.Caption) +
                     ") AND (Classique_Produits.Nom=" + Quoted(cbo_Produit.Text) + "))",
                 cbo_ProduitDétaillé, "Classique_ProduitsDétaillés.Nom");
}

void frm_ArtisanatsManuels::cbo_ProduitDétaillé_Click()
{
    EffacerSélection(3);
    const Ouverture Base(App, Globals.CheminRoyaume);
    if (cbo_ProduitDétaillé.Text == "Carreaux" || cbo_ProduitDétaillé.Text == "Flèches") {
        App.Feuilles.Touch("frm_Archerie").Show();
        return;
    }
    RemplirListe(
        "SELECT * FROM R_Classique WHERE ((Artisanat_Liste.Nom = " + Quoted(lbl_Artisanat.Caption) +
            ") AND (Classique_Produits.Nom = " + Quoted(cbo_Produit.Text) +
            ") AND (Classique_ProduitsDétaillés.Nom = " + Quoted(cbo_ProduitDétaillé.Text) + "))",
        cbo_Objet, "Classique_ListeObjets.Nom");
}

// An object that couldn't be read has no degree, and no type that belongs to another one.
void frm_ArtisanatsManuels::cbo_Objet_Click()
{
    EffacerSélection(4);
    ObjetLu = false;
    LireOuPérimer(
        {{&Matériaux}, {}},
        [&] {
            LireObjet();
            ObjetLu = true;
        },
        [&] {
            PréparerTypeDégats();
            if (!ObjetLu)
                CalculerPrixVente();
        });
}

void frm_ArtisanatsManuels::LireObjet()
{
    const Ouverture Base(App, Globals.CheminRoyaume);
    const std::string Sup = PremierEnregistrement("SELECT * FROM Classique_ListeObjets WHERE Nom=" +
                                                  Quoted(cbo_Objet.Text))
                                .Text("Sup");
    txt_Sup.Text = Sup; // its handler uses the open database

    const Recordset Objet = PremierEnregistrement("SELECT * FROM Classique_ListeObjets WHERE Nom=" +
                                                  Quoted(cbo_Objet.Text));
    Matériaux.ChargerCodes(Objet, 6);
    txt_Image.Text = Objet.TextOrEmpty("Image");
    txt_Icône.Text = Objet.TextOrEmpty("Icône");
}

void frm_ArtisanatsManuels::PréparerTypeDégats()
{
    const std::string& Objet = cbo_Objet.Text;
    const bool AvecType =
        ContainsIgnoringCase(Objet, "durable") || ContainsIgnoringCase(Objet, "supérieur");
    ShowAll({&lbl_TypeDégats, &cbo_TypeDégats}, AvecType);
    cbo_Degré.Width = AvecType ? DegréÉtroit : DegréLarge;
    if (!AvecType)
        return;
    cbo_TypeDégats.Clear();
    cbo_TypeDégats.AddItem("de feu");
    cbo_TypeDégats.AddItem("de glace");
    cbo_TypeDégats.AddItem(FirstCharacters(Objet, 3) == "Arc" ? "conducteur" : "conductrice");
}

void frm_ArtisanatsManuels::txt_Sup_Change()
{
    cbo_Degré.Clear();
    const RègleDegrés* Règle = FindRow(RèglesDegrés, &RègleDegrés::Sup, txt_Sup.Text);
    ShowAll({&lbl_Degré, &cbo_Degré}, Règle != nullptr);
    if (Règle == nullptr) // emptied, or a letter without degrees: no database is needed
        return;
    const std::string Degré =
        PremierEnregistrement(
            "SELECT DISTINCT Classique_ProduitsDétaillés.Nom,Classique_Produits.Nom, "
            "Degré FROM R_Classique WHERE (Artisanat_Liste.Nom=" +
            Quoted(lbl_Artisanat.Caption) +
            " AND Classique_Produits.Nom=" + Quoted(cbo_Produit.Text) + ")")
            .Text("Degré");
    ColonneDegré = "DegréType" + Degré;
    RemplirListe(std::string("SELECT * FROM Degrés_ListeTypes") + Règle->Restriction, cbo_Degré,
                 ColonneDegré);
}

} // namespace orvane
