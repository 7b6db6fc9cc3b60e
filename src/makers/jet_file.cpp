#include "makers/jet_file.h"

#include "makers/damage.h"
#include "makers/jet_content.h"

#include <cmath>

namespace orvane {

namespace {

constexpr int PasswordAt = 0x42;
constexpr int LengthOfVersion3 = 20;
constexpr int LengthOfVersion4 = 40;
constexpr int CreationAt = 0x72;

constexpr int OffsetOfRow = 0x1FFF; // the rest are flags
constexpr int MovedRow = 0x4000;
constexpr int HiddenRow = 0x8000; // deleted, or where a moved one is now

// The page at hand being the first one, which the library decodes when it opens a file.
bool HasPassword(const JetFile& File)
{
    MdbHandle& Mdb = File.Library();
    std::uint32_t Mask = 0;
    if (!File.IsVersion3()) {
        const double Created = mdb_get_double(Mdb.pg_buf, CreationAt);
        if (!(std::abs(Created) < 1e9))
            ThrowDamaged("no date of creation");
        Mask = static_cast<std::uint32_t>(static_cast<std::int32_t>(Created));
    }
    const int Length = File.IsVersion3() ? LengthOfVersion3 : LengthOfVersion4;
    for (int i = 0; i < Length; i += 4)
        if (static_cast<std::uint32_t>(mdb_get_int32(Mdb.pg_buf, PasswordAt + i)) != Mask)
            return true;
    return false;
}

} // namespace

JetFile::JetFile(std::string Content) : Bytes(std::move(Content))
{
    if (!BeginsAsJet(Bytes))
        throw Failure(FailureKind::NotJet, {});
    for (const char* Each : {"MDBICONV", "MDB_JET3_CHARSET", "MDBOPTS"})
        g_unsetenv(Each); // by which the library would read otherwise
    Mdb.reset(mdb_open_buffer(Bytes.data(), Bytes.size(), MDB_NOFLAGS));
    if (!Mdb || Mdb->f->jet_version > MDB_VER_JET4)
        throw Failure(FailureKind::NotJet, {}, "another version");
    if (Bytes.size() % Page().size() != 0)
        ThrowDamaged("cut within a page");
    if (HasPassword(*this))
        throw Failure(FailureKind::JetProtected, {});
}

std::string_view JetFile::Page() const
{
    return {reinterpret_cast<const char*>(Mdb->pg_buf),
            static_cast<std::size_t>(Mdb->fmt->pg_size)};
}

std::string_view JetFile::Owner() const
{
    return Page().substr(4, 4);
}

int JetFile::PlaceCount() const
{
    const int Count = mdb_get_int16(Mdb->pg_buf, Mdb->fmt->row_count_offset);
    if (Mdb->fmt->row_count_offset + 2 * (Count + 1) > Mdb->fmt->pg_size)
        ThrowDamaged("more rows than a page holds");
    return Count;
}

int JetFile::FlagsAt(int Place) const
{
    return mdb_get_int16(Mdb->pg_buf, Mdb->fmt->row_count_offset + 2 * (Place + 1));
}

bool JetFile::IsEmpty(int Place) const
{
    return (FlagsAt(Place) & HiddenRow) != 0;
}

JetFile::Row JetFile::RowAt(int Place) const
{
    int Start = 0;
    std::size_t Size = 0;
    if (Place >= PlaceCount() || mdb_find_row(Mdb.get(), Place, &Start, &Size) != 0)
        ThrowDamaged("no row " + std::to_string(Place));
    const int Offset = Start & OffsetOfRow;
    if (static_cast<std::size_t>(Offset) + Size > Page().size())
        ThrowDamaged("a row out of its page");
    return {(Start & MovedRow) != 0, Offset, Page().substr(static_cast<std::size_t>(Offset), Size)};
}

int JetFile::EnterPage(std::string_view Pointer, std::string_view WantedOwner)
{
    const std::uint32_t Where = Int32(Pointer);
    const std::string Told = "page " + std::to_string(Where >> 8);
    if (mdb_read_alt_pg(Mdb.get(), Where >> 8) != Mdb->fmt->pg_size)
        ThrowDamaged(Told + " isn't there");
    mdb_swap_pgbuf(Mdb.get());
    if (Page()[0] != MDB_PAGE_DATA || Owner() != WantedOwner)
        ThrowDamaged(Told + " is another's");
    return static_cast<int>(Where & 0xFF);
}

std::uint32_t Int32(std::string_view Bytes)
{
    if (Bytes.size() < 4)
        ThrowDamaged("a number cut off");
    std::uint32_t Result = 0;
    for (std::size_t i = 4; i-- > 0;)
        Result = Result << 8 | static_cast<unsigned char>(Bytes[i]);
    return Result;
}

} // namespace orvane
