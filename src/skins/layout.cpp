#include "skins/layout.h"

#include "app/queries.h"
#include "base/failure.h"
#include "base/number_text.h"
#include "base/text.h"
#include "base/typography.h"
#include "skins/skin_assets.h"

#include <cmath>
#include <functional>
#include <unordered_map>
#include <vector>

namespace orvane {

namespace {

bool Vaut(const Recordset& Ligne, std::string_view Drapeau)
{
    return Ligne.TextOrEmpty(Drapeau) == "O";
}

// A number of a row, to a whole one with ties to even. Failure (FailureKind::OutOfRange), naming
// the column, when nothing on a screen can be like that.
int Entier(const Recordset& Ligne, std::string_view Colonne, int Least, int Greatest)
{
    const double Lu = Ligne.Number(Colonne);
    if (!(Lu >= Least && Lu <= Greatest)) // no number at all fails too
        throw Failure(FailureKind::OutOfRange, std::string(Colonne));
    return static_cast<int>(std::nearbyint(Lu));
}

constexpr int TwipsAuPlus = 500'000; // far beyond any screen

int Place(const Recordset& Ligne, std::string_view Colonne)
{
    return Entier(Ligne, Colonne, -TwipsAuPlus, TwipsAuPlus);
}

int Taille(const Recordset& Ligne, std::string_view Colonne)
{
    return Entier(Ligne, Colonne, 0, TwipsAuPlus);
}

// What a row asks for, in the order of asking. Read whole before anything is changed, so that a row
// that can't be used leaves its control as it was.
class Demandes
{
  public:
    explicit Demandes(const Recordset& Ligne) : Ligne(Ligne) {}

    void Lire(Control& Contrôle)
    {
        if (Vaut(Ligne, "ChangeLeftTop"))
            LirePlace(Contrôle);
        if (Vaut(Ligne, "ChangeWidth"))
            Poser(Contrôle.Width, Taille(Ligne, "Width"));
        if (Vaut(Ligne, "ChangeHeight"))
            Poser(Contrôle.Height, Taille(Ligne, "Height"));
        if (Vaut(Ligne, "ChangeFontSize")) {
            constexpr int PointsAuPlus = 500;
            Entier(Ligne, "FontSize", 1, PointsAuPlus);
            Poser(Contrôle.FontSize, Ligne.Number("FontSize"));
        }
        if (Vaut(Ligne, "ChangeColor"))
            LireCouleur(Contrôle);
    }

    void Lire(Screen& Feuille)
    {
        if (Vaut(Ligne, "ChangeWidth"))
            Poser(Feuille.Width, Taille(Ligne, "Width"));
        if (Vaut(Ligne, "ChangeHeight"))
            Poser(Feuille.Height, Taille(Ligne, "Height"));
    }

    void Exécuter() const
    {
        for (const auto& Each : Toutes)
            Each();
    }

  private:
    template <class Type>
    void Poser(Property<Type>& Où, Type Quoi)
    {
        Toutes.push_back([&Où, Quoi] { Où = Quoi; });
    }

    // A line's four ends travel in the four geometry columns, in this crossing of names.
    void LirePlace(Control& Contrôle)
    {
        if (auto* Trait = dynamic_cast<Line*>(&Contrôle)) {
            Poser(Trait->X1, Place(Ligne, "Left"));
            Poser(Trait->X2, Place(Ligne, "Top"));
            Poser(Trait->Y1, Place(Ligne, "Width"));
            Poser(Trait->Y2, Place(Ligne, "Height"));
        } else {
            Poser(Contrôle.Left, Place(Ligne, "Left"));
            Poser(Contrôle.Top, Place(Ligne, "Top"));
        }
    }

    void LireCouleur(Control& Contrôle)
    {
        constexpr int Blanc = 0xFFFFFF;
        const Colour Couleur{Entier(Ligne, "Color", 0, Blanc)};
        if (Contrôle.Kind() == ControlKind::Label)
            Poser(Contrôle.ForeColor, Couleur);
        else if (auto* Cadre = dynamic_cast<Shape*>(&Contrôle))
            Poser(Cadre->BorderColor, Couleur);
    }

    const Recordset& Ligne;
    std::vector<std::function<void()>> Toutes;
};

template <class Chose>
void Appliquer(Chose& Où, const Recordset& Ligne)
{
    Demandes Siennes(Ligne);
    Siennes.Lire(Où);
    Siennes.Exécuter();
}

std::string TableDe(Application& App, const Screen& Feuille, const std::string& Résolution)
{
    const Ouverture Base(App, App.Globals.BaseDonnées2, App.Globals.CheminBaseSkin);
    return Feuille.Name() + "_" + Déclinaison(App, Feuille.Name(), Résolution);
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

Recordset LignesDeDisposition(const Database& Base, const std::string& Table)
{
    return Base.OpenRecordset("SELECT * FROM " + Bracketed(Table) + " ORDER BY Num");
}

void AppliquerRésolution(Application& App, std::int16_t IndexFeuille, const std::string& Résolution)
{
    Variables& Globals = App.Globals;
    Screen& Feuille = App.Feuilles[IndexFeuille];
    const std::string Table = TableDe(App, Feuille, Résolution);
    const Database Base = App.Bases.Open(Globals.CheminBaseSkin);
    Lignes Rangées(LignesDeDisposition(Base, Table));
    const Recordset* Propre = Rangées.Pour(Feuille.Name());
    if (Propre == nullptr)
        throw Failure(FailureKind::NoRow, Feuille.Name());
    std::string Inutilisables;
    const auto Essayer = [&](const std::string& Nom, auto& Où, const Recordset& Ligne) {
        try {
            Appliquer(Où, Ligne);
        } catch (const Failure&) {
            Inutilisables += (Inutilisables.empty() ? "" : ", ") + Nom;
        }
    };
    Essayer(Feuille.Name(), Feuille, *Propre);
    for (Control* Contrôle : Feuille.Controls())
        if (const Recordset* Sienne = Rangées.Pour(Contrôle->Name()))
            Essayer(Contrôle->Name(), *Contrôle, *Sienne);
    if (!Inutilisables.empty())
        App.Notice(Typeset("La disposition de « " + Feuille.Caption +
                           " » a des lignes que rien ne "
                           "peut suivre (table " +
                           Table + ") : " + Inutilisables + "."));
}

void AppliquerRésolutionPartout(Application& App, const std::string& Résolution)
{
    const Database Tenue = App.Bases.Open(App.Globals.CheminBaseSkin); // one reading for all
    ÉcransManqués Manqués(App);
    const std::int16_t Dernière = Entier16(App.Feuilles.Count() - 1);
    for (std::int16_t IndexFeuille = 0; IndexFeuille <= Dernière; ++IndexFeuille)
        try {
            AppliquerRésolution(App, IndexFeuille, Résolution);
        } catch (const Failure& Given) {
            Manqués.Ajouter(App.Feuilles[IndexFeuille], Given);
        }
    Manqués.Annoncer();
}

} // namespace orvane
