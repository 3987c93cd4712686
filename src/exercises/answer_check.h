#pragma once

#include <string>
#include <string_view>

namespace exercises {

/// The typed text as it is compared: small letters, some accents taken off, signs made spaces,
/// "-" and "_" deleted. Never longer than `typed`. Positions count UTF-16 units.
///
/// The walk goes one position on after each character, a deleted one too, so that the character
/// which slides into the place of a deleted one is left as it is: "a--b" becomes "a-b". Meant so.
std::u16string foldedAnswer(std::u16string_view typed);

/// Whether a typed answer is right: the solution, or the solution with one of the endings "s", "e",
/// "es" and "x", stands in the folded answer as whole words, letter case left aside. No letter or
/// digit may come just before or just after it. Only the empty answer fits an empty solution, or
/// one of spaces.
///
/// Only what was typed is folded: a solution with an accent or a sign of the folding fits no
/// answer. Meant so. Takes time proportional to both lengths.
bool castexte(std::u16string_view solution, std::u16string_view typed);

} // namespace exercises
