#include "store/catalogue.h"
#include "support/contenu.h"
#include "support/fichier.h"

namespace orvane {

namespace fs = std::filesystem;

namespace {

constexpr int Degrés[] = {0, 1, 3, 4, 7, 8, 9};

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
    for (std::string& Objet : Objets)
        Objet += "||1";
    for (const char* Avec :
         {"Lance supérieure|N|1|10|10|10|10|10|2|0|0|0|0|0|||45|7|16|3|ND|Essence|3",
          "Lance DURABLE|N|1|10|10|10|10|10|1|0|0|0|0|0|||45|7|16|3|ND|Essence|1",
          "Arc supérieur|N|1|10|10|10|10|10|1|0|0|0|0|0|||45|7|16|3|ND|Essence|2",
          "Arc long durable|N|1|10|10|10|10|10|1|0|0|0|0|0|||45|7|16|3|ND|Essence|2"})
        Objets.push_back(std::string("5|") + Avec); // the ones with an extra object
    std::string Revente;
    for (int d = 0; d <= 9; ++d) {
        Colonnes += "|PrixReventeDegré" + std::to_string(d);
        Revente += "|" + std::to_string(4 + d);
    }
    for (std::string& Objet : Objets)
        Objet += Revente;
    Base.Remplir("Classique_ListeObjets", Colonnes, Objets);
}

void FaireArcherie(Fichier& Base)
{
    Base.Remplir("Matériaux_Classique", "Num|Nom|Prix",
                 {"101|hampe|0,5", "102|plume|1", "103|pointe|0,25"});
    Base.Remplir("ArcherieType", "Num|Nom", {"1|Flèches", "2|Carreaux", "3|Billes"});
    Base.Remplir("Archerie", "Num|Type|Nom|NiveauCraft|Icône|Mat1|Mat2|Mat3|Qté1|Qté2|Qté3",
                 {"1|1|simple|310|carquois.gif|101|102|103|3|2|1",
                  "2|1|barbelé|400|absent.gif|101|101|101|1|1|1",
                  "3|2|simple|300|carquois.gif|101|102|103|1|1|1"});
}

} // namespace

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

void FaireAlchimie(const fs::path& Dossier)
{
    Fichier Base(Dossier / "Artisanat_Alchimie.mdb", AlchimieDefinition());
    Base.Remplir("Produits", "Num|Nom", {"1|Essences"});
    Base.Remplir("ProduitsDétaillés", "Num|Produit|Nom", {"1|1|Essences d'arme"});
    Base.Remplir("Matériaux", "Num|Nom|Prix|Valdren|Corvane|Brenmoor",
                 {"1|Barres de métal*|1| dyr| obric| ferron", "2|sel|0,5|x|x|x",
                  "3|cire|0,25|x|x|x", "4|ambre|0,75|x|x|x", "5|(aucun)|0|x|x|x",
                  "6|barres de métal*|1,5|x|x|x"});
    Base.Remplir("ListeObjets",
                 "Num|ProduitDétaillé|Nom|NiveauCraft|Icône|Mat1|Mat2|Mat3|Mat4|Qté2|Qté3|Qté4",
                 {"1|1|Essence de feu d'arme de néthérium|300|essence.gif|1|2|3|5|2|2|0",
                  "2|1|Essence de glace d'arme de néthérium|505||6|2|4|3|2|2|6",
                  "3|1|Essence d'énergie d'arme de néthérium|560||1|2|5|5|3|0|0",
                  "4|1|Essence de feu d'arme d'arcanium|1000|essence.gif|2|3|4|5|2|4|0"});
    AjouterMagie(Base);
    Base.Finir();
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
    FaireArcherie(Base);
    FaireArcanes(Base);
    Base.Finir();
}

} // namespace orvane
