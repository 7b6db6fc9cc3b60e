#include "skins/capture.h"

#include "app/queries.h"
#include "base/number_text.h"

namespace orvane {

namespace {

void Position(Recordset& Temp, const Control& Contrôle)
{
    Temp.Set("ChangeLeftTop", "O");
    Temp.Set("Left", std::int64_t{Contrôle.Left()});
    Temp.Set("Top", std::int64_t{Contrôle.Top()});
}

void Couleur(Recordset& Temp, Colour Valeur)
{
    Temp.Set("ChangeColor", "O");
    Temp.Set("Color", std::int64_t{Valeur.Number});
}

void Police(Recordset& Temp, const Control& Contrôle)
{
    Temp.Set("ChangeFontSize", "O");
    Temp.Set("FontSize", TextOfDouble(Contrôle.FontSize));
}

void Largeur(Recordset& Temp, int Twips)
{
    Temp.Set("ChangeWidth", "O");
    Temp.Set("Width", std::int64_t{Twips});
}

void Hauteur(Recordset& Temp, int Twips)
{
    Temp.Set("ChangeHeight", "O");
    Temp.Set("Height", std::int64_t{Twips});
}

// A line's four ends travel in the four geometry columns.
void Trait(Recordset& Temp, const Line& Contrôle)
{
    Temp.Set("ChangeLeftTop", "O");
    Temp.Set("Left", std::int64_t{Contrôle.X1()});
    Temp.Set("Top", std::int64_t{Contrôle.X2()});
    Couleur(Temp, Contrôle.BorderColor);
    Temp.Set("ChangeWidth", "N");
    Temp.Set("Width", std::int64_t{Contrôle.Y1()});
    Temp.Set("ChangeHeight", "N");
    Temp.Set("Height", std::int64_t{Contrôle.Y2()});
}

void Récupérer(Recordset& Temp, const Control& Contrôle)
{
    switch (Contrôle.Kind()) {
    case ControlKind::Line:
        Trait(Temp, static_cast<const Line&>(Contrôle));
        break;
    case ControlKind::Shape:
        Position(Temp, Contrôle);
        Couleur(Temp, static_cast<const Shape&>(Contrôle).BorderColor);
        Largeur(Temp, Contrôle.Width);
        Hauteur(Temp, Contrôle.Height);
        break;
    case ControlKind::Label:
    case ControlKind::TextBox:
    case ControlKind::ComboBox:
        Position(Temp, Contrôle);
        Couleur(Temp, Contrôle.ForeColor);
        Police(Temp, Contrôle);
        Largeur(Temp, Contrôle.Width);
        if (Contrôle.Kind() != ControlKind::ComboBox) // its height is its own
            Hauteur(Temp, Contrôle.Height);
        break;
    case ControlKind::PictureBox:
    case ControlKind::Image:
        Position(Temp, Contrôle);
        break;
    case ControlKind::Button:
        Position(Temp, Contrôle);
        Largeur(Temp, Contrôle.Width);
        Hauteur(Temp, Contrôle.Height);
        break;
    case ControlKind::ListBox:
    case ControlKind::SideMenu:
        break; // their name alone
    }
}

// The base is closed at the end.
void Récupérer(Application& App, const Screen& Feuille)
{
    const Database Base = App.Bases.Open(App.Globals.CheminBaseSkin);
    Recordset Temp = Base.OpenRecordset("SELECT * FROM Temp");
    for (const Control* Contrôle : Feuille.Controls()) {
        Temp.AddNew();
        Temp.Set("NomControl", Contrôle->Name());
        Récupérer(Temp, *Contrôle);
        Temp.Update();
    }
    Temp.AddNew();
    Temp.Set("NomControl", Feuille.Name());
    Largeur(Temp, Feuille.Width);
    Hauteur(Temp, Feuille.Height);
    Temp.Update();
}

} // namespace

void RécupérerRésolution(Application& App)
{
    Forms& Feuilles = App.Feuilles;
    for (int i = 0; i < Feuilles.Count(); ++i)
        App.MsgBox("N°" + std::to_string(i) + " - " + Feuilles[i].Name());
    const auto Choix = Entier16FromText(App.TheDialogs.InputBox("Quelle feuille ?", ProgramTitle));
    if (!Choix || *Choix < 0 || *Choix >= Feuilles.Count()) {
        App.MsgBox("Aucune feuille ne porte ce numéro.");
        return;
    }
    const Screen& Feuille = Feuilles[*Choix];
    Récupérer(App, Feuille);
    App.MsgBox("Récupération de " + Feuille.Name() + " effectuée.");
}

} // namespace orvane
