#include "app/queries.h"
#include "base/number_text.h"
#include "crafts/common/alchemy_object.h"
#include "crafts/common/joined_column.h"
#include "crafts/common/object_pictures.h"
#include "crafts/legendary/frm_armes_legendaires.h"
#include "settings/level_indicator.h"
#include "toolkit/calculation.h"

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
    ReadOrStale(PrixDuChoix({&txt_PrixCoûtantArme, &txt_PrixCoûtantGemme, &txt_PrixUnitaireMatériau,
                             &txt_PrixRevente}),
                [&] {
                    LireArme();
                    ChargerArmeEtGemme();
                });
    ReadOrStale(PrixDuChoix(), [&] {
        ChargerImages();
        ChangerCouleurCraft(App, lbl_Niveau.Caption, NiveauCraft, img_Niveau);
    });
    CalculerComposants();
    CalculerTotaux();
}

// The quantities stand before the unit price of the material, which multiplies one of them.
void frm_ArmesLégendaires::LireArme()
{
    const Ouverture Base(App, Globals.BaseDonnées, CheminArtisanat);
    Globals.TexteSQL =
        "SELECT * FROM R_ArmesLégendairesObjets WHERE ArmesLégendaires_ListeObjets.Nom=" +
        Quoted(cbo_Arme.Text());
    const Recordset& Arme = PremierEnregistrement(Globals);
    struct Copie
    {
        const char* Colonne;
        TextBox& Où;
    };
    lbl_Niveau.Caption = Arme.Text("NiveauCraft");
    for (const Copie& Each :
         {Copie{"NiveauObjet", txt_Niveau}, Copie{"Dps", txt_Dps}, Copie{"Vit", txt_Vit},
          Copie{"Classique_ListeObjets.Nom", txt_Arme}, Copie{"NomGemme", txt_Gemme},
          Copie{"Matériaux_Classique.Nom", txt_Matériau}, Copie{"QtéArcanes", txt_QtéGemme},
          Copie{"QtéTeintures", txt_QtéTeinture}, Copie{"QtéMat", txt_QtéMatériau},
          Copie{"PrixRevente", txt_PrixRevente}, Copie{"Prix", txt_PrixUnitaireMatériau},
          Copie{"Classique_ListeObjets.Num", txt_ObjetNum},
          Copie{"Arcanes_ListeObjets.Num", txt_GemmeNum}})
        Each.Où.Text = Arme.Text(Each.Colonne);
    Globals.Enregistrements.Empty();
}

void frm_ArmesLégendaires::cbo_Type_Click()
{
    RemettreQuantités();
    ReadOrStale(PrixDuChoix({&txt_PrixCoûtantTeinture}), [&] {
        LireType();
        ChargerTeinture();
    });
    ReadOrStale(PrixDuChoix(), [&] { ChargerImages(); });
    CalculerComposants();
    CalculerTotaux();
}

void frm_ArmesLégendaires::LireType()
{
    const Ouverture Base(App, Globals.BaseDonnées, CheminArtisanat);
    Globals.TexteSQL = "SELECT * FROM R_ArmesLégendairesType WHERE ArmesLégendaires_Type.Nom=" +
                       Quoted(cbo_Type.Text());
    const Recordset& Type = PremierEnregistrement(Globals);
    txt_Teinture.Text = Type.Text("Alchimie_ListeObjets.Nom");
    txt_Spécial.Text = Type.Text("ObjetSpécial");
    txt_Dégâts.Text = Type.Text("TypeDégât");
    txt_TeintureNum.Text = Type.Text("Num");
    Globals.Enregistrements.Empty();
}

// The weapon's row names its materials by type only; each type has its material of the last degree.
void frm_ArmesLégendaires::ChargerArmeEtGemme()
{
    {
        const Ouverture Base(App, Globals.BaseDonnées, CheminArtisanat);
        Globals.TexteSQL = "SELECT * FROM R_ClassiqueObjets WHERE Num=" + txt_ObjetNum.Text();
        const Recordset Objet = PremierEnregistrement(Globals);
        for (int i = 1; i <= 3; ++i) {
            txt_MatArme[i].Text = Objet.Text(ColonneJointe("Matériaux_ClassiqueType", i, "Nom"));
            txt_QtéArmeN[i].Text = Objet.Text("Qté" + std::to_string(i));
        }
        lbl_NiveauArme.Caption = NiveauComposant(Objet);
        txt_IcôneArme.Text = Objet.TextOrEmpty("Icône");
        MontrerIcôneRoyaume(App, txt_IcôneArme, img_IcôneArme); // an activation took it away
        ChargerGemme();
        for (int i = 1; i <= 3; ++i)
            ChercherMatériauArme(txt_MatArme[i], txt_PrixMatUnitaireArme[i]);
    }
    CalculerBloc(BlocArme());
    CalculerBloc(BlocGemme());
    ChangerCouleurCraft(App, lbl_NiveauArme.Caption, NiveauCraft, img_NiveauArme);
    ChangerCouleurCraft(App, lbl_NiveauGemme.Caption, NiveauArcanes, img_NiveauGemme);
}

