#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// What handlers need of texts, in characters as a reader counts them, never bytes. All texts are
// UTF-8; a malformed byte counts as one character and never fails.
namespace orvane {

// Before the first use, and before a second thread begins: whoever doesn't tell the locale has it
// looked up in the C library, which may be changing it for another thread.
void UseFrench();

std::size_t CharacterCount(std::string_view Text);

// The first Count characters, or the whole text when it is shorter.
std::string FirstCharacters(std::string_view Text, std::size_t Count);

// All but the last Count characters; empty when there are no more than Count.
std::string WithoutLastCharacters(std::string_view Text, std::size_t Count);

bool Contains(std::string_view Text, std::string_view Word);

// Without regard to case, for accented letters too; accents count.
bool ContainsIgnoringCase(std::string_view Text, std::string_view Word);

// The text with case folded away letter by letter: two texts are equal without regard to case when
// their folded forms are equal.
std::string FoldedCase(std::string_view Text);

// The text with case and accents folded away, for finding entries as somebody types.
std::string FoldedForSearch(std::string_view Text);

// Each way to write Text that differs by the case of its non-ASCII letters only, Text itself first.
// Empty when there would be more than Limit.
std::vector<std::string> AccentedCaseVariants(std::string_view Text, std::size_t Limit);

// The order of a French dictionary: less than, equal to or greater than zero.
int CompareFrench(std::string_view Left, std::string_view Right);

} // namespace orvane
