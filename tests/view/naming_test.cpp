#include "toolkit/forms.h"
#include "toolkit/placing.h"
#include "view/naming.h"

#include <gtest/gtest.h>

namespace orvane {

namespace {

// A bill of materials: a heading, and rows "name x count = price" below it.
class frm_Liste : public Screen
{
  public:
    explicit frm_Liste(Forms& Owner) : Screen(Owner, "frm_Liste", "")
    {
        PlacePanel(shp_Cadre, {0, 0, 500, 200});
        PlaceLabel(lbl_Titre, "Matériaux", {10, 10, 300, 24});
        Place(txt_Nom, {10, 40, 200, 24});
        PlaceLabel(lbl_Fois, "x", {215, 40, 10, 24});
        Place(txt_Nombre, {230, 40, 40, 24});
        PlaceLabel(lbl_Prix, "Prix coûtant\u00A0:", {300, 80, 90, 24});
        Place(txt_Prix, {395, 80, 60, 24});
        Place(txt_Seul, {300, 120, 60, 24});
        PlaceLabel(lbl_Dehors, "Dehors :", {420, 300, 90, 24});
        Place(txt_Dehors, {520, 300, 60, 24});
        Place(txt_Loin, {700, 300, 60, 24});
    }
    Shape NAMED(shp_Cadre);
    Label NAMED(lbl_Titre);
    Label NAMED(lbl_Fois);
    Label NAMED(lbl_Prix);
    Label NAMED(lbl_Dehors);
    TextBox NAMED(txt_Nom);
    TextBox NAMED(txt_Nombre);
    TextBox NAMED(txt_Prix);
    TextBox NAMED(txt_Seul);
    TextBox NAMED(txt_Dehors);
    TextBox NAMED(txt_Loin);
};

} // namespace

class NamesOfInputs : public ::testing::Test
{
  protected:
    std::string Of(const Control& Which) { return NamesBeside(Liste)[&Which]; }

    Forms TheForms;
    frm_Liste Liste{TheForms};
};

TEST_F(NamesOfInputs, TheLabelAtTheLeftWithoutItsColon)
{
    EXPECT_EQ(Of(Liste.txt_Prix), "Prix coûtant");
    EXPECT_EQ(Of(Liste.txt_Dehors), "Dehors");
}

TEST_F(NamesOfInputs, BoxesBehindSignsAreNamedAfterTheFirstOfTheirRow)
{
    EXPECT_EQ(Of(Liste.txt_Nom), "Matériaux") << "the heading above";
    EXPECT_EQ(Of(Liste.txt_Nombre), "Matériaux, quantité");
    Liste.lbl_Fois.Caption = "=";
    Liste.lbl_Titre.Visible = false;
    PlaceLabel(Liste.lbl_Dehors, "Gemme :", {0, 40, 10, 24});
    EXPECT_EQ(Of(Liste.txt_Nombre), "Gemme, prix");
}

TEST_F(NamesOfInputs, AHiddenBoxTakesNoLabelAway)
{
    Liste.txt_Prix.Visible = false;
    EXPECT_EQ(Of(Liste.txt_Seul), "Prix coûtant");
}

TEST_F(NamesOfInputs, ALabelThatNamesANeighbourIsNoHeading)
{
    EXPECT_EQ(Of(Liste.txt_Seul), "Matériaux") << "not the label of the price above it";
}

TEST_F(NamesOfInputs, AnotherInputInBetweenKeepsALabelAway)
{
    EXPECT_EQ(Of(Liste.txt_Loin), "");
}

TEST_F(NamesOfInputs, AHiddenLabelNamesNothing)
{
    Liste.lbl_Dehors.Visible = false;
    EXPECT_EQ(Of(Liste.txt_Dehors), "");
}

} // namespace orvane
