#include "settings/frm_configuration.h"
#include "toolkit/placing.h"

// Where the controls of frm_Configuration stand and what they say until a skin moves them.
namespace orvane {

namespace {

constexpr int Step = 28; // from one row of boxes to the next
constexpr int High = 23; // a box, and the label beside it

struct Row
{
    Label* Name;
    const char* Words;
    RéglagesArtisanat Boxes;
    int X; // of the group
    int Y;
};

void PlaceRow(const Row& Each)
{
    constexpr int NameWide = 116;
    constexpr int BoxWide = 84;
    constexpr int ToNextBox = 96;
    if (Each.Name != nullptr)
        PlaceLabel(*Each.Name, Each.Words, {Each.X + 16, Each.Y, NameWide, High});
    int X = Each.X + 16 + NameWide;
    for (TextBox* Box : {Each.Boxes.Niveau, Each.Boxes.Marge, Each.Boxes.Essai}) {
        if (Box != nullptr)
            Place(*Box, {X, Each.Y, BoxWide, High});
        X += ToNextBox;
    }
}

void PlaceColumnTitle(Label& Which, const char* Words, int X, int Y)
{
    PlaceLabel(Which, Words, {X, Y, 84, 18}, Alignment::Centre);
    Which.FontSize = 8;
}

} // namespace

void frm_Configuration::Définir()
{
    constexpr int LeftX = 16;
    constexpr int RightX = 468;
    SizeScreen(*this, 920, 560);
    Place(img_Bannière, {160, 12, 600, 64});

    PlacePanel(Shape7, {LeftX, 86, 436, 30});
    PlacePanel(Shape8, {RightX, 86, 436, 30});
    PlacePanel(Shape1, {LeftX, 124, 436, 186});  // manual crafts
    PlacePanel(Shape2, {LeftX, 318, 436, 126});  // magic crafts
    PlacePanel(Shape3, {RightX, 124, 436, 186}); // secondary crafts
    PlacePanel(Shape4, {RightX, 318, 436, 126}); // legendary weapons
    PlacePanel(Shape5, {LeftX, 452, 660, 92});   // skin and resolution
    PlacePanel(Shape6, {684, 452, 220, 92});

    PlaceHeading(Label11, "Niveau des Artisans", {LeftX + 14, 89, 400, 24});
    PlaceHeading(Label15, "Marges à appliquer (en %)", {RightX + 14, 89, 400, 24});
    PlaceHeading(Label12, "Artisanats manuels", {LeftX + 14, 130, 190, 24});
    PlaceHeading(Label13, "Artisanats magiques", {LeftX + 14, 324, 190, 24});
    PlaceHeading(Label14, "Artisanats secondaires", {RightX + 14, 130, 190, 24});
    PlaceHeading(Label24, "Marges à appliquer (en %), armes légendaires",
                 {RightX + 14, 324, 400, 24});
    PlaceHeading(Label20, "Changer l'habillage du logiciel", {LeftX + 14, 456, 400, 24});

    PlaceColumnTitle(Label16, "Premier jet", LeftX + 228, 152);
    PlaceColumnTitle(Label17, "Essai", LeftX + 324, 152);
    PlaceColumnTitle(Label19, "Premier jet", LeftX + 228, 346);
    PlaceColumnTitle(Label18, "Essai", LeftX + 324, 346);
    PlaceColumnTitle(Label27, "Premier jet", RightX + 228, 152);
    PlaceColumnTitle(Label22, "Premier jet", RightX + 228, 362);
    PlaceColumnTitle(Label23, "Essai", RightX + 324, 362);
    DéfinirRéglages();

    PlaceLabel(Label21, "Liste des Skins", {LeftX + 16, 482, 200, 20});
    Place(cbo_Skin, {LeftX + 16, 506, 300, 24});
    PlaceLabel(Label25, "Résolution", {LeftX + 340, 482, 200, 20});
    Place(cbo_Résolution, {LeftX + 340, 506, 300, 24});
    cbo_Skin.Sorted = true;
    cbo_Résolution.Sorted = true;

    PlaceButton(cmd_Validation, "Valider", "Enregistrer les réglages du royaume et fermer",
                {708, 474, 172, 48});
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
    constexpr int LeftX = 16;
    constexpr int RightX = 468;
    const auto Boxes = Réglages();
    const std::vector<Row> Rows{
        {&LabelMétier[4], "Armurerie :", Boxes[0], LeftX, 172},
        {&LabelMétier[2], "Couture :", Boxes[1], LeftX, 172 + Step},
        {&LabelMétier[5], "Empennage :", Boxes[2], LeftX, 172 + 2 * Step},
        {&LabelMétier[6], "Forge :", Boxes[3], LeftX, 172 + 3 * Step},
        {&LabelMétier[1], "Alchimie :", Boxes[4], LeftX, 366},
        {&LabelMétier[3], "Arcanes :", Boxes[5], LeftX, 366 + Step},
        {&LabelMétier[9], "Maroquinerie :", Boxes[6], RightX, 172},
        {&LabelMétier[7], "Menuiserie :", Boxes[7], RightX, 172 + Step},
        {&LabelMétier[8], "Métallurgie :", Boxes[8], RightX, 172 + 2 * Step},
        {&LabelMétier[10], "Tissage :", Boxes[9], RightX, 172 + 3 * Step},
        {nullptr, "", Boxes[10], RightX, 382},
    };
    for (const Row& Each : Rows) {
        PlaceRow(Each);
        if (Each.Boxes.Niveau != nullptr)
            Each.Boxes.Niveau->StartWith("1");
        for (TextBox* Marge : {Each.Boxes.Marge, Each.Boxes.Essai})
            if (Marge != nullptr)
                Marge->StartWith("0");
        for (TextBox* Box : {Each.Boxes.Niveau, Each.Boxes.Marge, Each.Boxes.Essai})
            if (Box != nullptr)
                Box->OpenFor(NumberKind::Entier16);
    }
}

} // namespace orvane
