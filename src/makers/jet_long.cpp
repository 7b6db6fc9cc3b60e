#include "makers/jet_long.h"

#include "makers/damage.h"

namespace orvane {

namespace {

constexpr std::uint32_t InRow = 0x8000'0000;
constexpr std::uint32_t InOnePiece = 0x4000'0000;
constexpr std::uint32_t LengthOnly = 0x3FFF'FFFF;
constexpr std::size_t HeaderSize = 12;
constexpr std::size_t PointerAt = 4; // in the header
constexpr std::size_t PointerSize = 4;
constexpr std::string_view OwnPages = "LVAL";

} // namespace

std::string LongValues::Read(std::string_view Cell)
{
    if (Cell.size() < HeaderSize)
        ThrowDamaged("a long value without its header");
    const std::uint32_t Header = Int32(Cell);
    const std::size_t Length = Header & LengthOnly;
    const std::string_view Pointer = Cell.substr(PointerAt, PointerSize);
    if ((Header & InRow) != 0) {
        if (Cell.size() - HeaderSize < Length)
            ThrowDamaged("a long value beyond its row");
        return std::string(Cell.substr(HeaderSize, Length));
    }
    if (Length > Left)
        ThrowDamaged("long values greater than the file");
    Left -= Length;
    if ((Header & InOnePiece) == 0)
        return InPieces(Pointer, Length);
    std::string Result;
    File.Follow(Pointer, OwnPages, [&](const JetFile::Row& Whole) { Result = Whole.Bytes; });
    if (Result.size() != Length)
        ThrowDamaged("a long value cut off");
    return Result;
}

// Each piece begins with the pointer to the next one.
std::string LongValues::InPieces(std::string_view First, std::size_t Length)
{
    std::string Result;
    std::string Next(First);
    while (Result.size() < Length)
        File.Follow(Next, OwnPages, [&](const JetFile::Row& Piece) {
            if (Piece.Bytes.size() <= PointerSize)
                ThrowDamaged("a long value cut off");
            Next = Piece.Bytes.substr(0, PointerSize);
            Result += Piece.Bytes.substr(PointerSize, Length - Result.size());
        });
    return Result;
}

} // namespace orvane
