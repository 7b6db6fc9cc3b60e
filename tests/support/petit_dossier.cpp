#include "support/petit_dossier.h"

#include "store/catalogue.h"
#include "store/maker.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <sstream>

namespace orvane {

namespace {

namespace fs = std::filesystem;

constexpr int Degrés[] = {0, 1, 3, 4, 7, 8, 9};

std::vector<std::string> Couper(const std::string& Texte, char Signe)
{
    std::vector<std::string> Parts;
    std::istringstream Flux(Texte);
    for (std::string Part; std::getline(Flux, Part, Signe);)
        Parts.push_back(Part);
    return Parts;
}

// A file and a short way to put rows into it: cells divided by |, an empty one is a null.
class Fichier
{
  public:
    Fichier(const fs::path& Chemin, const DatabaseDefinition& Définition)
        : Définition(Définition),
          Maker(Chemin, Définition)
    {
    }

    void Remplir(const std::string& Table, const std::string& Colonnes,
                 const std::vector<std::string>& Rangées)
    {
        const auto& Voulue = *std::ranges::find(Définition.Tables, Table, &TableDefinition::Name);
        const auto Noms = Couper(Colonnes, '|');
        for (const std::string& Rangée : Rangées) {
            std::vector<Value> Cellules;
            for (const std::string& Cellule : Couper(Rangée, '|'))
                Cellules.push_back(Cellule.empty() ? Value() : Value(Cellule));
            Cellules.resize(Noms.size());
            Maker.Insert(Voulue, Noms, Cellules);
        }
    }

    void Finir() { Maker.Finish(); }

