#include "basket/copies.h"
#include "basket/shopping_list.h"
#include "basket/small_basket.h"

#include <array>

namespace orvane {

class ShoppingListTest : public BasketTest
{
  protected:
    // "lin 5 à 2 = 10, j'ai 3, reste 2 ✓" of each row.
    std::string Read(const Portée& Which)
    {
        List.Lire(Which);
        return Rows();
    }
    std::string Rows() const
    {
        std::string Text;
        for (const LigneAchat& Each : List.Lignes())
            Text += (Text.empty() ? "" : " / ") + Each.Matériau + " " + Each.Quantité + " à " +
                    Each.PrixUnitaire + " = " + Each.Prix + ", j'ai " + Each.Possédé + ", reste " +
                    Each.Reste +
                    std::array{"", " (✓)", " ✓"}[static_cast<std::size_t>(Each.Cochée)];
        return Text;
    }
    std::string Sums() const { return List.Sommes().Prix + ", reste " + List.Sommes().Reste; }

    ListeDAchats List{TheStore, File};
    const Portée All;
    const Portée OfZoé{"Zoé", {}};
};

TEST_F(ShoppingListTest, OneRowForEachNameInFrenchOrderOverTheObjectsOfTheScope)
{
    Add("Zoé", "Robe", {Of("Étain", "4", "2"), Of("fer", "0,5", "1,2"), Of("étain", "2", "1")});
    Add("Zoé", "Cape", {Of("Étain", "3", "10"), Of("zinc", "2", "0"), Of("bois", "0", "0")},
        "Corvane");
    Add("Maël", "Arc", {Of("fer", "1", "9")});
    EXPECT_EQ(Read(OfZoé),
              "Étain 9 à  = 13, j'ai , reste 9 / fer 0,5 à 2,4 = 1,2, j'ai , reste 0,5 "
              "/ zinc 2 à 0 = 0, j'ai , reste 2");
    EXPECT_EQ(List.Lignes()[0].Détail,
              "Robe (Valdren)\u00A0: 4 à 0,5\nRobe (Valdren)\u00A0: 2 à 0,5\n"
              "Cape (Corvane)\u00A0: 3 à 3,3333");
    EXPECT_EQ(List.Lignes()[2].Détail, "Cape (Corvane)\u00A0: 2, prix inconnu");
    EXPECT_TRUE(List.Lignes()[2].SansPrix);
    EXPECT_EQ(Sums(), "14,2, reste 14,2");
    EXPECT_EQ(Read({"Zoé", "Valdren"}), "Étain 6 à 0,5 = 3, j'ai , reste 6 "
                                        "/ fer 0,5 à 2,4 = 1,2, j'ai , reste 0,5");
    EXPECT_EQ(Read({{}, "Valdren"}), "Étain 6 à 0,5 = 3, j'ai , reste 6 "
                                     "/ fer 1,5 à  = 10,2, j'ai , reste 1,5");
    EXPECT_EQ(List.Lignes()[1].Détail, "Robe (Zoé)\u00A0: 0,5 à 2,4\nArc (Maël)\u00A0: 1 à 9");
    EXPECT_EQ(List.Sommes().PrixCoûtant.Texte + " " + List.Sommes().PrixVente.Texte, "20 25");
    EXPECT_EQ(Read({"Personne", {}}), "");
}

TEST_F(ShoppingListTest, WhatOneHasAndTicksIsKeptAndEveryListOfTheObjectAgrees)
{
    Add("Zoé", "Robe", {Of("lin", "4", "8"), Of("fil", "3", "9")});
    Add("Zoé", "Cape", {Of("lin", "6", "12")}, "Corvane");
    Read(OfZoé);
    EXPECT_TRUE(List.Posséder(1, "5"));
    List.Cocher(0, true);
    EXPECT_EQ(Rows(), "fil 3 à 3 = 9, j'ai , reste 0 ✓ / lin 10 à 2 = 20, j'ai 5, reste 5");
    EXPECT_EQ(Sums(), "29, reste 10"); // five linens
    for (const char* Wrong : {"-1", "deux", " ", "922337203685478"})
        EXPECT_FALSE(List.Posséder(1, Wrong)) << Wrong;
    ListeDAchats Another(TheStore, File);
    Another.Lire(OfZoé);
    EXPECT_EQ(Another.Lignes(), List.Lignes());
    EXPECT_EQ(Read({"Zoé", "Corvane"}), "lin 6 à 2 = 12, j'ai 1, reste 5"); // the dress has four
    List.Cocher(0, true);
    EXPECT_EQ(Read(All), "fil 3 à 3 = 9, j'ai , reste 0 ✓ / lin 10 à 2 = 20, j'ai 5, reste 0 (✓)");
    // More of it isn't ticked; another name for the order changes nothing.
    Add("Zoé", "Béret", {Of("fil", "2", "6")});
    Raw("Panier.mdb", "UPDATE PanierGlobal SET Acheteur = 'Maël'");
    EXPECT_EQ(Read({"Maël", {}}),
              "fil 5 à 3 = 15, j'ai , reste 2 (✓) / lin 10 à 2 = 20, j'ai 5, reste 0 (✓)");
    EXPECT_EQ(Sums(), "35, reste 6");
    EXPECT_TRUE(List.Posséder(0, "4")); // three for what is ticked, one of two for the rest
    EXPECT_TRUE(List.Posséder(1, ""));
    List.Cocher(1, false);
    EXPECT_EQ(Rows(), "fil 5 à 3 = 15, j'ai 4, reste 1 (✓) / lin 10 à 2 = 20, j'ai , reste 10");
    EXPECT_TRUE(List.Posséder(1, "12"));
    EXPECT_EQ(List.Lignes()[1].Reste, "0");
    EXPECT_EQ(Sums(), "35, reste 3");
}

TEST_F(ShoppingListTest, WhatOneHasStaysWithTheOrderWhenAnObjectGoes)
{
    for (const char* Object : {"Robe", "Cape"})
        Add("Zoé", Object, {Of("lin", "4", "8")});
    Add("Zoé", "Toge", {Of("lin", "4", "8")}, "Corvane");
    Read({"Zoé", "Valdren"});
    List.Posséder(0, "7");
    SupprimerLigne(TheStore.Open(File), "2");
    EXPECT_EQ(Read({"Zoé", "Valdren"}), "lin 4 à 2 = 8, j'ai 7, reste 0");
    SupprimerLigne(TheStore.Open(File), "1"); // that of another realm is another linen
    EXPECT_EQ(Read(OfZoé), "lin 4 à 2 = 8, j'ai , reste 4");
    SupprimerCommande(TheStore.Open(File), "Zoé");
    EXPECT_EQ(Cells("SELECT count(*) FROM PanierMatériaux"), "0");
}

TEST_F(ShoppingListTest, WhatWasDeletedComesBackWithAllThatItHeld)
{
    Raw("Panier.mdb", "ALTER TABLE PanierGlobal ADD COLUMN Note TEXT");
    for (const char* Object : {"Robe", "Cape"})
        Add("Zoé", Object, {Of("lin", "4", "8"), Of("fil", "1", "3")});
    Raw("Panier.mdb", "UPDATE PanierGlobal SET Note = 'pour lundi', Nb = NULL WHERE Num = 1");
    Read(OfZoé);
    List.Posséder(1, "6");
    List.Cocher(0, true);
    const auto Stored = [&] {
        return Cells("SELECT group_concat(Num || Nom || ifnull(Nb, '-') || ifnull(Note, '-') || "
                     "Acheteur) FROM (SELECT * FROM PanierGlobal ORDER BY Num)") +
               Cells(
                   "SELECT group_concat(Num || ':' || Ligne || Matériau || Quantité || '=' || Prix "
                   "|| ifnull(Possédé, '-') || ifnull(Coché, '-')) "
                   "FROM (SELECT * FROM PanierMatériaux ORDER BY Num)");
    };
    const std::string Before = Stored();
    const LignesSupprimées Robe = SupprimerLigne(TheStore.Open(File), "1");
    EXPECT_EQ(Read(OfZoé), "fil 1 à 3 = 3, j'ai , reste 0 ✓ / lin 4 à 2 = 8, j'ai 6, reste 0");
    const LignesSupprimées Rest = SupprimerCommande(TheStore.Open(File), "zoé");
    EXPECT_EQ(Cells("SELECT count(*) FROM PanierMatériaux"), "0");
    RemettreLignes(TheStore.Open(File), Rest);
    RemettreLignes(TheStore.Open(File), Robe);
    EXPECT_EQ(Stored(), Before);
    // Of what the crafter has, only what is still there comes back.
    const LignesSupprimées Again = SupprimerLigne(TheStore.Open(File), "1");
    Read(OfZoé);
    List.Posséder(1, "1,5");
    RemettreLignes(TheStore.Open(File), Again);
    EXPECT_EQ(Read(OfZoé), "fil 2 à 3 = 6, j'ai , reste 0 ✓ / lin 8 à 2 = 16, j'ai 1,5, reste 6,5");
    // A number that was given again isn't fought over.
    const LignesSupprimées Twice = SupprimerLigne(TheStore.Open(File), "2");
    RemettreLignes(TheStore.Open(File), Twice);
    RemettreLignes(TheStore.Open(File), Twice);
    EXPECT_EQ(Cells("SELECT count(*) || ' ' || count(DISTINCT Num) FROM PanierGlobal"), "3 3");
    EXPECT_EQ(Cells("SELECT count(*) || ' ' || count(DISTINCT Num) FROM PanierMatériaux"), "6 6");
}

TEST_F(ShoppingListTest, RowsOfBeforeAndFiguresBeyondCountingAreTold)
{
    Raw("Panier.mdb", "INSERT INTO PanierGlobal (Nom, PrixCoûtant, Acheteur, Royaume) VALUES "
                      "('Robe', 5, 'Zoé', 'Valdren'), ('Épée', 'cher', 'Zoé', 'Valdren')");
    for (const char* Object : {"Arc", "Cape"})
        Add("Zoé", Object, {Of("or", "0,0001", "900000000000000")});
    Raw("Panier.mdb", "INSERT INTO PanierMatériaux (Ligne, Matériau, Quantité, Prix) VALUES "
                      "(3, 'plomb', 'deux', 'trois'), (99, 'zinc', 1, 1)");
    EXPECT_EQ(Read(OfZoé), "or 0,0002 à  = , j'ai , reste 0,0002");
    EXPECT_EQ(Sums(), ", reste ");
    EXPECT_EQ(List.SansMatériaux(), "Matériaux inconnus\u00A0: Épée (Valdren), Robe (Valdren).");
    EXPECT_EQ(List.Sommes().PrixCoûtant.Texte, "");
    EXPECT_EQ(List.Sommes().PrixCoûtant.Faute,
              "Le prix de «\u00A0Épée\u00A0» (commande «\u00A0Zoé\u00A0», Valdren) ne peut pas "
              "être compté.");
    Raw("Panier.mdb", "DROP TABLE PanierMatériaux");
    EXPECT_EQ(Read(OfZoé), "");
    EXPECT_EQ(List.SansMatériaux(), "Matériaux inconnus\u00A0: Arc (Valdren), Cape (Valdren), "
                                    "Épée (Valdren), Robe (Valdren).");
    SupprimerLigne(TheStore.Open(File), "1");
    SupprimerCommande(TheStore.Open(File), "zoé");
    EXPECT_EQ(Cells("SELECT count(*) FROM PanierGlobal"), "0");
}

TEST_F(ShoppingListTest, CopiesHoldWhatIsShownAndTheBuyersNoCost)
{
    Add("Zoé", "=2+3", {Of("fil \"d'or\"; fin", "1,5", "-3")});
    Add("Zoé", "Arc\tlong", {Of("-tranchant", "2", "0")}, "Corvane");
    Read(OfZoé);
    EXPECT_EQ(AchatsEnCsv(List), "matériau;quantité;prix unitaire;prix\n'-tranchant;2;0;0\n"
                                 "\"fil \"\"d'or\"\"; fin\";1,5;-2;-3\n");
    EXPECT_EQ(CommandeEnCsv(List), "objet;nombre;prix coûtant;prix de vente;royaume;commande\n"
                                   "'=2+3;2;10;12,5;Valdren;Zoé\n"
                                   "Arc\tlong;2;10;12,5;Corvane;Zoé\n");
    EXPECT_EQ(CopieDesAchats(List),
              "matériau\tquantité\tprix unitaire\tprix\tj’ai\treste à acheter\n"
              "'-tranchant\t2\t0\t0\t\t2\n"
              "fil \"d'or\"; fin\t1,5\t-2\t-3\t\t1,5\n");
    EXPECT_EQ(CopiePourAcheteur(List), "Commande «\u00A0Zoé\u00A0»\n=2+3 × 2\u00A0: 12,5\n"
                                       "Arc\tlong × 2\u00A0: 12,5\nTotal\u00A0: 25\n");
}

} // namespace orvane
