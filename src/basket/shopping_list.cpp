#include "basket/shopping_list.h"

#include "base/notation.h"
#include "base/text.h"
#include "base/typography.h"
#include "catalogue/catalogue.h"

#include <algorithm>
#include <map>
#include <utility>

namespace orvane {

namespace {

constexpr const char* Cochée = "O";

// A material by its name, whatever its case; the way it was written first is shown.
struct Matériau
{
    std::string Nom;
    PartsAchat Parts;
};

// A figure that is no number, as another tool may have left it, counts nothing.
Montant Figure(const Recordset& Ligne, const char* Colonne)
{
    return Montant::FromText(Ligne.TextOrEmpty(Colonne)).value_or(Montant());
}

PartAchat PartDe(const Recordset& Ligne)
{
    return {Ligne.TextOrEmpty("Num"),
            {},
            std::max(Montant(), Figure(Ligne, "Quantité")),
            Figure(Ligne, "Prix"),
            std::max(Montant(), Figure(Ligne, "Possédé")),
            Ligne.TextOrEmpty("Coché") == Cochée};
}

// The object's name, and what the list leaves open of its order and realm.
std::string Étiquette(const LigneDePanier& Objet, const Portée& Laquelle)
{
    std::string Où;
    if (!Laquelle.Commande)
        Où = Objet.Acheteur;
    if (!Laquelle.Royaume)
        Où += (Où.empty() ? "" : ", ") + Objet.Royaume;
    return Objet.Nom + (Où.empty() ? "" : " (" + Où + ")");
}

// What is asked for, as it is stored. Each object is a query of its own: a basket may be large.
struct Lecture
{
    Lecture(const Database& Base, const Portée& Laquelle) : Objets(LireLignes(Base, Laquelle))
    {
        const bool EnTable = Base.HasTable(MatériauxDuPanier().Name);
        for (const LigneDePanier& Each : Objets) {
            const std::string Nom = Étiquette(Each, Laquelle);
            if (!EnTable || Each.Num.empty() || !Prendre(LireMatériaux(Base, Each.Num), Nom))
                Inconnus.push_back(Nom);
        }
    }

    // Whether there is any.
    bool Prendre(Recordset Lignes, const std::string& Objet)
    {
        const bool Aucun = Lignes.Eof();
        for (; !Lignes.Eof(); Lignes.MoveNext()) {
            PartAchat Part = PartDe(Lignes);
            if (Part.Quantité == Montant() && Part.Prix == Montant())
                continue; // of an object that isn't made at all
            Part.Objet = Objet;
            const std::string Nom = Lignes.TextOrEmpty("Matériau");
            Matériaux.try_emplace(FoldedCase(Nom), Matériau{Nom, {}})
                .first->second.Parts.push_back(std::move(Part));
        }
        return !Aucun;
    }

    std::vector<LigneDePanier> Objets;
    std::map<std::string, Matériau> Matériaux;
    std::vector<std::string> Inconnus;
};

bool ÀLaFrançaise(const std::string& Gauche, const std::string& Droite)
{
    return CompareFrench(Gauche, Droite) < 0;
}

} // namespace

ListeDAchats::ListeDAchats(Store& Bases, std::filesystem::path Panier)
    : Bases(Bases),
      Panier(std::move(Panier))
{
}

void ListeDAchats::Lire(const Portée& Laquelle)
{
    const Database Base = Bases.Open(Panier);
    Lecture Lue(Base, Laquelle);
    LaPortée = Laquelle;
    LesObjets = std::move(Lue.Objets);
    LesSommes.PrixCoûtant = Totaliser(LesObjets, &LigneDePanier::PrixCoûtant);
    LesSommes.PrixVente = Totaliser(LesObjets, &LigneDePanier::PrixVente);
    std::ranges::stable_sort(LesObjets, ÀLaFrançaise, &LigneDePanier::Nom);
    Inconnus = std::move(Lue.Inconnus);
    std::ranges::sort(Inconnus, ÀLaFrançaise);

    std::vector<Matériau> Rangés;
    for (auto& [Clé, Each] : Lue.Matériaux)
        Rangés.push_back(std::move(Each));
    std::ranges::stable_sort(Rangés, ÀLaFrançaise, &Matériau::Nom);
    LesLignes.clear();
    LesParts.clear();
    Cumul Prix;
    Cumul Reste;
    for (Matériau& Each : Rangés) {
        LesLignes.push_back(LigneDe(Each.Nom, Each.Parts));
        Prix.Ajouter(Montant::FromText(LesLignes.back().Prix));
        Reste.Ajouter(PrixDuReste(Each.Parts));
        LesParts.push_back(std::move(Each.Parts));
    }
    LesSommes.Prix = Prix.Texte();
    LesSommes.Reste = Reste.Texte();
}

std::string ListeDAchats::SansMatériaux() const
{
    std::string Noms;
    for (const std::string& Each : Inconnus)
        Noms += (Noms.empty() ? "" : ", ") + Each;
    return Noms.empty() ? Noms : Typeset("Matériaux inconnus : ") + Noms + ".";
}

bool ListeDAchats::Posséder(std::size_t Ligne, const std::string& Texte)
{
    const auto Lu = Texte.empty() ? Montant() : Montant::FromText(Texte);
    if (!Lu || *Lu < Montant())
        return false;
    PartsAchat Parts = LesParts.at(Ligne);
    Répartir(*Lu, Parts);
    Changer(Parts, "Possédé", [](const PartAchat& Each) { return T(Each.Possédé); });
    return true;
}

void ListeDAchats::Cocher(std::size_t Ligne, bool Oui)
{
    Changer(LesParts.at(Ligne), "Coché",
            [&](const PartAchat&) { return std::string(Oui ? Cochée : "N"); });
}

// A row that has gone meanwhile is passed over.
template <class Valeur>
void ListeDAchats::Changer(const PartsAchat& Parts, const char* Colonne, Valeur De)
{
    {
        const Database Base = Bases.Open(Panier);
        Base.Transaction([&] {
            for (const PartAchat& Each : Parts) {
                Recordset Rangée =
                    Base.OpenRecordset("SELECT * FROM PanierMatériaux WHERE Num=" + Each.Num);
                if (Rangée.Eof())
                    continue;
                Rangée.Edit();
                Rangée.Set(Colonne, De(Each));
                Rangée.Update();
            }
        });
    }
    Lire(LaPortée);
}

} // namespace orvane
