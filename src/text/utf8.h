#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace text {

/// Bytes, 1 to 4, of the character that `utf8`, which is not empty, starts with; 0 when it is no
/// UTF-8: a byte that starts none, one that is cut short, a code written longer than it must be, a
/// half of a UTF-16 pair, or a code beyond U+10FFFF.
std::size_t utf8CharacterLength(std::string_view utf8);

/// UTF-16 to UTF-8; unpaired surrogates become U+FFFD.
std::string toUtf8(std::u16string_view text);
void appendUtf8(std::u16string_view text, std::string& out);
/// Writes one character, at most four bytes, and gives the end.
char* encodeUtf8(char32_t character, char* to);

/// UTF-8 to UTF-16; each byte that is part of no character becomes U+FFFD.
std::u16string toUtf16(std::string_view utf8);

/// The text as one line that a terminal can be trusted with, whoever wrote it: U+FFFD stands for
/// control characters (U+0000 to U+001F, U+007F to U+009F), for line and paragraph separators, for
/// what changes the direction of writing (U+200E, U+200F, U+202A to U+202E, U+2066 to U+2069), and
/// for bytes that are no UTF-8.
std::string plainLine(std::string_view utf8);

/// Replaces, in a text of several lines, what could steer a terminal: control characters but the
/// tab and the line feed.
std::string plainLines(std::string_view utf8);

} // namespace text
