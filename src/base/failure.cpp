#include "base/failure.h"

#include "base/typography.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orvane {

namespace {

struct Phrase
{
    FailureKind Kind;
    const char* Before;
    const char* After;
    bool TellsFile = false;
};

// The one place where failures become French. The subject stands between Before and After, and the
// file of what is missing before the full stop.
constexpr std::array Phrases{
    Phrase{FailureKind::DatabaseMissing, "La base de données « ",
           " » est introuvable.\nReplacez le fichier à côté du programme."},
    Phrase{FailureKind::DatabaseUnreadable, "La base de données « ",
           " » ne peut pas être lue.\nLe fichier est endommagé ou inaccessible."},
    Phrase{FailureKind::NotADatabase, "Le fichier « ", " » n’est pas une base de données."},
    Phrase{FailureKind::OutsideFolder, "La base de données « ",
           " » est hors du dossier du programme : elle n’est pas ouverte."},
    Phrase{FailureKind::DatabaseReadOnly, "La base de données « ",
           " » est en lecture seule : rien n’a été enregistré."},
    Phrase{FailureKind::DatabaseNewer, "La base de données « ",
           " » vient d’une version plus récente du programme : rien n’y est enregistré."},
    Phrase{FailureKind::DatabaseLocked, "La base de données « ",
           " » est utilisée par un autre programme.\nFermez-le, puis recommencez."},
    Phrase{FailureKind::DiskFull, "Le disque est plein : rien n’a été enregistré dans « ", " »."},
    Phrase{FailureKind::WriteFailed, "L’écriture dans « ",
           " » a échoué : rien n’a été enregistré."},
    Phrase{FailureKind::DatabaseIncomplete, "La base de données est incomplète : il manque « ",
           " ».", true},
    Phrase{FailureKind::Store, "La base de données « ", " » a refusé l’opération."},
    Phrase{FailureKind::NoRow, "Aucune donnée pour « ", " ».", true},
    Phrase{FailureKind::ChoiceMissing,
           "Il faut d’abord faire le choix précédent, puis reprendre « ", " »."},
    Phrase{FailureKind::NullValue, "Aucune donnée pour « ", " ».", true},
    Phrase{FailureKind::RefusedNumber, "« ", " » n’est pas un nombre : rien n’a été enregistré.",
           true},
    Phrase{FailureKind::OutOfRange, "« ", " » n’est pas un nombre de -32768 à 32767."},
    Phrase{FailureKind::WrongText, "« ", " » n’est pas un nombre."},
    Phrase{FailureKind::Overflow, "Un montant dépasse ce qui peut être calculé (« ", " »)."},
    Phrase{FailureKind::FileUnreadable, "Le fichier « ", " » est introuvable ou illisible."},
    Phrase{FailureKind::NotJet, "Le fichier « ", " » n’est pas une base de données Jet."},
    Phrase{FailureKind::JetDamaged, "Le fichier « ", " » est endommagé : il n’a pas été converti."},
    Phrase{FailureKind::JetProtected, "Le fichier « ",
           " » est protégé par un mot de passe : il n’a pas été converti."},
    Phrase{FailureKind::Program, "Erreur interne du programme : « ", " »."},
};

} // namespace

Failure::Failure(FailureKind Kind, std::string Subject, std::string Cause, std::string File)
    : TheKind(Kind),
      TheSubject(std::move(Subject)),
      TheCause(std::move(Cause)),
      File(std::move(File)),
      Technical(TheSubject + (TheCause.empty() ? "" : ": " + TheCause))
{
}

Failure Failure::In(const std::string& Where) const
{
    return {TheKind, TheSubject, TheCause, File.empty() ? Where : File};
}

std::string Failure::Sentence() const
{
    if (TheKind == FailureKind::Told)
        return Typeset(TheSubject);
    if (TheKind == FailureKind::ChoiceMissing && TheSubject.empty())
        return "Il faut d’abord faire le choix précédent.";
    const auto Known = std::ranges::find(Phrases, TheKind, &Phrase::Kind);
    std::string Sentence =
        Typeset(Known->Before) + (TheSubject.empty() ? File : TheSubject) + Typeset(Known->After);
    if (Known->TellsFile && !File.empty())
        Sentence.insert(Sentence.size() - 1, Typeset(" dans « ") + File + Typeset(" »"));
    return Sentence;
}

} // namespace orvane
