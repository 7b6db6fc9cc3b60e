#pragma once

#include <exception>
#include <string>

namespace orvane {

enum class FailureKind {
    DatabaseMissing,
    DatabaseUnreadable,
    NotADatabase,
    OutsideFolder, // a database that a link reaches for
    DatabaseReadOnly,
    DatabaseNewer, // made by a later version of the program: read, never written to
    DatabaseLocked,
    DiskFull,
    WriteFailed,        // for another reason: a quota, a size limit, a medium that gives up
    DatabaseIncomplete, // a table, query or column that isn't there
    Store,              // any other failure of the store
    NoRow,              // a look-up without the row that a rule needs
    ChoiceMissing, // the same, because the choice that it goes by is still empty; Subject is what
                   // was picked below it
    NullValue,     // a null where a value is needed
    RefusedNumber, // a text that is no number, written to a number column
    OutOfRange,    // a number that is too great for a level or a count
    WrongText,     // a box that holds no number where a calculation needs one
    Overflow,
    FileUnreadable, // a file to import that isn't there, or can't be read
    NotJet,         // a file to import that isn't of the kind
    JetDamaged,     // one that can't be read whole
    JetProtected,   // one with a password
    Program,        // the program's own fault, such as an unknown control
    Told,           // none of the above: Subject is the whole sentence
};

// Whatever stops an event. Subject names what it is about: an object, a column, or a file, which is
// also named beside what it should hold. Cause is the technical side, for people who keep the data
// files.
class Failure : public std::exception
{
  public:
    Failure(FailureKind Kind, std::string Subject, std::string Cause = {}, std::string File = {});

    // The same in this file, unless it names one already.
    Failure In(const std::string& File) const;

    FailureKind Kind() const { return TheKind; }
    const std::string& Subject() const { return TheSubject; }
    const std::string& Cause() const { return TheCause; }

    // The French sentence for the crafter.
    std::string Sentence() const;

    const char* what() const noexcept override { return Technical.c_str(); }

  private:
    FailureKind TheKind;
    std::string TheSubject;
    std::string TheCause;
    std::string File;
    std::string Technical;
};

} // namespace orvane
