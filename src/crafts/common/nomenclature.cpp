#include "crafts/common/nomenclature.h"

#include "base/failure.h"
#include "toolkit/calculation.h"
#include "toolkit/visibility.h"

#include <algorithm>

namespace orvane {

void PlacerLigne(TextBox& Nom, Label& Fois, TextBox& Qté, Label& Égale, TextBox& Prix, int X, int Y,
                 const ColonnesMatériau& Colonnes)
{
    constexpr int High = 24;
    for (Control* Each : std::initializer_list<Control*>{&Nom, &Fois, &Qté, &Égale, &Prix})
        Each->RowName = &Nom;
    Place(Nom, {X, Y, Colonnes.Nom, High});
    Nom.Align = Alignment::Left;
    X += Colonnes.Nom;
    PlaceLabel(Fois, "x", {X, Y, SigneLarge, High}, Alignment::Centre);
    X += SigneLarge;
    Place(Qté, {X, Y, Colonnes.Qté, High});
    X += Colonnes.Qté;
    PlaceLabel(Égale, "=", {X, Y, SigneLarge, High}, Alignment::Centre);
    Place(Prix, {X + SigneLarge, Y, Colonnes.Prix, High});
}

void NommerLigne(TextBox& Nom, TextBox& Qté, TextBox& Prix, const std::string& Ligne)
{
    Nom.Called = Ligne + ", nom";
    Qté.Called = Ligne + ", quantité";
    Prix.Called = Ligne + ", prix";
}

LigneMatériau::LigneMatériau(Screen& Owner, const NomsNomenclature& Noms, int Num)
    : Num(Num),
      Nom(Owner, Noms.Nom + std::to_string(Num)),
      Fois(Owner, Noms.Fois + std::to_string(Num)),
      Qté(Owner, Noms.Qté + std::to_string(Num)),
      Égale(Owner, Noms.Égale + std::to_string(Num)),
      Prix(Owner, Noms.Prix + std::to_string(Num)),
      PrixUnitaire(Owner, Noms.PrixUnitaire + std::to_string(Num))
{
    PrixUnitaire.Visible = false;
    if (!Noms.Code.empty()) {
        Code.emplace(Owner, Noms.Code + std::to_string(Num));
        Code->Visible = false;
    }
}

void LigneMatériau::Montrer(bool Montrée)
{
    ShowAll({&Nom, &Qté, &Fois, &Égale, &Prix}, Montrée);
}

void LigneMatériau::PoserVerrou(bool Libre, Colour FondOuvert, Colour FondFermé)
{
    Prix.Locked = !Libre;
    Prix.BackColor = Libre ? FondOuvert : FondFermé;
}

void LigneMatériau::CalculerPrix()
{
    if (PrixUnitaire.Text == "" && Qté.Text == "") {
        Prix.Text = "0";
        return;
    }
    std::string Produit;
    if (Calculate({&Prix}, [&] { Produit = T(ProduitDeMontants(*this)); }))
        Prix.Text = Produit;
}

Montant ProduitDeMontants(LigneMatériau& Ligne)
{
    return M(Ligne.PrixUnitaire) * M(Ligne.Qté);
}

Montant EntierFoisMontant(LigneMatériau& Ligne)
{
    return I(Ligne.Qté) * M(Ligne.PrixUnitaire);
}

Nomenclature::Nomenclature(Screen& Owner, const NomsNomenclature& Noms, int Nombre)
{
    for (int i = 1; i <= Nombre; ++i)
        Lignes.emplace_back(Owner, Noms, i);
}

LigneMatériau& Nomenclature::operator[](int Num)
{
    if (Num < 1 || static_cast<std::size_t>(Num) > Lignes.size())
        throw Failure(FailureKind::Program, "line " + std::to_string(Num) + " of a bill");
    return Lignes[static_cast<std::size_t>(Num) - 1];
}

void Nomenclature::Placer(int X, int Y, int Pas, const ColonnesMatériau& Colonnes,
                          const std::string& Titre)
{
    for (LigneMatériau& Each : Lignes) {
        NommerLigne(Each.Nom, Each.Qté, Each.Prix,
                    (Titre.empty() ? "Matériau " : Titre + ", matériau ") +
                        std::to_string(Each.Num));
        PlacerLigne(Each.Nom, Each.Fois, Each.Qté, Each.Égale, Each.Prix, X, Y, Colonnes);
        Y += Pas;
    }
    Lignes.front().Nom.WhenEmpty = "Choisissez un produit";
}

void Nomenclature::CommencerParZéro()
{
    for (LigneMatériau& Each : Lignes)
        for (TextBox* Chiffre : {&Each.Qté, &Each.PrixUnitaire, &Each.Prix})
            Chiffre->Text.StartWith("0");
}

void Nomenclature::Montrer(bool Montrée)
{
    for (LigneMatériau& Each : Lignes)
        Each.Montrer(Montrée);
}

void Nomenclature::Vider()
{
    for (LigneMatériau& Each : Lignes)
        Each.Nom.Text = "";
    for (LigneMatériau& Each : Lignes)
        if (Each.Code)
            Each.Code->Text = "";
    for (TextBox LigneMatériau::*Colonne :
         {&LigneMatériau::Qté, &LigneMatériau::PrixUnitaire, &LigneMatériau::Prix})
        for (LigneMatériau& Each : Lignes)
            (Each.*Colonne).Text = "0";
}

// Within a line the count comes before the unit price, whose handler may work out the price.
void Nomenclature::Charger(const Recordset& Objet, const std::string& Table, bool PremièreSansQté)
{
    for (LigneMatériau& Each : Lignes) {
        Each.Nom.Text = Objet.Text(ColonneJointe(Table, Each.Num, "Nom"));
        Each.Qté.Text =
            Each.Num == 1 && PremièreSansQté ? "1" : Objet.Text("Qté" + std::to_string(Each.Num));
        Each.PrixUnitaire.Text = Objet.Text(ColonneJointe(Table, Each.Num, "Prix"));
    }
}

void Nomenclature::ChargerCodes(const Recordset& Objet, int Nombre)
{
    for (int i = 1; i <= Nombre; ++i)
        (*this)[i].Code->Text = Objet.Text("Mat" + std::to_string(i));
    for (int i = 1; i <= Nombre; ++i)
        (*this)[i].Qté.Text = Objet.Text("Qté" + std::to_string(i));
}

bool Nomenclature::Chiffrer(Montant (*Règle)(LigneMatériau&),
                            const std::function<bool(const LigneMatériau&)>& EstComptée)
{
    std::vector<std::string> Prix;
    const bool Juste = Calculate({}, [&] {
        for (LigneMatériau& Each : Lignes)
            Prix.push_back(!EstComptée || EstComptée(Each) ? T(Règle(Each)) : "0");
    });
    if (!Juste)
        Périmer();
    for (std::size_t i = 0; Juste && i < Prix.size(); ++i)
        Lignes[i].Prix.Text = Prix[i];
    return Juste;
}

Montant Nomenclature::Somme(PrixVide Vide)
{
    Montant Total;
    for (LigneMatériau& Each : Lignes)
        if (Vide == PrixVide::Faux || Each.Prix.Text != "")
            Total = Total + M(Each.Prix);
    return Total;
}

bool Nomenclature::EstPérimée() const
{
    return std::ranges::any_of(Lignes, [](const LigneMatériau& Each) {
        return Each.Qté.Stale() || Each.PrixUnitaire.Stale() || Each.Prix.Stale();
    });
}

void Nomenclature::MarquerPérimée(bool Périmée)
{
    for (LigneMatériau& Each : Lignes)
        for (TextBox* Chiffre : {&Each.Qté, &Each.PrixUnitaire, &Each.Prix}) {
            Chiffre->WaitsFor = nullptr;
            Chiffre->Stale = Périmée;
        }
}

std::string ColonneJointe(const std::string& Table, int i, const std::string& Colonne)
{
    return JoinName(Table, i) + "." + Colonne;
}

} // namespace orvane
