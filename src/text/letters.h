#pragma once

namespace text {

/// Lower case of a letter of the Latin or the Greek alphabet and of the signs for ohm, kelvin and
/// ångström, one character for one (Unicode's simple mapping); every other character as it stands.
/// A course in French is written with these.
char16_t lowerCase(char16_t c);

/// The letter without its accent, cedilla or other sign added to it, one character for one, in the
/// Latin alphabet to U+017F and the Greek one; ligatures, letters that a stroke makes (Ø) and all
/// other characters as they stand. The decompositions of Unicode.
char16_t withoutAccent(char16_t c);

/// The character that a keyboard has for one that pages are typeset with: typographic apostrophes,
/// no-break spaces and hyphens, minus signs and the micro sign; every other character as it stands.
char16_t keyboardForm(char16_t c);

/// The small letter, or sign of the keyboard, that somebody would type without thinking of accents.
char16_t plainLetter(char16_t c);

/// Whether a character belongs to a word: letters, digits (raised and lowered ones too) and the
/// accents that stand beside their letter. Exact below U+0250; beyond, all but the blocks of
/// punctuation, signs, symbols and surrogates count as letters.
bool isWordCharacter(char16_t c);

} // namespace text
