#include "base/text.h"

#include <memory>
#include <unicode/brkiter.h>
#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/stringpiece.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

namespace orvane {

namespace {

icu::UnicodeString Unicode(std::string_view Text)
{
    return icu::UnicodeString::fromUTF8(
        icu::StringPiece(Text.data(), static_cast<int32_t>(Text.size())));
}

std::string Utf8(const icu::UnicodeString& Text)
{
    std::string Result;
    Text.toUTF8String(Result);
    return Result;
}

bool IsAscii(std::string_view Text)
{
    for (const char Byte : Text)
        if (static_cast<unsigned char>(Byte) >= 0x80)
            return false;
    return true;
}

// Where each character begins, and the end of the text: one more entry than characters.
std::vector<int32_t> Boundaries(const icu::UnicodeString& Text)
{
    UErrorCode Status = U_ZERO_ERROR;
    static const std::unique_ptr<icu::BreakIterator> Prototype(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getFrench(), Status));
    std::vector<int32_t> Result{0};
    if (!Prototype)
        return Result;
    const std::unique_ptr<icu::BreakIterator> Iterator(Prototype->clone());
    Iterator->setText(Text);
    Iterator->first();
    for (int32_t At = Iterator->next(); At != icu::BreakIterator::DONE; At = Iterator->next())
        Result.push_back(At);
    return Result;
}

void Append(std::string& Text, UChar32 Letter)
{
    icu::UnicodeString(Letter).toUTF8String(Text);
}

// Calls Use(letter) for each code point of a UTF-8 text, U+FFFD for malformed bytes.
template <class Function>
void ForEachLetter(std::string_view Text, Function Use)
{
    const auto Size = static_cast<int32_t>(Text.size());
    for (int32_t At = 0; At < Size;) {
        UChar32 Letter = 0;
#pragma GCC diagnostic push // the macro narrows as it pleases
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
        U8_NEXT_OR_FFFD(Text.data(), At, Size, Letter);
#pragma GCC diagnostic pop
        Use(Letter);
    }
}

const icu::Collator* FrenchCollator()
{
    static const std::unique_ptr<icu::Collator> Collator = [] {
        UErrorCode Status = U_ZERO_ERROR;
        std::unique_ptr<icu::Collator> Made(
            icu::Collator::createInstance(icu::Locale::getFrench(), Status));
        if (Made) // decomposed accents sort like composed ones
            Made->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, Status);
        return Made;
    }();
    return Collator.get();
}

} // namespace

void UseFrench()
{
    UErrorCode Status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale::getFrench(), Status);
}

std::size_t CharacterCount(std::string_view Text)
{
    return IsAscii(Text) && Text.find('\r') == std::string_view::npos
               ? Text.size()
               : Boundaries(Unicode(Text)).size() - 1;
}

std::string FirstCharacters(std::string_view Text, std::size_t Count)
{
    const icu::UnicodeString Wide = Unicode(Text);
    const auto Bounds = Boundaries(Wide);
    return Count >= Bounds.size() - 1 ? std::string(Text)
                                      : Utf8(Wide.tempSubStringBetween(0, Bounds[Count]));
}

std::string WithoutLastCharacters(std::string_view Text, std::size_t Count)
{
    const icu::UnicodeString Wide = Unicode(Text);
    const auto Bounds = Boundaries(Wide);
    return Count >= Bounds.size() - 1
               ? std::string()
               : Utf8(Wide.tempSubStringBetween(0, Bounds[Bounds.size() - 1 - Count]));
}

bool Contains(std::string_view Text, std::string_view Word)
{
    return Text.find(Word) != std::string_view::npos;
}

bool ContainsIgnoringCase(std::string_view Text, std::string_view Word)
{
    return Contains(FoldedCase(Text), FoldedCase(Word));
}

std::string FoldedCase(std::string_view Text)
{
    std::string Result;
    Result.reserve(Text.size());
    ForEachLetter(Text, [&](UChar32 Letter) {
        if (Letter < 0x80)
            Result.push_back(
                static_cast<char>(Letter >= 'A' && Letter <= 'Z' ? Letter + 32 : Letter));
        else
            Append(Result, u_foldCase(Letter, U_FOLD_CASE_DEFAULT));
    });
    return Result;
}

std::string FoldedForSearch(std::string_view Text)
{
    UErrorCode Status = U_ZERO_ERROR;
    const icu::Normalizer2* Decomposer = icu::Normalizer2::getNFKDInstance(Status);
    icu::UnicodeString Wide = Unicode(FoldedCase(Text));
    if (Decomposer != nullptr)
        Wide = Decomposer->normalize(Wide, Status);
    std::string Result;
    for (int32_t At = 0; At < Wide.length(); At = Wide.moveIndex32(At, 1)) {
        const UChar32 Letter = Wide.char32At(At);
        if (Letter == 0x153) // œ and æ are typed as two letters
            Result += "oe";
        else if (Letter == 0xE6)
            Result += "ae";
        else if (u_charType(Letter) != U_NON_SPACING_MARK)
            Append(Result, Letter);
    }
    return Result;
}

std::vector<std::string> AccentedCaseVariants(std::string_view Text, std::size_t Limit)
{
    std::vector<std::string> Variants{std::string()};
    bool TooMany = false;
    ForEachLetter(Text, [&](UChar32 Letter) {
        const UChar32 Other = u_isupper(Letter) ? u_tolower(Letter) : u_toupper(Letter);
        const std::size_t Count = Variants.size();
        const bool Forks = Letter >= 0x80 && Other != Letter;
        if (TooMany || (Forks && Count * 2 > Limit)) {
            TooMany = true;
            return;
        }
        for (std::size_t i = 0; i < Count; ++i) {
            if (Forks) {
                Variants.push_back(Variants[i]);
                Append(Variants.back(), Other);
            }
            Append(Variants[i], Letter);
        }
    });
    return TooMany ? std::vector<std::string>{} : Variants;
}

int CompareFrench(std::string_view Left, std::string_view Right)
{
    const icu::Collator* Collator = FrenchCollator();
    if (Collator == nullptr)
        return Left.compare(Right);
    UErrorCode Status = U_ZERO_ERROR;
    return Collator->compareUTF8(icu::StringPiece(Left.data(), static_cast<int32_t>(Left.size())),
                                 icu::StringPiece(Right.data(), static_cast<int32_t>(Right.size())),
                                 Status);
}

} // namespace orvane
