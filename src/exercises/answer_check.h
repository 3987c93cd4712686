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

/// Whether `word`, or `word` with one of the endings "s", "e", "es" and "x", stands in `folded` as
/// a whole word, letter case left aside: no letter or digit just before or just after it. `word`
/// may hold spaces; an empty one is found where no letter or digit is on either side, so in an
/// empty text. Takes time proportional to both lengths.
bool holdsWord(std::u16string_view folded, std::u16string_view word);

/// Whether a typed answer is right. Only what was typed is folded: a solution that has an accent
/// of the folding table, or a sign of it, fits no answer. Meant so.
bool castexte(std::u16string_view solution, std::u16string_view typed);

} // namespace exercises
