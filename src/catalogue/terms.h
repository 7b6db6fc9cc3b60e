#pragma once

#include "catalogue/catalogue.h"
#include "store/sql_text.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

// The vocabulary in which the schema is written.
namespace orvane::catalogue {

using Columns = std::vector<ColumnDefinition>;
inline constexpr auto Key = ColumnType::Key;
inline constexpr auto Counter = ColumnType::Counter;
inline constexpr auto Whole = ColumnType::Whole;
inline constexpr auto Decimal = ColumnType::Decimal;
inline constexpr auto Text = ColumnType::Text;

inline ColumnDefinition To(std::string Name, std::string Target)
{
    return {std::move(Name), ColumnType::Reference, std::move(Target)};
}

// Stem1, Stem2... of one type; of references when Target is given.
inline Columns Numbered(const std::string& Stem, int First, int Last, ColumnType Type,
                        const std::string& Target = {})
{
    Columns Result;
    for (int i = First; i <= Last; ++i)
        Result.push_back({Stem + std::to_string(i), Type, Target});
    return Result;
}

inline Columns operator+(Columns Left, const Columns& Right)
{
    Left.insert(Left.end(), Right.begin(), Right.end());
    return Left;
}

// The same columns of each realm, as ConfigRoyaume and the alchemy materials have them.
inline Columns OfEachRoyaume(std::initializer_list<const char*> Stems, ColumnType Type)
{
    Columns Result;
    for (const std::string& Royaume : Royaumes())
        for (const char* Stem : Stems)
            Result.push_back({Stem + Royaume, Type, {}});
    return Result;
}

// Column of each of the repeated joins, as items of a SELECT list.
inline std::string EachJoin(const std::string& Stem, int Count, const std::string& Column)
{
    std::string Result;
    for (int i = 0; i < Count; ++i)
        Result += ", " + JoinName(Stem, i + 1) + "." + Column;
    return Result;
}

// LEFT JOINs of Stem on List.Mat<First>... so that a missing material shows as a null.
inline std::string MaterialJoins(const std::string& List, const std::string& Stem, int Count)
{
    std::string Result;
    for (int i = 0; i < Count; ++i) {
        const std::string Alias = JoinName(Stem, i + 1);
        Result += " LEFT JOIN " + Stem + (i == 0 ? "" : " AS " + Alias) + " ON " + List + ".Mat" +
                  std::to_string(i + 1) + " = " + Alias + ".Num";
    }
    return Result;
}

// ", List.Stem1, List.Stem2..."
inline std::string EachColumn(const std::string& List, const std::string& Stem, int First, int Last)
{
    std::string Result;
    for (int i = First; i <= Last; ++i)
        Result += ", " + List + "." + Stem + std::to_string(i);
    return Result;
}

} // namespace orvane::catalogue
