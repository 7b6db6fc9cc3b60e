#include "store/functions.h"

#include "base/text.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>
#include <string_view>

namespace orvane {

namespace {

std::string_view TextOf(sqlite3_value* Given)
{
    const auto* Text = reinterpret_cast<const char*>(sqlite3_value_text(Given));
    return Text == nullptr
               ? std::string_view()
               : std::string_view(Text, static_cast<std::size_t>(sqlite3_value_bytes(Given)));
}

void FoldCase(sqlite3_context* Context, int, sqlite3_value** Given)
{
    if (sqlite3_value_type(Given[0]) == SQLITE_NULL) // compares as a null does
        return;
    const std::string Folded = FoldedCase(TextOf(Given[0]));
    sqlite3_result_text(Context, Folded.data(), static_cast<int>(Folded.size()), SQLITE_TRANSIENT);
}

// Whether the whole text fits a pattern in which * stands for any text and nothing else is special.
bool Fits(std::string_view Text, std::string_view Pattern)
{
    std::size_t At = 0;
    std::size_t InPattern = 0;
    std::size_t Star = std::string_view::npos;
    std::size_t AfterStar = 0;
    while (At < Text.size()) {
        if (InPattern < Pattern.size() && Pattern[InPattern] == '*') {
            Star = InPattern++;
            AfterStar = At;
        } else if (InPattern < Pattern.size() && Pattern[InPattern] == Text[At]) {
            ++InPattern;
            ++At;
        } else if (Star != std::string_view::npos) {
            InPattern = Star + 1;
            At = ++AfterStar;
        } else
            return false;
    }
    return Pattern.find_first_not_of('*', InPattern) == std::string_view::npos;
}

void TextLike(sqlite3_context* Context, int, sqlite3_value** Given)
{
    const bool Null = sqlite3_value_type(Given[0]) == SQLITE_NULL;
    sqlite3_result_int(Context,
                       !Null && Fits(FoldedCase(TextOf(Given[0])), FoldedCase(TextOf(Given[1]))));
}

int French(void*, int LeftSize, const void* Left, int RightSize, const void* Right)
{
    return CompareFrench({static_cast<const char*>(Left), static_cast<std::size_t>(LeftSize)},
                         {static_cast<const char*>(Right), static_cast<std::size_t>(RightSize)});
}

} // namespace

void RegisterFunctions(SQLite::Database& Base)
{
    sqlite3* Handle = Base.getHandle();
    constexpr int Flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_function_v2(Handle, "fold_case", 1, Flags, nullptr, FoldCase, nullptr, nullptr,
                               nullptr);
    sqlite3_create_function_v2(Handle, "text_like", 2, Flags, nullptr, TextLike, nullptr, nullptr,
                               nullptr);
    sqlite3_create_collation_v2(Handle, "FRENCH", SQLITE_UTF8, nullptr, French, nullptr);
}

} // namespace orvane
