#include "support/secondaires.h"

namespace orvane {

const char* const RangéesSecondaires = R"(BEGIN;
INSERT INTO Artisanat_Liste (Num, Nom) VALUES
  (505, 'Maroquinerie'), (506, 'Menuiserie'), (507, 'Métallurgie'), (508, 'Tissage');
INSERT INTO Secondaire_Produits (Num, Artisanat, Nom, Degré) VALUES
  (1, 508, 'Étoles', 1), (2, 508, 'Coiffe à couronne', 1), (3, 508, 'Couronne tressée', 1),
  (4, 505, 'Sangles', 2), (5, 506, 'Planches', 1), (6, 507, 'Clous', 1);
INSERT INTO Secondaire_ListeObjets
  (Produit, Mat1, Mat2, Mat3, Qté1, Qté2, Qté3, Icône, NiveauCraft,
   PrixReventeDegré0, PrixReventeDegré1, PrixReventeDegré3) VALUES
  (1, '1', '2', '4', 2, 5, 1, 'béret.gif', 50, 12.5, 20, 31),
  (2, '8', '2', '10', 3, 1, 4, NULL, 50, 1, 2, 3), (3, '8', '10', '2', 3, 6, 4, NULL, 50, 1, 2, 3),
  (4, '5', '2', '10', 7, 2, 5, NULL, 50, 1, 2, 3), (5, '1', '10', '10', 1, 0, 0, NULL, 50, 1, 2, 3),
  (6, '1', '10', '10', 1, 0, 0, NULL, 50, 1, 2, 3);
INSERT INTO Matériaux_Classique (Num, Nom, Prix) VALUES
  (601, 'fer', 2.5), (602, 'rivet', 0.25), (603, 'cuir', 4), (604, '(aucun)', 9),
  (605, 'laiton', 0.0333);
INSERT INTO Sellerie_ProduitsDétaillés (Artisanat, Nom) VALUES
  (507, 'LOURD'), (507, 'barde'), (507, 'selle'), (505, 'sac');
INSERT INTO Sellerie_ListeObjets
  (Artisanat, Nom, Icône, Image, PrixRevente, NiveauCraft, Mat1, Mat2, Mat3, Mat4,
   Qté1, Qté2, Qté3, Qté4) VALUES
  (507, 'Mors', NULL, NULL, 5, 50, 601, NULL, 604, 604, 2, 0, 0, 0),
  (507, 'Chanfrein alourdi', NULL, NULL, 5, 70, 601, 602, 603, 605, 2, 4, 1, 3),
  (507, 'Barde lourde', 'carquois.gif', 'béret.gif', 30, 50, 601, 602, 604, 604, 10, 20, 3, 3),
  (507, 'Barde légère', NULL, NULL, 40.5, 60, 601, 602, 603, 604, 4, 4, 2, 5),
  (508, 'Drap de barde', NULL, NULL, 5, 50, 601, 602, 604, 604, 40, 0, 0, 0),
  (505, 'Sacoche', NULL, NULL, 5, 50, 601, 602, 604, 604, 40, 0, 0, 0);
COMMIT)";

} // namespace orvane
