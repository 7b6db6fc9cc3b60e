#pragma once

#include "support/petit_dossier.h"

#include <sstream>

namespace orvane {

// A screen with one control of each kind, all alike.
class frm_Épreuve : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_Épreuve";

    explicit frm_Épreuve(Application& App) : Feuille(App, ScreenName, "Épreuve")
    {
        Width = 100;
        Height = 200;
        Remettre();
    }

    void Remettre()
    {
        lin_Trait.X1 = 5;
        lin_Trait.X2 = 6;
        lin_Trait.Y1 = 7;
        lin_Trait.Y2 = 8;
        lin_Trait.BorderColor = Colour{9};
        shp_Cadre.BorderColor = Colour{9};
        for (Control* Each : Controls()) {
            Each->Left = 1;
            Each->Top = 2;
            Each->Width = 3;
            Each->Height = 4;
            Each->FontSize = 8.25;
            Each->ForeColor = Colour{7};
        }
    }

    Line NAMED(lin_Trait);
    Shape NAMED(shp_Cadre);
    Label NAMED(lbl_Mot);
    TextBox NAMED(txt_Case);
    ComboBox NAMED(cbo_Choix);
    ListBox NAMED(lst_Liste);
    PictureBox NAMED(pct_Vue);
    Image NAMED(img_Vue);
    Button NAMED(cmd_Agir);
    SideMenu NAMED(Bar_Menus);
};

// What the layout may move: box, font, colours, a line's ends.
inline std::string Géométrie(const Control& Contrôle)
{
    std::ostringstream Flux;
    Flux << Contrôle.Left() << ' ' << Contrôle.Top() << ' ' << Contrôle.Width() << ' '
         << Contrôle.Height() << ", " << Contrôle.FontSize() << " pt, "
         << Contrôle.ForeColor().Number;
    if (const auto* Cadre = dynamic_cast<const Shape*>(&Contrôle))
        Flux << ", bord " << Cadre->BorderColor().Number;
    if (const auto* Trait = dynamic_cast<const Line*>(&Contrôle))
        Flux << ", bord " << Trait->BorderColor().Number << ", bouts " << Trait->X1() << ' '
             << Trait->X2() << ' ' << Trait->Y1() << ' ' << Trait->Y2();
    return Flux.str();
}

// A run in "Velours" at "1024 x 768" whose skins know frm_Épreuve too; it is the eleventh screen.
class DansLaSkin : public PetitDossier
{
  protected:
    static std::string Base(const std::string& Skin)
    {
        return "Skins/" + Skin + "/" + Skin + ".mdb";
    }

    void FaireÉpreuve()
    {
        for (const std::string Skin : {"Velours", "Ardoise"})
            for (const std::string Sous : {"1024x768", "800x600", "Commun"})
                Modifier(Base(Skin),
                         "CREATE TABLE [frm_Épreuve_" + Sous +
                             "] AS SELECT * FROM frm_Panier_Commun;"
                             "UPDATE [frm_Épreuve_" +
                             Sous +
                             "] SET NomControl = 'frm_Épreuve';"
                             "DELETE FROM RésolutionCommune WHERE Nom = 'frm_Épreuve';"
                             "INSERT INTO RésolutionCommune VALUES ('frm_Épreuve', 'N')");
        App.Feuilles.Register("frm_Épreuve", [this] { return std::make_unique<frm_Épreuve>(App); });
        App.Feuilles.Touch("frm_Épreuve");
    }

    frm_Épreuve& Épreuve() { return App.Feuilles.Get<frm_Épreuve>(); }

    // A row of a layout table. Flags: position, width, height, font, colour; - is a null. Values:
    // left, top, width, height, font, colour.
    void Tracer(const std::string& Skin, const std::string& Table, int Num, const std::string& Nom,
                const std::string& Drapeaux,
                const std::string& Valeurs = "10, 20, 30, 40, 12.5, 255")
    {
        std::string Lettres;
        for (const char Drapeau : Drapeaux)
            Lettres += Drapeau == '-' ? ", NULL" : std::string(", '") + Drapeau + "'";
        Modifier(Base(Skin),
                 "INSERT INTO [" + Table +
                     "] (Num, NomControl, ChangeLeftTop, ChangeWidth, ChangeHeight, "
                     "ChangeFontSize, ChangeColor, [Left], Top, Width, Height, FontSize, Color) "
                     "VALUES (" +
                     std::to_string(Num) + ", '" + Nom + "'" + Lettres + ", " + Valeurs + ")");
    }

    void Valider(const std::string& Skin, const std::string& Résolution)
    {
        Door.Click(Accueil().cmd_Configuration);
        Door.Pick(Réglages().cbo_Skin, Skin);
        Door.Pick(Réglages().cbo_Résolution, Résolution);
        Door.Click(Réglages().cmd_Validation);
    }

    // The file of a picture, from the folder of the skins.
    std::string Fichier(const Picture& Image) const
    {
        return Image.IsEmpty() ? "" : Image.File.lexically_relative(Dossier / "Skins").string();
    }
};

} // namespace orvane
