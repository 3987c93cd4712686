#pragma once

#include <string>
#include <string_view>

namespace jet {

/// UTF-16 to UTF-8; unpaired surrogates become U+FFFD.
std::string toUtf8(std::u16string_view text);
void appendUtf8(std::u16string_view text, std::string& out);
/// Writes one character, at most four bytes, and gives the end.
char* encodeUtf8(char32_t character, char* to);

/// UTF-8 to UTF-16; each byte that is part of no character becomes U+FFFD.
std::u16string toUtf16(std::string_view text);

/// The name with letter case left aside: what sameName compares.
std::u16string foldedName(std::u16string_view name);
/// Whether two names are the same when letter case is left aside (Latin letters, accented ones
/// included).
bool sameName(std::u16string_view a, std::u16string_view b);

} // namespace jet
