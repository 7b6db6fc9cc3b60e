#include "base/failure.h"

#include "base/typography.h"

#include <array>
#include <utility>

namespace orvane {

namespace {

struct Phrase
{
    FailureKind Kind;
    const char* Before;
    const char* After;
};

// The one place where failures become French. The subject stands between Before and After.
constexpr std::array Phrases{
    Phrase{FailureKind::DatabaseMissing, "La base de données « ",
           " » est introuvable.\nReplacez le fichier à côté du programme."},
    Phrase{FailureKind::DatabaseUnreadable, "La base de données « ",
           " » ne peut pas être lue.\nLe fichier est endommagé ou inaccessible."},
    Phrase{FailureKind::NotADatabase, "Le fichier « ", " » n’est pas une base de données."},
    Phrase{FailureKind::DatabaseReadOnly, "La base de données « ",
           " » est en lecture seule : rien n’a été enregistré."},
    Phrase{FailureKind::DatabaseLocked, "La base de données « ",
           " » est utilisée par un autre programme.\nFermez-le, puis recommencez."},
    Phrase{FailureKind::DiskFull, "Le disque est plein : rien n’a été enregistré dans « ", " »."},
    Phrase{FailureKind::DatabaseIncomplete, "La base de données est incomplète : il y manque « ",
           " »."},
    Phrase{FailureKind::Store, "La base de données « ", " » a refusé l’opération."},
    Phrase{FailureKind::NoRow, "Aucune donnée pour « ", " »."},
    Phrase{FailureKind::ChoiceMissing,
           "Il faut d’abord faire le choix précédent, puis reprendre « ", " »."},
    Phrase{FailureKind::NullValue, "Aucune donnée pour « ", " »."},
    Phrase{FailureKind::RefusedNumber, "« ", " » n’est pas un nombre : rien n’a été enregistré."},
    Phrase{FailureKind::OutOfRange, "« ", " » n’est pas un nombre de -32768 à 32767."},
    Phrase{FailureKind::WrongText, "« ", " » n’est pas un nombre."},
    Phrase{FailureKind::Overflow, "Un montant dépasse ce qui peut être calculé (« ", " »)."},
    Phrase{FailureKind::NoPicture, "L’image « ", " » est introuvable ou illisible."},
    Phrase{FailureKind::Program, "Erreur interne du programme : « ", " »."},
};

} // namespace

Failure::Failure(FailureKind Kind, std::string Subject, std::string Cause)
    : TheKind(Kind),
      TheSubject(std::move(Subject)),
      TheCause(std::move(Cause)),
      Technical(TheSubject + (TheCause.empty() ? "" : ": " + TheCause))
{
}

std::string Failure::Sentence() const
{
    if (TheKind == FailureKind::ChoiceMissing && TheSubject.empty())
        return "Il faut d’abord faire le choix précédent.";
    const bool Ours = TheKind == FailureKind::DatabaseIncomplete; // "file : name", not data
    for (const Phrase& Candidate : Phrases)
        if (Candidate.Kind == TheKind)
            return Typeset(Candidate.Before) + (Ours ? Typeset(TheSubject) : TheSubject) +
                   Typeset(Candidate.After);
    return TheSubject;
}

} // namespace orvane
