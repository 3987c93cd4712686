#include "text/utf8.h"

#include <algorithm>

namespace text {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr std::string_view kReplacementUtf8 = "\xEF\xBF\xBD";

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The character at the start of `text`, which is not empty, and the units it takes.
struct Character {
    char32_t value;
    std::size_t length;
};

Character firstOf(std::u16string_view text) {
    const char32_t unit = text[0];
    if (isHighSurrogate(unit) && text.size() > 1 && isLowSurrogate(text[1]))
        return {0x10000 + ((unit - 0xD800) << 10) + (text[1] - 0xDC00u), 2};
    return {isHighSurrogate(unit) || isLowSurrogate(unit) ? kReplacement : unit, 1};
}

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// The code of one whole character.
char32_t codeOf(std::string_view character) {
    const auto lead = static_cast<unsigned char>(character[0]);
    if (character.size() == 1)
        return lead;
    char32_t code = lead & (0x7Fu >> character.size());
    for (const char c : character.substr(1))
        code = code << 6 | (static_cast<unsigned char>(c) & 0x3Fu);
    return code;
}

bool isControl(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code <= 0x9F);
}

bool isLineOrDirection(char32_t code) {
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
        plain += length > 0 && isHarmless(codeOf(character)) ? character : kReplacementUtf8;
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

char* encodeUtf8(char32_t character, char* to) {
    const auto tail = [&](unsigned shift) {
        *to++ = static_cast<char>(0x80 | (character >> shift & 0x3F));
    };
    if (character < 0x80) {
        *to++ = static_cast<char>(character);
    } else if (character < 0x800) {
        *to++ = static_cast<char>(0xC0 | character >> 6);
        tail(0);
    } else if (character < 0x10000) {
        *to++ = static_cast<char>(0xE0 | character >> 12);
        tail(6);
        tail(0);
    } else {
        *to++ = static_cast<char>(0xF0 | character >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
    return to;
}

void appendUtf8(std::u16string_view text, std::string& out) {
    while (!text.empty()) {
        const Character next = firstOf(text);
        char buffer[4];
        out.append(buffer, encodeUtf8(next.value, buffer));
        text.remove_prefix(next.length);
    }
}

std::string toUtf8(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    appendUtf8(text, out);
    return out;
}

std::u16string toUtf16(std::string_view utf8) {
    std::u16string out;
    out.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::size_t length = utf8CharacterLength(utf8);
        const char32_t character = length > 0 ? codeOf(utf8.substr(0, length)) : kReplacement;
        utf8.remove_prefix(std::max<std::size_t>(length, 1));
        if (character < 0x10000) {
            out += static_cast<char16_t>(character);
            continue;
        }
        const char32_t beyond = character - 0x10000;
        out += static_cast<char16_t>(0xD800 + (beyond >> 10));
        out += static_cast<char16_t>(0xDC00 + (beyond & 0x3FF));
    }
    return out;
}

std::string plainLine(std::string_view utf8) {
    return replaced(utf8,
                    [](char32_t code) { return !isControl(code) && !isLineOrDirection(code); });
}

std::string plainLines(std::string_view utf8) {
    return replaced(utf8,
                    [](char32_t code) { return !isControl(code) || code == '\t' || code == '\n'; });
}

} // namespace text
