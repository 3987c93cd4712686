#include "text/utf8.h"

#include <algorithm>
#include <cstdint>

namespace text {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// The code of one whole character.
std::uint32_t codeOf(std::string_view character) {
    const auto lead = static_cast<unsigned char>(character[0]);
    if (character.size() == 1)
        return lead;
    std::uint32_t code = lead & (0x7Fu >> character.size());
    for (const char c : character.substr(1))
        code = code << 6 | (static_cast<unsigned char>(c) & 0x3Fu);
    return code;
}

bool isControl(std::uint32_t code) {
    return code < 0x20 || (code >= 0x7F && code <= 0x9F);
}

bool isLineOrDirection(std::uint32_t code) {
    return code == 0x2028 || code == 0x2029 || code == 0x200E || code == 0x200F ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

template <class IsHarmless>
std::string replaced(std::string_view utf8, IsHarmless isHarmless) {
    std::string plain;
    plain.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::size_t length = utf8CharacterLength(utf8);
        const std::string_view character = utf8.substr(0, std::max<std::size_t>(length, 1));
        plain += length > 0 && isHarmless(codeOf(character)) ? character : kReplacement;
        utf8.remove_prefix(character.size());
    }
    return plain;
}

} // namespace

std::size_t utf8CharacterLength(std::string_view utf8) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || utf8.size() < length ||
        !std::all_of(utf8.begin() + 1, utf8.begin() + static_cast<std::ptrdiff_t>(length),
                     isContinuation))
        return 0;
    const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
    const bool surrogate = lead == 0xED && byte(1) >= 0xA0;
    const bool beyond = lead == 0xF4 && byte(1) >= 0x90;
    return overlong || surrogate || beyond ? 0 : length;
}

std::string plainLine(std::string_view utf8) {
    return replaced(
        utf8, [](std::uint32_t code) { return !isControl(code) && !isLineOrDirection(code); });
}

std::string plainLines(std::string_view utf8) {
    return replaced(
        utf8, [](std::uint32_t code) { return !isControl(code) || code == '\t' || code == '\n'; });
}

} // namespace text