  private:
    const DatabaseDefinition& Définition;
    DatabaseMaker Maker;
};

// Level and margins of each craft in Valdren; rows 8 and 11 hold cells that no screen shows.
void FaireConfig(const fs::path& Dossier)
{
    constexpr int Valdren[11][3] = {{200, 30, 5},  {100, 20, 10}, {300, 40, 15}, {400, 50, 25},
                                    {505, 65, 75}, {506, 66, 76}, {507, 67, 77}, {508, 68, 78},
                                    {509, 69, 79}, {510, 70, 80}, {511, 71, 81}};
    Fichier Config(Dossier / "Config.mdb", ConfigDefinition());
    Config.Remplir("DernierRoyaume", "Nom", {"Valdren"});
    Config.Remplir("DernièreSkin", "Nom", {"Velours"});
    Config.Remplir("DernièreRésolution", "Nom", {"1024 x 768"});
    Config.Remplir("SkinsListe", "Num|Nom", {"2|Ardoise", "1|Velours"});
    Config.Remplir("RésolutionsListe", "Num|Nom", {"1|1024 x 768", "2|800 x 600"});
    std::vector<std::string> Rangées;
    for (const auto& Métier : Valdren) {
        std::string& Rangée = Rangées.emplace_back(std::to_string(Rangées.size() + 1));
        for (int Royaume = 0; Royaume < 3; ++Royaume)
            for (const int Réglage : Métier)
                Rangée += "|" + std::to_string(Réglage + Royaume);
    }
    std::string Colonnes = "Num";
    for (const std::string& Nom : Royaumes())
        Colonnes += "|Craft" + Nom + "|Marges1" + Nom + "|Marges2" + Nom;
    Config.Remplir("ConfigRoyaume", Colonnes, Rangées);
    Config.Finir();
}

std::string Dixièmes(int Nombre)
{
    return std::to_string(Nombre / 10) + "," + std::to_string(Nombre % 10);
}

void FaireMatériaux(Fichier& Base, int Royaume)
{
    constexpr const char* Fibres[] = {"lin", "laine", "chanvre"};
    Base.Remplir("Degrés_ListeTypes", "NuméroDegré|DegréType1|DegréType2",
                 {"0|brut|terne", "1|simple|poli", "3|fin|clair", "4|rare|vif", "7|royal|doré",
                  "8|noble|brillant", "9|parfait|étincelant"});
    for (const int d : Degrés) {
        const std::string Degré = "|" + std::to_string(d) + "|";
        const std::string Fin = " " + std::to_string(d) + "|";
        Base.Remplir("Matériaux_Classique", "Type|Degré|Nom|Prix",
                     {"1" + Degré + Fibres[Royaume] + Fin + std::to_string((5 + Royaume) * (d + 1)),
                      "2" + Degré + "fil" + Fin + Dixièmes(5 * (d + 1)),
                      "3" + Degré + "bouton" + Fin + "0", "4" + Degré + "(aucun)|0",
                      "9" + Degré + "perle" + Fin + std::to_string(3 * (d + 1))});
    }
    Base.Remplir("Matériaux_Classique", "Type|Degré|Nom|Prix", {"5|0|rareté 0|1", "5|1|rareté 1|"});
}

// Objects: codes and quantities of the six rows, then level, Dps, Vit and bonus.
void FaireObjets(Fichier& Base)
{
    std::vector<std::string> Objets{
        "1|Heaume|N|1|10|10|10|10|10|2|0|0|0|0|0|||10|30|ND|ND|Parade +2",
        "2|Béret|N|1|2|10|10|10|10|2|5|0|0|0|0|béret.gif|béret.gif|47|0|ND|ND|ND",
        "2|Chapeau|O|1|8|3|4|9|10|1|1|2|2|1|0|||50|1|ND|ND|+10 PV",
        "2|Chapeau à couronne|N|8|10|10|10|10|10|2|0|0|0|0|0|||50|1|ND|ND|ND",
        "2|Couronne d'osier|N|8|10|10|10|10|10|2|0|0|0|0|0|||50|1|ND|ND|ND",
        "2|COURONNE|N|8|10|10|10|10|10|2|0|0|0|0|0|||50|1|ND|ND|ND",
        "3|Robe nue|N|10|10|10|10|10|10|3|3|3|3|3|3|||50|2|ND|ND|ND",
        "3|Robe perlée|N|9|9|9|9|9|9|1|1|1|1|1|1|||50|2|ND|ND|ND",
        "3|Robe introuvable|N|5|10|10|10|10|10|1|0|0|0|0|0|||50|2|ND|ND|ND",
        "4|Bottes durables|N|1|10|10|10|10|10|1|0|0|0|0|0|||50|5|ND|ND|ND",
        "5|Arc|N|1|10|10|10|10|10|2|0|0|0|0|0|||20|7|16|5,2|ND",
        "5|Arc durable|N|1|10|10|10|10|10|2|0|0|0|0|0|||20|7|16|5,2|ND",
        "5|ARC durable|N|1|10|10|10|10|10|2|0|0|0|0|0|||20|7|16|5,2|ND",
        "5|Bâton SUPÉRIEUR|N|1|10|10|10|10|10|2|0|0|0|0|0|||20|7|ND|3|ND",
        "8|Glaive|N|1|10|10|10|10|10|2|0|0|0|0|0|||20|7|16|2,9|Force +1"};
    for (const char* Sup : {"O", "N", "S", "E", "A", "X"})
        Objets.push_back(std::string("4|Bottes ") + Sup + "|" + Sup +
                         "|1|10|10|10|10|10|1|0|0|0|0|0|||50|5|ND|ND|ND");
    for (const char* Niveau : {"0", "1", "2", "3", "4", "30"})
        Objets.push_back(std::string("3|Robe ") + Niveau + "|N|1|10|10|10|10|10|2|0|0|0|0|0|||50|" +
                         Niveau + "|ND|ND|ND");
    std::string Colonnes = "ProduitDétaillé|Nom|Sup|Mat1|Mat2|Mat3|Mat4|Mat5|Mat6|Qté1|Qté2|Qté3|"
                           "Qté4|Qté5|Qté6|Image|Icône|NiveauCraft|NiveauObjet|Dps|Vit|"
                           "BonusSpécial|NomObjet|NbObjet";
    std::string Revente = "||1";
    for (int d = 0; d <= 9; ++d) {
        Colonnes += "|PrixReventeDegré" + std::to_string(d);
        Revente += "|" + std::to_string(4 + d);
    }
    for (std::string& Objet : Objets)
        Objet += Revente;
    Base.Remplir("Classique_ListeObjets", Colonnes, Objets);
}

void FaireRoyaume(const fs::path& Dossier, int Royaume)
{
    const std::string Nom = "Artisanat_" + Royaumes()[static_cast<std::size_t>(Royaume)] + ".mdb";
    Fichier Base(Dossier / Nom, RoyaumeDefinition());
    Base.Remplir("Artisanat_Liste", "Num|Nom",
                 {"1|Armurerie", "2|Couture", "3|Empennage", "4|Forge"});
    Base.Remplir("Classique_Produits", "Num|Artisanat|Nom|Degré",
                 {"1|1|Mailles|1", "2|2|Tissu|1", "3|2|Cuir|2", "4|3|Munitions|1", "5|3|Arcs|1",
                  "6|4|Épées|2", "7|4|Armes légendaires|1"});
    Base.Remplir("Classique_ProduitsDétaillés", "Num|Produit|Nom",
                 {"1|1|Coiffes", "2|2|Chapeaux", "3|2|Robes", "4|3|Bottes", "5|5|Arcs longs",
                  "6|4|Flèches", "7|4|Carreaux", "8|6|Épées courtes", "9|6|À venir"});
    FaireMatériaux(Base, Royaume);
    FaireObjets(Base);
    Base.Finir();
}

// Files that only have to be there.
void FaireImages(const TempFolder& Dossier)
{
    for (const std::string& Royaume : Royaumes()) {
        Dossier.Write("Interface/Ecu" + Royaume + ".gif", "GIF89a");
        Dossier.Write("Interface/Ecu" + Royaume + "Ombre.gif", "GIF89a");
        Dossier.Write("Interface/Bannière" + Royaume + ".gif", "GIF89a");
        Dossier.Write("Interface/Bouton" + Royaume + ".gif", "GIF89a");
        Dossier.Write("Interface/Icônes/" + Royaume + ".ico", "icon");
    }
    Dossier.Write("Interface/Logo.png", "png");
    Dossier.Write("Objets/Commun/PasImage.gif", "GIF89a");
    Dossier.Write("Objets/Valdren/béret.gif", "GIF89a");
    Dossier.Write("Objets/Valdren/Icônes/béret.gif", "GIF89a");
}

// A skin whose pictures only have to be there and whose layouts move nothing. frm_Configuration and
// frm_Panier are common to the resolutions.
void FaireSkin(const TempFolder& Dossier, const std::string& Skin)
{
    const std::vector<std::string> Images{"Accueil/Fond.jpg",
                                          "Accueil/BoutonArtisanatsManuels.jpg",
                                          "Accueil/BoutonArtisanatsMagiques.jpg",
                                          "Accueil/BoutonArtisanatsSecondaires.jpg",
                                          "Accueil/BoutonConfiguration.jpg",
                                          "Accueil/BoutonQuitter.jpg",
                                          "Accueil/BoutonNews.jpg",
                                          "Configuration/Fond.jpg",
                                          "Configuration/BoutonValidation.jpg",
                                          "Configuration/BoutonCouleur.jpg",
                                          "Panier/Fond.jpg",
                                          "Panier/BoutonSupprimerCommande.jpg",
                                          "Panier/BoutonSupprimerObjet.jpg",
                                          "Panier/BoutonEnregistrer.jpg",
                                          "Panier/BoutonRetour.jpg",
                                          "News/Fond.jpg",
                                          "News/BoutonRetour.jpg",
                                          "News/BoutonDétails.jpg"};
    fs::create_directories(Dossier / "Skins" / Skin);
    DatabaseMaker Maker(Dossier / "Skins" / Skin / (Skin + ".mdb"), SkinDefinition());
    for (const std::string& Feuille : NomsFeuilles()) {
        const bool Commun = Feuille == "frm_Configuration" || Feuille == "frm_Panier";
        Maker.Insert(SkinDefinition().Tables[0], {"Nom", "Commun"},
                     {Feuille, std::string(Commun ? "O" : "N")});
        for (const std::string& Sous : Commun ? std::vector<std::string>{"Commun"}
                                              : std::vector<std::string>{"1024x768", "800x600"}) {
            const TableDefinition Table = LayoutTable(Feuille + "_" + Sous);
            Maker.AddTable(Table);
            Maker.Insert(Table, {"Num", "NomControl"}, {std::int64_t{1}, Feuille});
        }
    }
    Maker.Finish();
    for (const std::string Sous : {"Commun", "1024x768", "800x600"}) {
        const std::string Racine = "Skins/" + Skin + "/" + Sous + "/";
        for (const std::string& Image : Images)
            Dossier.Write(Racine + Image, "jpg");
        for (const std::string Atelier : {"ArtisanatsManuels", "Archerie", "ArtisanatsMagiques",
                                          "ArtisanatsSecondaires", "ArmesLégendaires"})
            for (const std::string Image :
                 {"/Fond.jpg", "/BoutonAjouterPanier.jpg", "/BoutonRetour.jpg"})
                Dossier.Write(Racine + Atelier + Image, "jpg");
        for (const std::string& Royaume : Royaumes()) {
            Dossier.Write(Racine + "Statut/" + Royaume + ".jpg", "jpg");
            Dossier.Write(Racine + "Statut/BoutonRetour" + Royaume + ".jpg", "jpg");
        }
    }
}

// Made once, copied for each test.
const fs::path& Modèle()
{
    static const TempFolder Dossier;
    static const bool Fait = [] {
        FaireConfig(Dossier.Path());
        Fichier(Dossier / "Panier.mdb", PanierDefinition()).Finir();
        Fichier(Dossier / "Artisanat_Alchimie.mdb", AlchimieDefinition()).Finir();
        for (int Royaume = 0; Royaume < 3; ++Royaume)
            FaireRoyaume(Dossier.Path(), Royaume);
        FaireImages(Dossier);
        FaireSkin(Dossier, "Velours");
        FaireSkin(Dossier, "Ardoise");
        return true;
    }();
    static_cast<void>(Fait);
    return Dossier.Path();
}

} // namespace

std::string Jointes(const std::vector<std::string>& Textes)
{
    std::string Résultat;
    for (std::size_t i = 0; i < Textes.size(); ++i)
        Résultat += (i == 0 ? "" : " | ") + Textes[i];
    return Résultat;
}

void BoîtesDuDossier::MsgBox(const std::string& Text)
{
    if (Début.empty())
        return ScriptedDialogs::MsgBox(Text);
    EXPECT_TRUE(Text.starts_with(Début)) << "the box's text: " << Text;
    Début.clear();
}

PetitDossier::PetitDossier() : App(Dossier.Path(), Boîtes)
{
    fs::copy(Modèle(), Dossier.Path(), fs::copy_options::recursive);
    App.OnQuit = [this] { ++Quittés; };
    EnregistrerFeuilles(App);
}

void PetitDossier::OuvrirRéglagesEtAtelier()
{
    Door.Click(Accueil().cmd_Configuration);
    OuvrirAtelier();
}

void PetitDossier::Choisir(const std::string& Chemin)
{
    const auto Noms = Couper(Chemin, '/');
    Door.ClickItem(Atelier().Bar_Menus, Noms.at(0));
    ComboBox* const Listes[] = {&Atelier().cbo_Produit, &Atelier().cbo_ProduitDétaillé,
                                &Atelier().cbo_Objet, &Atelier().cbo_Degré};
    for (std::size_t i = 1; i < Noms.size(); ++i) {
        Door.Pick(*Listes[i - 1], Noms[i]);
        ASSERT_EQ(Listes[i - 1]->Text(), Noms[i]) << "the walk down the lists";
    }
}

std::string PetitDossier::Lignes()
{
    std::vector<std::string> Textes;
    for (const TextBox& Prix : Atelier().txt_PrixMat)
        Textes.push_back(Prix.Text());
    return Jointes(Textes);
}

std::string PetitDossier::Totaux()
{
    return Jointes({Atelier().txt_PrixCoûtant.Text(), Atelier().txt_PrixCoûtantTotal.Text(),
                    Atelier().txt_PrixVente.Text()});
}

bool PetitDossier::TotauxPérimés()
{
    EXPECT_EQ(Atelier().txt_PrixCoûtant.Stale(), Atelier().txt_PrixVente.Stale());
    EXPECT_EQ(Atelier().txt_PrixCoûtantTotal.Stale(), Atelier().txt_PrixVente.Stale());
    return Atelier().txt_PrixVente.Stale;
}

std::string PetitDossier::Visibles()
{
    std::vector<std::string> Noms;
    for (const Screen* Each : App.Feuilles.Stack())
        Noms.push_back(Each->Name());
    const Screen* Plus = App.Feuilles.Stack().empty() ? nullptr : App.Feuilles.Stack().back();
    EXPECT_EQ(App.Feuilles.Active(), Plus) << "the highest is the active one";
    return Jointes(Noms);
}

std::string PetitDossier::Lire(const std::string& Fichier, const std::string& Requête,
                               const std::string& Colonnes)
{
    Store Bases;
    const Database Base = Bases.Open(Dossier / Fichier);
    std::string Résultat;
    for (Recordset Lues = Base.OpenRecordset(Requête); !Lues.Eof(); Lues.MoveNext()) {
        std::vector<std::string> Cellules;
        for (const std::string& Colonne : Couper(Colonnes, '|'))
            Cellules.push_back(Lues.TextOrEmpty(Colonne));
        Résultat += (Résultat.empty() ? "" : " / ") + Jointes(Cellules);
    }
    return Résultat;
}

void PetitDossier::Modifier(const std::string& Fichier, const std::string& Sql)
{
    SQLite::Database((Dossier / Fichier).string(), SQLite::OPEN_READWRITE).exec(Sql);
}

void PetitDossier::Perdre(const std::string& Fichier)
{
    fs::remove(Dossier / Fichier);
    Boîtes.ExpectMsgBox("La base de données «\u00A0" + Fichier +
                        "\u00A0» est introuvable.\n"
                        "Replacez le fichier à côté du programme.");
}

} // namespace orvane
