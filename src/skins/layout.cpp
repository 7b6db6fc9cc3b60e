#include "skins/layout.h"

#include "app/queries.h"
#include "base/failure.h"
#include "base/number_text.h"
#include "base/text.h"
#include "skins/skin_assets.h"

#include <unordered_map>

namespace orvane {

namespace {

bool Vaut(const Recordset& Ligne, std::string_view Drapeau)
{
    return Ligne.TextOrEmpty(Drapeau) == "O";
}

int Twips(const Recordset& Ligne, std::string_view Colonne)
{
    return static_cast<int>(Ligne.Number(Colonne));
}

// A line's four ends travel in the four geometry columns, in this crossing of names.
void Placer(Control& Contrôle, const Recordset& Ligne)
{
    if (auto* Trait = dynamic_cast<Line*>(&Contrôle)) {
        Trait->X1 = Twips(Ligne, "Left");
        Trait->X2 = Twips(Ligne, "Top");
        Trait->Y1 = Twips(Ligne, "Width");
        Trait->Y2 = Twips(Ligne, "Height");
    } else {
        Contrôle.Left = Twips(Ligne, "Left");
        Contrôle.Top = Twips(Ligne, "Top");
    }
}

void Colorer(Control& Contrôle, Colour Couleur)
{
    if (Contrôle.Kind() == ControlKind::Label)
        Contrôle.ForeColor = Couleur;
    else if (auto* Cadre = dynamic_cast<Shape*>(&Contrôle))
        Cadre->BorderColor = Couleur;
}

void Appliquer(Control& Contrôle, const Recordset& Ligne)
{
    if (Vaut(Ligne, "ChangeLeftTop"))
        Placer(Contrôle, Ligne);
    if (Vaut(Ligne, "ChangeWidth"))
        Contrôle.Width = Twips(Ligne, "Width");
    if (Vaut(Ligne, "ChangeHeight"))
        Contrôle.Height = Twips(Ligne, "Height");
    if (Vaut(Ligne, "ChangeFontSize"))
        Contrôle.FontSize = Ligne.Number("FontSize");
    if (Vaut(Ligne, "ChangeColor"))
        Colorer(Contrôle, Colour{static_cast<std::int32_t>(Ligne.Number("Color"))});
}

std::string TableDe(Application& App, const Screen& Feuille, const std::string& Résolution)
{
    Variables& Globals = App.Globals;
    const Ouverture Base(App, Globals.BaseDonnées2, Globals.CheminBaseSkin);
    Recordset Ligne = OuvrirEnregistrements2(Globals, "SELECT * FROM RésolutionCommune WHERE Nom=" +
                                                          Quoted(Feuille.Name()));
    Ligne.MoveFirst();
    std::string Table =
        Feuille.Name() + "_" + (Vaut(Ligne, "Commun") ? "Commun" : SansEspaces(Résolution));
    return Table;
}

// The rows of one screen's table, read at once and found by name without regard to case. The first
// row for a name counts, in the order of Num.
class Lignes
{
  public:
    explicit Lignes(Recordset Toutes) : Toutes(std::move(Toutes))
    {
        for (std::size_t i = 0; !this->Toutes.Eof(); this->Toutes.MoveNext(), ++i)
            ParNom.emplace(FoldedCase(this->Toutes.TextOrEmpty("NomControl")), i);
    }

    // On the row of that name, or nothing.
    const Recordset* Pour(const std::string& Nom)
    {
        const auto Trouvée = ParNom.find(FoldedCase(Nom));
        if (Trouvée == ParNom.end())
            return nullptr;
        Toutes.MoveTo(Trouvée->second);
        return &Toutes;
    }

  private:
    Recordset Toutes;
    std::unordered_map<std::string, std::size_t> ParNom;
};

} // namespace

void AppliquerRésolution(Application& App, std::int16_t IndexFeuille, const std::string& Résolution)
{
    Variables& Globals = App.Globals;
    Screen& Feuille = App.Feuilles[IndexFeuille];
    const std::string Table = TableDe(App, Feuille, Résolution);
    const Database Base = App.Bases.Open(Globals.CheminBaseSkin);
    Lignes Rangées(Base.OpenRecordset("SELECT * FROM [" + Table + "] ORDER BY Num"));
    const Recordset* Propre = Rangées.Pour(Feuille.Name());
    if (Propre == nullptr)
        throw Failure(FailureKind::NoRow, Feuille.Name());
    if (Vaut(*Propre, "ChangeWidth"))
        Feuille.Width = Twips(*Propre, "Width");
    if (Vaut(*Propre, "ChangeHeight"))
        Feuille.Height = Twips(*Propre, "Height");
    for (Control* Contrôle : Feuille.Controls())
        if (const Recordset* Sienne = Rangées.Pour(Contrôle->Name()))
            Appliquer(*Contrôle, *Sienne);
}

void AppliquerRésolutionPartout(Application& App, const std::string& Résolution)
{
    std::vector<std::string> Inconnues;
    const std::int16_t Dernière = Entier16(App.Feuilles.Count() - 1);
    for (std::int16_t IndexFeuille = 0; IndexFeuille <= Dernière; ++IndexFeuille)
        try {
            AppliquerRésolution(App, IndexFeuille, Résolution);
        } catch (const Failure&) {
            Inconnues.push_back(App.Feuilles[IndexFeuille].Name());
        }
    AnnoncerÉcransInconnus(App, Inconnues);
}

} // namespace orvane
