#include "support/contenu.h"
#include "support/fichier.h"

// Rows of the magic crafts. In both catalogues the rows stand in another order than their names.
namespace orvane {

void AjouterMagie(Fichier& Alchimie)
{
    Alchimie.Remplir("Produits", "Num|Nom", {"2|Teintures", "3|Effets à déclenchement"});
    Alchimie.Remplir(
        "ProduitsDétaillés", "Num|Produit|Nom",
        {"2|2|Étoffes", "3|3|Effets d'armure", "4|3|Effets d'arme", "5|3|Charges", "6|3|Bombes"});
    Alchimie.Remplir("Effets", "Num|Nom", {"1|Teinte", "2|Brûlure"});
    Alchimie.Remplir("Matériaux", "Num|Nom|Prix|Valdren|Corvane|Brenmoor",
                     {"7|cobalt|12,5|x|x|x", "8|garance|5|x|x|x", "9|cendre fine|1,2345|x|x|x",
                      "10|eau|0|x|x|x", "11|brume*|3| du nord| du sud| de l'est",
                      "12|Barres de métal trempé*|10| au dyr| à l'obric| au ferron",
                      "13|suif|2,5|x|x|x"});
    const char* const Aucun = "5|5|5|5|5|0|0|0|0|0|"; // of lines 2 to 6
    std::vector<std::string> Objets{
        std::string("2|Gris cendre|495|1||9|") + Aucun + "2|1 h|N/A|feu|3||1|0",
        "2|Bleu roi|516|12|essence.gif|7|8|5|5|5|5|5|0|0|0|0|1|N/A|12|N/A|N/A||1|7,5",
        "2|Vert d'eau|510|2||7|10|8|10|13|9|4|2|3|2|10|1|N/A|N/A|N/A|N/A||1|2",
        std::string("4|Lame de feu et de glace|510|5|absent.gif|11|") + Aucun +
            "2|5 s|9|N/A|4|Souffle|1|1",
        std::string("4|Lame de feu|516|20|essence.gif|11|") + Aucun +
            "2|5 s|9|N/A|4|Huile ardente|2|1",
        std::string("4|Lame à épine|520|5|essence.gif|11|") + Aucun + "2|5 s|9|N/A|4||1|1",
        "3|Huile ardente|516|7|essence.gif|12|13|5|5|5|5|2|0|0|0|0|2|1|1|1|1|Souffle|4|1",
        "3|Souffle|495|7||11|2|3|4|5|5|4|2|4|0|0|2|1|1|1|1||1|1"};
    Alchimie.Remplir("ListeObjets",
                     "ProduitDétaillé|Nom|NiveauCraft|Niveau|Icône|Mat1|Mat2|Mat3|Mat4|Mat5|Mat6|"
                     "Qté2|Qté3|Qté4|Qté5|Qté6|Effet|Durée|Valeur|Résistance|Charges|NomObjet|"
                     "NbObjet|Revente",
                     Objets);
}

void FaireArcanes(Fichier& Royaume)
{
    Royaume.Remplir("Arcanes_Produits", "Num|Nom",
                    {"1|Gemmes de veille", "2|Gemmes pour trophés", "3|Gemmes de zèle"});
    Royaume.Remplir("Arcanes_ProduitsDétaillés", "Num|Produit|Nom",
                    {"1|1|Simple", "2|1|Eclatant", "3|1|Délicat", "4|3|Eclatante", "5|3|Délicate",
                     "6|2|Chasse", "7|3|Claire", "8|1|Double"});
    Royaume.Remplir("Arcanes_Bonus", "Num|Nom|Degré",
                    {"1|Atouts|3", "2|Résistances|2", "3|Exploits|1"});
    Royaume.Remplir(
        "Degrés_Arcanes", "NuméroDegré|DegréType1|DegréType2|DegréType3|PrixRevente",
        {"0|brute|brut|premier|5", "3|taillée|taillé|deuxième|30", "1|polie|poli|troisième|12,5"});
    Royaume.Remplir("Matériaux_Arcanes", "Num|Nom|Prix|Degré",
                    {"1|gangue|8|0", "2|cristal|30|3", "3|quartz|0|1", "4|poudre|10|",
                     "5|fil d'argent|12,5|", "6|larme|0|", "7|braise|1,25|", "8|corail|2|",
                     "9|encre|0,3333|"});
    Royaume.Remplir("Arcanes_ListeObjets",
                    "ProduitDétaillé|TypeBonus|Bonus|Icône|NiveauCraft|Mat1|Mat2|Mat3|Mat4|Mat5|"
                    "CoefQté2|QtéSup|NomObjet|NbObjet",
                    {"1|2|Feu|essence.gif|1|4|5||||2|0||1", "2|2|Glace||216|4|5|6|7|8|2|2|Claire|3",
                     "3|2|Ombre||1|4|5|6|7|8|0|2||1", "4|1|Force||1|4|5|6|7|8|2|2||1",
                     "5|1|Grâce||1|4|5|6|7|8|0|2||1", "6|3|Ours||1|4|5|6|7|8|0|3||1",
                     "7|1|Sagesse|essence.gif|516|9|9|5|8|7|1|4||1", "8|1|Éveil||1|4|5||||2|0||1"});
}

} // namespace orvane
