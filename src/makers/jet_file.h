#pragma once

#include <cstdint>
#include <glib.h> // before mdbtools.h, which would give it the linkage of C
#include <mdbtools.h>
#include <memory>
#include <string>
#include <string_view>

namespace orvane {

// A Jet file, its pages and the rows on them, through libmdb. What can't be read is Failure
// (FailureKind::JetDamaged). On a damaged file the library may also end the process or not come
// back.
class JetFile
{
  public:
    // From the file's bytes. Failure (FailureKind::JetProtected) for one with a password,
    // FailureKind::NotJet for one of another kind.
    explicit JetFile(std::string Content);

    MdbHandle& Library() const { return *Mdb; }
    std::size_t Size() const { return Bytes.size(); }

    // Version 3 keeps texts in a code page, version 4 in UTF-16.
    bool IsVersion3() const { return Mdb->f->jet_version == MDB_VER_JET3; }

    // The page at hand, which the library has read last.
    std::string_view Page() const;

    // Whom the rows on it belong to: a table or the long values.
    std::string_view Owner() const;

    // How many places for rows it has. A place is empty when its row is deleted or when only a
    // moved row's pointer leads there.
    int PlaceCount() const;
    bool IsEmpty(int Place) const;

    struct Row
    {
        bool IsMoved = false; // its bytes are the pointer to it
        int Start = 0;        // on the page
        std::string_view Bytes;
    };
    Row RowAt(int Place) const;

    // Calls Use with the row that a pointer leads to, its page being the one at hand meanwhile.
    // It must have that owner.
    template <class Function>
    void Follow(std::string_view Pointer, std::string_view WantedOwner, Function Use)
    {
        const int Place = EnterPage(Pointer, WantedOwner);
        Use(RowAt(Place));
        mdb_swap_pgbuf(Mdb.get());
    }

  private:
    int EnterPage(std::string_view Pointer, std::string_view WantedOwner);
    int FlagsAt(int Place) const;

    struct Closer
    {
        void operator()(MdbHandle* Handle) const { mdb_close(Handle); }
    };

    std::string Bytes;
    std::unique_ptr<MdbHandle, Closer> Mdb;
};

// The first four bytes as a number, the lowest first; Failure (FailureKind::JetDamaged) for fewer.
std::uint32_t Int32(std::string_view Bytes);

} // namespace orvane
