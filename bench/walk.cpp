#include "walk.h"

#include "home/feuilles.h"
#include "home/frm_accueil.h"
#include "skins/skin_assets.h"
#include "store/sql_text.h"

#include <stdexcept>

namespace orvane::bench {

namespace {

constexpr const char* ObjetParNom =
    "SELECT * FROM Classique_ListeObjets WHERE Nom = ? COLLATE NOCASE";

// Alchemy objects and gems as their saved queries join them.
constexpr const char* ObjetAlchimique =
    "SELECT * FROM ListeObjets o JOIN ProduitsDétaillés d ON o.ProduitDétaillé = d.Num "
    "JOIN Produits p ON d.Produit = p.Num LEFT JOIN Effets e ON o.Effet = e.Num "
    "LEFT JOIN Matériaux m1 ON o.Mat1 = m1.Num LEFT JOIN Matériaux m2 ON o.Mat2 = m2.Num "
    "LEFT JOIN Matériaux m3 ON o.Mat3 = m3.Num LEFT JOIN Matériaux m4 ON o.Mat4 = m4.Num "
    "LEFT JOIN Matériaux m5 ON o.Mat5 = m5.Num LEFT JOIN Matériaux m6 ON o.Mat6 = m6.Num "
    "WHERE p.Nom = ? COLLATE NOCASE AND d.Nom = ? COLLATE NOCASE AND o.Nom = ? COLLATE NOCASE";
constexpr const char* Gemme =
    "SELECT * FROM Arcanes_ListeObjets o "
    "JOIN Arcanes_ProduitsDétaillés d ON o.ProduitDétaillé = d.Num "
    "JOIN Arcanes_Produits p ON d.Produit = p.Num JOIN Arcanes_Bonus b ON o.TypeBonus = b.Num "
    "LEFT JOIN Matériaux_Arcanes m1 ON o.Mat1 = m1.Num "
    "LEFT JOIN Matériaux_Arcanes m2 ON o.Mat2 = m2.Num "
    "LEFT JOIN Matériaux_Arcanes m3 ON o.Mat3 = m3.Num "
    "LEFT JOIN Matériaux_Arcanes m4 ON o.Mat4 = m4.Num "
    "LEFT JOIN Matériaux_Arcanes m5 ON o.Mat5 = m5.Num "
    "WHERE b.Nom = ? COLLATE NOCASE AND o.Bonus = ? COLLATE NOCASE";

void Arrive(const TextBox& Cost)
{
    if (Cost.Text == "0")
        throw std::runtime_error("the walk didn't reach a priced object");
}

} // namespace

Walk::Walk(const std::filesystem::path& Folder, const std::string& RawFile)
    : App(Folder, Boxes),
      Raw((Folder / RawFile).string())
{
    EnregistrerFeuilles(App);
    Démarrer(App);
}

void WalkToSword(Walk& On)
{
    On.App.Door.Click(On.App.Feuilles.Get<frm_Accueil>().cmd_ArtisanatsManuels);
    auto& Screen = On.Manuels();
    On.App.Door.ClickItem(Screen.Bar_Menus, "Forge");
    On.App.Door.Pick(Screen.cbo_Produit, "Épées");
    On.App.Door.Pick(Screen.cbo_ProduitDétaillé, 0);
    On.App.Door.Pick(Screen.cbo_Objet, 0);
    On.App.Door.Pick(Screen.cbo_Degré, 0);
    Arrive(Screen.txt_PrixCoûtant);
}

void WalkToPotion(Walk& On)
{
    On.App.Door.Click(On.App.Feuilles.Get<frm_Accueil>().cmd_ArtisanatsMagiques);
    auto& Screen = On.Magiques();
    On.App.Door.Pick(Screen.cbo_Produit, "Potions");
    On.App.Door.Pick(Screen.cbo_ProduitDétaillé, 0);
    On.App.Door.Pick(Screen.cbo_Objet, 0);
    Arrive(Screen.txt_PrixCoûtantAlchimie);
}

void WalkToGem(Walk& On)
{
    On.App.Door.Click(On.App.Feuilles.Get<frm_Accueil>().cmd_ArtisanatsMagiques);
    auto& Screen = On.Magiques();
    On.App.Door.ClickItem(Screen.Bar_Menus, "Arcanes");
    On.App.Door.Pick(Screen.cbo_TypeGemmes, "Gemmes d'arme");
    On.App.Door.Pick(Screen.cbo_SousTypeGemmes, "Ardente");
    On.App.Door.Pick(Screen.cbo_DegréGemmes, 1);
    Arrive(Screen.txt_ArcanesPrixCoûtant);
}

// The queries of a pick in cbo_Objet: the object twice, the product's degree column, the degrees.
void AddPick(Walk& On)
{
    auto& Screen = On.Manuels();
    On.Raw.Add(ObjetParNom, {Screen.cbo_Objet.Text});
    On.Raw.Add("SELECT d.Nom, p.Nom, p.Degré FROM Classique_Produits p "
               "JOIN Artisanat_Liste a ON p.Artisanat = a.Num "
               "LEFT JOIN Classique_ProduitsDétaillés d ON d.Produit = p.Num "
               "LEFT JOIN Classique_ListeObjets o ON o.ProduitDétaillé = d.Num "
               "WHERE a.Nom = ? COLLATE NOCASE AND p.Nom = ? COLLATE NOCASE",
               {Screen.lbl_Artisanat.Caption, Screen.cbo_Produit.Text});
    On.Raw.Add("SELECT * FROM Degrés_ListeTypes", {});
    On.Raw.Add(ObjetParNom, {Screen.cbo_Objet.Text});
}

// The queries of a degree click: its number, the materials, the object.
void AddDegree(Walk& On)
{
    auto& Screen = On.Manuels();
    On.Raw.Add("SELECT * FROM Degrés_ListeTypes WHERE DegréType1 = ? COLLATE NOCASE",
               {Screen.cbo_Degré.Text});
    for (const LigneMatériau& Each : Screen.Matériaux)
        if (Each.Code->Text != "10" && Each.Code->Text != "8")
            On.Raw.Add("SELECT * FROM Matériaux_Classique WHERE Type = ? AND Degré = 0",
                       {Each.Code->Text});
    On.Raw.Add(ObjetParNom, {Screen.cbo_Objet.Text});
}

void AddLayout(Walk& On)
{
    Database Base = On.App.Bases.Open(On.App.Globals.CheminBaseSkin);
    for (int i = 0; i < On.App.Feuilles.Count(); ++i) {
        const Screen& Which = On.App.Feuilles[i];
        Recordset Shared = Base.OpenRecordset("SELECT Commun FROM RésolutionCommune WHERE Nom=" +
                                              Quoted(Which.Name()));
        const std::string Table =
            Which.Name() + "_" +
            (Shared.TextOrEmpty("Commun") == "O" ? "Commun" : SansEspaces(Résolution));
        const std::string Sql =
            "SELECT * FROM \"" + Table + "\" WHERE NomControl = ? COLLATE NOCASE ORDER BY Num";
        On.Raw.Add(Sql, {Which.Name()});
        for (const Control* Each : Which.Controls())
            On.Raw.Add(Sql, {Each->Name()});
    }
}

void AddPotion(Walk& On)
{
    auto& Screen = On.Magiques();
    On.Raw.Add(ObjetAlchimique,
               {Screen.cbo_Produit.Text, Screen.cbo_ProduitDétaillé.Text, Screen.cbo_Objet.Text});
}

void AddGem(Walk& On)
{
    auto& Screen = On.Magiques();
    const std::string Degrés =
        "SELECT DegréType1, DegréType" + Screen.txt_Degré.Text + " FROM Degrés_Arcanes";
    const std::string ParNom = " WHERE DegréType1 = ? COLLATE NOCASE";
    On.Raw.Add(Degrés, {});
    On.Raw.Add(Degrés + ParNom, {Screen.cbo_DegréGemmes.Text});
    On.Raw.Add("SELECT NuméroDegré, PrixRevente, DegréType1 FROM Degrés_Arcanes" + ParNom,
               {Screen.cbo_DegréGemmes.Text});
    On.Raw.Add(Gemme, {Screen.cbo_TypeBonus.Text, Screen.cbo_SousTypeBonus.Text});
    On.Raw.Add("SELECT * FROM Matériaux_Arcanes WHERE Degré = 1", {});
}

} // namespace orvane::bench
