#include "support/legendaires.h"

namespace orvane {

// The first material of the last degree is every gem's: none may stand before it.
const char* const RangéesLégendaires = R"(BEGIN;
INSERT INTO Classique_Produits (Num, Artisanat, Nom, Degré) VALUES
  (501, 3, 'Armes légendaires', 1), (502, 1, 'Armes légendaires', 1);
INSERT INTO Matériaux_ClassiqueType (Num, Nom) VALUES
  (501, 'métal'), (502, 'lien'), (503, '(aucun)'), (504, 'sans prix');
INSERT INTO Matériaux_Classique (Num, Type, Degré, Nom, Prix) VALUES
  (501, 501, 9, 'acier d''aube', 7), (502, 502, 9, 'cuir d''aube', 0.5), (503, 503, 9, '(aucun)', 3),
  (504, NULL, NULL, 'néthérium', 2.5);
INSERT INTO Classique_ListeObjets
  (Num, Nom, Mat1, Mat2, Mat3, Qté1, Qté2, Qté3, NiveauCraft, Icône) VALUES
  (501, 'Glaive nu', '501', '502', '502', 2, 4, 6, 50, 'béret.gif'), -- 14, 2, 3
  (502, 'Hache nue', '501', '502', '503', 1, 2, 1, 5, NULL),         -- 7, 1, 3
  (503, 'Masse nue', '501', '502', '504', 1, 1, 1, 5, NULL);
DELETE FROM Matériaux_Arcanes WHERE Degré = 9;
INSERT INTO Matériaux_Arcanes (Num, Nom, Prix, Degré) VALUES
  (501, 'poussière', 0.25, NULL), (502, 'fil d''argent', 1.5, NULL), (503, 'rubis', 10, 9),
  (504, 'topaze', 99, 9);
INSERT INTO Arcanes_Produits (Num, Nom) VALUES (501, 'Gemmes d''arme');
INSERT INTO Arcanes_ProduitsDétaillés (Num, Produit, Nom) VALUES (501, 501, 'Guerrier');
INSERT INTO Arcanes_Bonus (Num, Nom, Degré) VALUES (501, 'Dégâts', 1);
INSERT INTO Arcanes_ListeObjets
  (Num, ProduitDétaillé, TypeBonus, Bonus, Icône, NiveauCraft, Mat1, Mat2, CoefQté2) VALUES
  (511, 501, 501, 'Feu', 'essence.gif', 6, 501, 502, 3), -- 10, 28 × 0,25, 10 × 1,5
  (512, 501, 501, 'Glace', NULL, 16, 502, 501, 0);       -- 10, 1 × 1,5, 10 × 0,25
INSERT INTO ArmesLégendaires_ListeObjets
  (Num, Artisanat, Nom, NiveauCraft, NiveauObjet, Dps, Vit, Objet, Gemme, NomGemme, Matériau,
   QtéArcanes, QtéTeintures, QtéMat, PrixRevente) VALUES
  (1, 4, 'Lame du couchant', 930, 51, '16,5', '3,2', 501, 511, 'Gemme de feu', 504, 2, 2, 4, 30),
  (2, 4, 'Hache des cendres', 905, 50, '17', '4', 502, 512, 'Gemme de glace', 504, 1, 5, 2, 200),
  (3, 4, 'Masse perdue', 905, 50, '17', '4', 503, 512, 'Gemme de glace', 504, 1, 5, 2, 200),
  (4, 3, 'Arc des brumes', 310, 50, '17', '4', 502, 512, 'Gemme de glace', 504, 1, 5, 2, 200),
  (5, 1, 'Bouclier des dunes', 410, 50, '17', '4', 502, 512, 'Gemme de glace', 504, 1, 5, 2, 200);
INSERT INTO ArmesLégendaires_Type (Num, Nom, Teinture, ObjetSpécial, TypeDégât) VALUES
  (1, 'du néant', 599, 'Rien', 'Vide'), (2, 'de brume', 501, 'Larme de givre', 'Froid'),
  (3, 'd''aube', 502, 'Plume de phénix', 'Feu');
INSERT INTO ArmesLégendaires_Images (Arme, Type, Image, Icône) VALUES
  (1, 2, 'béret.gif', 'carquois.gif'), (1, 3, NULL, NULL), (2, 3, 'béret.gif', 'béret.gif'),
  (1, 1, NULL, NULL), (3, 3, NULL, NULL);
COMMIT)";

const char* const RangéesTeintures = R"(BEGIN;
INSERT INTO Produits (Num, Nom) VALUES (501, 'Teintures d''arme');
INSERT INTO ProduitsDétaillés (Num, Produit, Nom) VALUES (501, 501, 'Teintures d''arme');
INSERT INTO Matériaux (Num, Nom, Prix, Valdren, Corvane, Brenmoor) VALUES
  (501, 'carmin*', 1.5, ' des prés', ' des monts', ' des dunes'), (502, 'alun*', 0.25, 'x', 'x', 'x'),
  (503, 'suc*', 2, 'x', 'x', 'x'), (504, 'noix*', 1, '', ' dure', ' verte');
INSERT INTO ListeObjets
  (Num, ProduitDétaillé, Nom, NiveauCraft, Icône, Mat1, Mat2, Mat3, Qté2, Qté3) VALUES
  (501, 501, 'Teinture carmin', 515, 'essence.gif', 501, 502, 503, 4, 3), -- 1,5, 1, 6
  (502, 501, 'Teinture de noix', 495, NULL, 504, 503, 502, 1, 2);         -- 1, 2, 0,5
COMMIT)";

} // namespace orvane
