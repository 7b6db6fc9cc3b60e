#include "app/trades.h"
#include "settings/frm_configuration.h"
#include "toolkit/placing.h"

#include <tuple>

// Where the controls of frm_Configuration stand and what they say until a skin moves them.
namespace orvane {

namespace {

constexpr int High = 24; // a box, and the label beside it
constexpr int Step = 28; // from one row of boxes to the next

// Columns, from the left edge of a group.
constexpr int NameX = 16;
constexpr int LevelX = 160;
constexpr int MarginX = 304;
constexpr int TrialX = 412;
constexpr int BoxWide = 92;

constexpr int LeftX = 16;
constexpr int LeftWide = 532;
constexpr int RightX = 560;
constexpr int RightWide = 344;
constexpr int ManualY = 124;
constexpr int MagicY = 278;
constexpr int SecondaryY = 376;
constexpr int FirstRow = 30; // from the top of a group

struct Row
{
    Label* Name;
    const char* Métier;
    int Y;
};

void PlaceRow(const Row& Each, const RéglagesArtisanat& Boxes)
{
    PlaceLabel(*Each.Name, std::string(Each.Métier) + " :",
               {LeftX + NameX, Each.Y, LevelX - NameX, High});
    const std::vector<std::tuple<TextBox*, int, const char*>> Columns{
        {Boxes.Niveau, LevelX, ", niveau"},
        {Boxes.Marge, MarginX, ", marge, premier jet"},
        {Boxes.Essai, TrialX, ", marge, essais"}};
    for (const auto& [Box, X, What] : Columns)
        if (Box != nullptr)
            Place(*Box, {LeftX + X, Each.Y, BoxWide, High}, std::string(Each.Métier) + What);
}

void PlaceColumnTitle(Label& Which, const char* Words, int X, int Y)
{
    PlaceLabel(Which, Words, {X, Y, BoxWide, 20}, Alignment::Centre);
    Which.FontSize = 8;
}

} // namespace

void frm_Configuration::Définir()
{
    SizeScreen(*this, 920, 540);
    Place(img_Bannière, {160, 12, 600, 64});

    PlacePanel(Shape1, {LeftX, 86, LeftWide, 30});
    PlacePanel(Shape2, {LeftX, ManualY, LeftWide, 146});
    PlacePanel(Shape3, {LeftX, MagicY, LeftWide, 90});
    PlacePanel(Shape4, {LeftX, SecondaryY, LeftWide, 146});
    PlacePanel(Shape5, {RightX, 86, RightWide, 110});
    PlacePanel(Shape6, {RightX, 208, RightWide, 160});
    PlacePanel(Shape7, {RightX, 376, RightWide, 146});
    Place(Shape8, {RightX + 40, 404, 264, 90}); // around the one button
    Shape8.BorderColor = Shape7.BorderColor();

    PlaceHeading(Label11, "Niveau des Artisans", {LeftX + 128, 90, 156, High});
    PlaceHeading(Label15, "Marges à appliquer (en %)", {LeftX + MarginX, 90, 220, High});
    PlaceHeading(Label12, "Artisanats manuels", {LeftX + 14, ManualY + 4, 240, High});
    PlaceHeading(Label13, "Artisanats magiques", {LeftX + 14, MagicY + 4, 240, High});
    PlaceHeading(Label14, "Artisanats secondaires", {LeftX + 14, SecondaryY + 4, 240, High});
    PlaceHeading(Label24, "Marges à appliquer (en %), armes légendaires",
                 {RightX + 14, 90, RightWide - 20, High});
    PlaceHeading(Label20, "Changer l'habillage du logiciel", {RightX + 14, 212, 300, High});

    PlaceColumnTitle(Label16, "Premier jet", LeftX + MarginX, ManualY + 8);
    PlaceColumnTitle(Label17, "Essai", LeftX + TrialX, ManualY + 8);
    PlaceColumnTitle(Label19, "Premier jet", LeftX + MarginX, MagicY + 8);
    PlaceColumnTitle(Label18, "Essai", LeftX + TrialX, MagicY + 8);
    PlaceColumnTitle(Label27, "Premier jet", LeftX + MarginX, SecondaryY + 8);
    PlaceColumnTitle(Label22, "Premier jet", RightX + 64, 124);
    PlaceColumnTitle(Label23, "Essai", RightX + 188, 124);
    Place(txt_MargeLégendaires, {RightX + 64, 148, BoxWide, High},
          "Armes légendaires, marge, premier jet");
    Place(txt_EssaiLégendaires, {RightX + 188, 148, BoxWide, High},
          "Armes légendaires, marge, essais");
    DéfinirRéglages();

    PlaceLabel(Label21, "Liste des Skins", {RightX + 16, 240, 200, High});
    Place(cbo_Skin, {RightX + 16, 264, RightWide - 32, High}, "Liste des skins");
    PlaceLabel(Label25, "Résolution", {RightX + 16, 298, 200, High});
    Place(cbo_Résolution, {RightX + 16, 322, RightWide - 32, High}, "Résolution");
    cbo_Skin.Sorted = true;
    cbo_Skin.KeepsTyping = true;
    cbo_Résolution.Sorted = true;
    cbo_Résolution.KeepsTyping = true;

    PlaceButton(cmd_Validation, "Valider", "Enregistrer les réglages du royaume et fermer",
                {RightX + 60, 420, 224, 58}, "Return");
    PlaceButton(cmd_Couleur, "Couleur", "Choisir une couleur et lire son numéro",
                {16, 16, 120, 26});
    PlaceButton(cmd_Récup, "Récup données Résolution", "Capturer la géométrie d’une feuille",
                {16, 46, 136, 26});
    Place(pct_Logo, {860, 20, 48, 48});
    cmd_Couleur.Visible = false;
    cmd_Récup.Visible = false;
    pct_Logo.Visible = false;
}

void frm_Configuration::DéfinirRéglages()
{
    const auto Line = [](int GroupY, int Row) { return GroupY + FirstRow + Row * Step; };
    const std::vector<Row> Rows{
        {&LabelMétier[4], "Armurerie", Line(ManualY, 0)},
        {&LabelMétier[2], "Couture", Line(ManualY, 1)},
        {&LabelMétier[5], "Empennage", Line(ManualY, 2)},
        {&LabelMétier[6], "Forge", Line(ManualY, 3)},
        {&LabelMétier[1], "Alchimie", Line(MagicY, 0)},
        {&LabelMétier[3], "Arcanes", Line(MagicY, 1)},
        {&LabelMétier[9], "Maroquinerie", Line(SecondaryY, 0)},
        {&LabelMétier[7], "Menuiserie", Line(SecondaryY, 1)},
        {&LabelMétier[8], "Métallurgie", Line(SecondaryY, 2)},
        {&LabelMétier[10], "Tissage", Line(SecondaryY, 3)},
    };
    for (const Row& Each : Rows)
        PlaceRow(Each, Réglages(Each.Métier));
    for (const Métier& Each : Métiers) {
        const RéglagesArtisanat Craft = Réglages(Each.Nom);
        if (Craft.Niveau != nullptr)
            Craft.Niveau->Text.StartWith("1");
        for (TextBox* Margin : {Craft.Marge, Craft.Essai})
            if (Margin != nullptr)
                Margin->Text.StartWith("0");
        for (TextBox* Box : {Craft.Niveau, Craft.Marge, Craft.Essai})
            if (Box != nullptr)
                Box->OpenFor(NumberKind::Entier16);
    }
}

} // namespace orvane