// The gem's first material belongs to the last degree, the others to the gem. Needs the realm
// database open.
void frm_ArmesLégendaires::ChargerGemme()
{
    Globals.TexteSQL = "SELECT * FROM R_ArcanesObjets WHERE Num=" + txt_GemmeNum.Text();
    const Recordset Gemme = PremierEnregistrement(Globals);
    for (int i : {1, 2}) {
        txt_MatGemme[i + 1].Text = Gemme.Text(ColonneJointe("Matériaux_Arcanes", i, "Nom"));
        txt_PrixMatUnitaireGemme[i + 1].Text =
            Gemme.Text(ColonneJointe("Matériaux_Arcanes", i, "Prix"));
    }
    txt_QtéGemmeN[2].Text = std::to_string(Entier16(Gemme.Whole("CoefQté2") * DernierDegré + 1));
    txt_QtéGemmeN[3].Text = "10";
    lbl_NiveauGemme.Caption = NiveauComposant(Gemme);
    txt_IcôneGemme.Text = Gemme.TextOrEmpty("Icône");
    MontrerIcôneCommune(App, txt_IcôneGemme, img_IcôneGemme);

    Globals.TexteSQL =
        "SELECT * FROM Matériaux_Arcanes WHERE Degré=" + std::to_string(DernierDegré);
    const Recordset Base = PremierEnregistrement(Globals);
    txt_MatGemme[1].Text = Base.Text("Nom");
    txt_QtéGemmeN[1].Text = "1";
    txt_PrixMatUnitaireGemme[1].Text = Base.Text("Prix");
}

// Puts the material's own name in the place of its type's, and gives its price.
void frm_ArmesLégendaires::ChercherMatériauArme(TextBox& txt_Nom, TextBox& txt_Prix)
{
    Globals.TexteSQL = "SELECT * FROM R_ArmesLégendairesMatériaux "
                       "WHERE Matériaux_ClassiqueType.Nom=" +
                       Quoted(txt_Nom.Text());
    const Recordset Matériau = PremierEnregistrement(Globals);
    txt_Nom.Text = Matériau.Text("Matériaux_Classique.Nom");
    txt_Prix.Text = Matériau.Text("Prix");
    Globals.Enregistrements.Empty();
}

void frm_ArmesLégendaires::ChargerTeinture()
{
    {
        const Ouverture Base(App, Globals.BaseDonnées, CheminTeintures);
        Globals.TexteSQL = "SELECT * FROM R_AlchimieObjet WHERE Num=" + txt_TeintureNum.Text();
        const Recordset Teinture = PremierEnregistrement(Globals);
        for (int i = 1; i <= 3; ++i) {
            txt_MatTeinture[i].Text = Teinture.Text(ColonneJointe("Matériaux", i, "Nom"));
            txt_QtéTeintureN[i].Text = i == 1 ? "1" : Teinture.Text("Qté" + std::to_string(i));
            txt_PrixMatUnitaireTeinture[i].Text =
                Teinture.Text(ColonneJointe("Matériaux", i, "Prix"));
        }
        lbl_NiveauTeinture.Caption = Teinture.Text("NiveauCraft"); // a dye has no degrees
        txt_IcôneTeinture.Text = Teinture.TextOrEmpty("Icône");
        MontrerIcôneOuPasImage(App, txt_IcôneTeinture, img_IcôneTeinture);
        RemplacerDernierCaractère(Globals, txt_MatTeinture[1]);
    }
    CalculerBloc(BlocTeinture());
    ChangerCouleurCraft(App, lbl_NiveauTeinture.Caption, NiveauAlchimie, img_NiveauTeinture);
}

// A weapon looks different in each type: nothing to see before both are chosen.
void frm_ArmesLégendaires::ChargerImages()
{
    if (cbo_Type.Text() == "" || cbo_Arme.Text() == "")
        return;
    const Ouverture Base(App, Globals.BaseDonnées, CheminArtisanat);
    Globals.TexteSQL =
        "SELECT * FROM R_ArmesLégendairesImages WHERE (ArmesLégendaires_ListeObjets.Nom=" +
        Quoted(cbo_Arme.Text()) + " AND ArmesLégendaires_Type.Nom=" + Quoted(cbo_Type.Text()) + ")";
    const Recordset& Images = PremierEnregistrement(Globals);
    txt_Image.Text = Images.TextOrEmpty("Image");
    txt_Icône.Text = Images.TextOrEmpty("Icône");
    Globals.Enregistrements.Empty();
}

} // namespace orvane
