#include "basket/panier_garni.h"

namespace orvane {

namespace {

class TotauxPanier : public PanierGarni
{
};

} // namespace

TEST_F(TotauxPanier, TheyRunOverAllOrdersAndRealmsWithoutTheCounts)
{
    Garnir({"'Arc', 7, 10, 12, 'Valdren', 'Nouvelle commande'",
            "'Bâton', 9, 20, -24, 'Corvane', 'Zoé'"});
    EXPECT_EQ(TotauxDuPanier(), "30 | -12");
    Door().Pick(Panier().cbo_Commandes, "Zoé");
    EXPECT_EQ(TotauxDuPanier(), "0 | 0") << "a pick works no total out";
    ChangerDeRoyaume(Accueil().img_Brenmoor);
    EXPECT_EQ(Montrées(), "");
    EXPECT_EQ(TotauxDuPanier(), "30 | -12");
}

TEST_F(TotauxPanier, FourDecimalsAddUpExactly)
{
    Garnir({"'Arc', 1, 0.005, 0.1, 'Valdren', 'Zoé'", "'Arc', 1, 0.005, 0.2, 'Valdren', 'Zoé'"});
    EXPECT_EQ(TotauxDuPanier(), "0,01 | 0,3");
}

TEST_F(TotauxPanier, GreatAndSmallAmountsTogether)
{
    Garnir(
        {"'Arc', 1, 900000000000, 0, 'Valdren', 'Zoé'", "'Arc', 1, 0.0001, 0, 'Valdren', 'Zoé'"});
    EXPECT_EQ(TotauxDuPanier(), "900000000000,0001 | 0");
}

TEST_F(TotauxPanier, ARowWithoutAPriceCountsNothing)
{
    Garnir({"'Arc', 1, NULL, 12, 'Valdren', 'Nouvelle commande'",
            "'Bâton', 1, 20, NULL, 'Valdren', 'Nouvelle commande'"});
    EXPECT_EQ(TotauxDuPanier(), "20 | 12");
    EXPECT_EQ(Montrées(), "Arc 1  12 | Bâton 1 20 ");
}

} // namespace orvane
