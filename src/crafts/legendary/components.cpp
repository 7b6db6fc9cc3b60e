#include "app/queries.h"
#include "base/number_text.h"
#include "crafts/common/alchemy_object.h"
#include "crafts/common/lecture.h"
#include "crafts/common/object_pictures.h"
#include "crafts/legendary/frm_armes_legendaires.h"
#include "settings/level_indicator.h"

// How the five components are found, and what their own bills say.
namespace orvane {

namespace {

// Components are made at the highest degree, which is worth that many levels.
constexpr int NiveauDernierDegré = 900;
constexpr int DernierDegré = 9;

std::string NiveauComposant(const Recordset& Composant)
{
    return std::to_string(Entier16(Composant.Whole("NiveauCraft") + NiveauDernierDegré));
}

} // namespace

void frm_ArmesLégendaires::cbo_Arme_Click()
{
    RemettreQuantités();
    LireOuPérimer(
        {{&Arme.Matériaux, &Gemme.Matériaux},
         {&txt_QtéGemme, &txt_QtéTeinture, &txt_QtéMatériau, &txt_PrixUnitaireMatériau,
          &txt_PrixRevente}},
        [&] {
            LireArme();
            ChargerArmeEtGemme();
            ChargerImages();
            ChangerCouleurCraft(App, lbl_Niveau.Caption, NiveauCraft, img_Niveau);
        },
        [&] {
            CalculerComposant(Arme);
            CalculerComposant(Gemme);
            CalculerComposants();
        });
}

// The quantities stand before the unit price of the material, which multiplies one of them.
void frm_ArmesLégendaires::LireArme()
{
    const Ouverture Base(App, CheminArtisanat);
    const Recordset Lue = PremierEnregistrement(
        "SELECT * FROM R_ArmesLégendairesObjets WHERE ArmesLégendaires_ListeObjets.Nom=" +
        Quoted(cbo_Arme.Text));
    struct Copie
    {
        const char* Colonne;
        TextBox& Où;
    };
    lbl_Niveau.Caption = Lue.Text("NiveauCraft");
    for (const Copie& Each :
         {Copie{"NiveauObjet", txt_Niveau}, Copie{"Dps", txt_Dps}, Copie{"Vit", txt_Vit},
          Copie{"Classique_ListeObjets.Nom", txt_Arme}, Copie{"NomGemme", txt_Gemme},
          Copie{"Matériaux_Classique.Nom", txt_Matériau}, Copie{"QtéArcanes", txt_QtéGemme},
          Copie{"QtéTeintures", txt_QtéTeinture}, Copie{"QtéMat", txt_QtéMatériau},
          Copie{"PrixRevente", txt_PrixRevente}, Copie{"Prix", txt_PrixUnitaireMatériau},
          Copie{"Classique_ListeObjets.Num", txt_ObjetNum},
          Copie{"Arcanes_ListeObjets.Num", txt_GemmeNum}})
        Each.Où.Text = Lue.Text(Each.Colonne);
}

void frm_ArmesLégendaires::cbo_Type_Click()
{
    RemettreQuantités();
    LireOuPérimer(
        {{&Teinture.Matériaux}, {}},
        [&] {
            LireType();
            ChargerTeinture();
            ChargerImages();
        },
        [&] {
            CalculerComposant(Teinture);
            CalculerComposants();
        });
}

void frm_ArmesLégendaires::LireType()
{
    const Ouverture Base(App, CheminArtisanat);
    const Recordset Type = PremierEnregistrement(
        "SELECT * FROM R_ArmesLégendairesType WHERE ArmesLégendaires_Type.Nom=" +
        Quoted(cbo_Type.Text));
    txt_Teinture.Text = Type.Text("Alchimie_ListeObjets.Nom");
    txt_Spécial.Text = Type.Text("ObjetSpécial");
    txt_Dégâts.Text = Type.Text("TypeDégât");
    txt_TeintureNum.Text = Type.Text("Num");
}

// The weapon's row names its materials by type only; each type has its material of the last degree.
void frm_ArmesLégendaires::ChargerArmeEtGemme()
{
    {
        const Ouverture Base(App, CheminArtisanat);
        const Recordset Objet =
            PremierEnregistrement("SELECT * FROM R_ClassiqueObjets WHERE Num=" + txt_ObjetNum.Text);
        for (int i = 1; i <= 3; ++i) {
            Arme.Matériaux[i].Nom.Text =
                Objet.Text(ColonneJointe("Matériaux_ClassiqueType", i, "Nom"));
            Arme.Matériaux[i].Qté.Text = Objet.Text("Qté" + std::to_string(i));
        }
        Arme.Niveau.Caption = NiveauComposant(Objet);
        Arme.FichierIcône.Text = Objet.TextOrEmpty("Icône");
        MontrerIcôneRoyaume(App, Arme.FichierIcône, Arme.Icône); // an activation took it away
        ChargerGemme();
        for (LigneMatériau& Each : Arme.Matériaux)
            ChercherMatériauArme(Each);
    }
    ChangerCouleurCraft(App, Arme.Niveau.Caption, NiveauCraft, Arme.Indicateur);
    ChangerCouleurCraft(App, Gemme.Niveau.Caption, NiveauArcanes, Gemme.Indicateur);
}

// The gem's first material belongs to the last degree, the others to the gem. Needs the realm
// database open.
void frm_ArmesLégendaires::ChargerGemme()
{
    const Recordset Lue =
        PremierEnregistrement("SELECT * FROM R_ArcanesObjets WHERE Num=" + txt_GemmeNum.Text);
    for (int i : {1, 2}) {
        LigneMatériau& Ligne = Gemme.Matériaux[i + 1];
        Ligne.Nom.Text = Lue.Text(ColonneJointe("Matériaux_Arcanes", i, "Nom"));
        Ligne.PrixUnitaire.Text = Lue.Text(ColonneJointe("Matériaux_Arcanes", i, "Prix"));
    }
    Gemme.Matériaux[2].Qté.Text =
        std::to_string(Entier16(Lue.Whole("CoefQté2") * DernierDegré + 1));
    Gemme.Matériaux[3].Qté.Text = "10";
    Gemme.Niveau.Caption = NiveauComposant(Lue);
    Gemme.FichierIcône.Text = Lue.TextOrEmpty("Icône");
    MontrerIcôneCommune(App, Gemme.FichierIcône, Gemme.Icône);

    const Recordset Base = PremierEnregistrement("SELECT * FROM Matériaux_Arcanes WHERE Degré=" +
                                                 std::to_string(DernierDegré));
    Gemme.Matériaux[1].Nom.Text = Base.Text("Nom");
    Gemme.Matériaux[1].Qté.Text = "1";
    Gemme.Matériaux[1].PrixUnitaire.Text = Base.Text("Prix");
}

// Puts the material's own name in the place of its type's, and gives its price.
void frm_ArmesLégendaires::ChercherMatériauArme(LigneMatériau& Ligne)
{
    const Recordset Matériau = PremierEnregistrement("SELECT * FROM R_ArmesLégendairesMatériaux "
                                                     "WHERE Matériaux_ClassiqueType.Nom=" +
                                                     Quoted(Ligne.Nom.Text));
    Ligne.Nom.Text = Matériau.Text("Matériaux_Classique.Nom");
    Ligne.PrixUnitaire.Text = Matériau.Text("Prix");
}

void frm_ArmesLégendaires::ChargerTeinture()
{
    {
        const Ouverture Base(App, CheminTeintures);
        const Recordset Lue = PremierEnregistrement("SELECT * FROM R_AlchimieObjet WHERE Num=" +
                                                    txt_TeintureNum.Text);
        Teinture.Matériaux.Charger(Lue, "Matériaux", true);
        Teinture.Niveau.Caption = Lue.Text("NiveauCraft"); // a dye has no degrees
        Teinture.FichierIcône.Text = Lue.TextOrEmpty("Icône");
        MontrerIcôneOuPasImage(App, Teinture.FichierIcône, Teinture.Icône);
        RemplacerDernierCaractère(Globals, Teinture.Matériaux[1].Nom);
    }
    ChangerCouleurCraft(App, Teinture.Niveau.Caption, NiveauAlchimie, Teinture.Indicateur);
}

// A weapon looks different in each type: nothing to see before both are chosen, nor when the two
// have no picture together.
void frm_ArmesLégendaires::ChargerImages()
{
    if (cbo_Type.Text == "" || cbo_Arme.Text == "")
        return;
    const Ouverture Base(App, CheminArtisanat);
    const Recordset Images = OuvrirEnregistrements(
        "SELECT * FROM R_ArmesLégendairesImages WHERE (ArmesLégendaires_ListeObjets.Nom=" +
        Quoted(cbo_Arme.Text) + " AND ArmesLégendaires_Type.Nom=" + Quoted(cbo_Type.Text) + ")");
    txt_Image.Text = Images.Eof() ? "" : Images.TextOrEmpty("Image");
    txt_Icône.Text = Images.Eof() ? "" : Images.TextOrEmpty("Icône");
}

} // namespace orvane
