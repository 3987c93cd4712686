#include "jet/unicode.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace jet {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

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

/// Bytes that follow the first byte of a UTF-8 character; 0 also for bytes that start none.
std::size_t followers(std::uint8_t first) {
    if (first >= 0xC2 && first <= 0xDF)
        return 1;
    if (first >= 0xE0 && first <= 0xEF)
        return 2;
    return first >= 0xF0 && first <= 0xF4 ? 3 : 0;
}

Character firstOf(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    if (byte(0) < 0x80)
        return {byte(0), 1};
    const std::size_t count = followers(byte(0));
    if (count == 0 || count >= text.size())
        return {kReplacement, 1};
    char32_t value = byte(0) & (0x3Fu >> count);
    for (std::size_t i = 1; i <= count; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return {kReplacement, 1};
        value = value << 6 | (byte(i) & 0x3Fu);
    }
    const bool overlong = (count == 2 && value < 0x800) || (count == 3 && value < 0x10000);
    if (overlong || value > 0x10FFFF || isHighSurrogate(value) || isLowSurrogate(value))
        return {kReplacement, 1};
    return {value, count + 1};
}

/// Lower case of Latin letters up to U+017F; all other characters stay.
char16_t folded(char16_t c) {
    const auto up = [&](char16_t by) { return static_cast<char16_t>(c + by); };
    if ((c >= u'A' && c <= u'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return up(0x20);
    if (c == 0x178)
        return 0xFF;
    // Capital and small letter follow each other; in two stretches the capital is the odd one.
    const bool oddCapital = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    const bool evenCapital =
        (c >= 0x100 && c <= 0x137 && c != 0x130 && c != 0x131) || (c >= 0x14A && c <= 0x177);
    if ((oddCapital && c % 2 == 1) || (evenCapital && c % 2 == 0))
        return up(1);
    return c;
}

} // namespace

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

std::u16string toUtf16(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const Character next = firstOf(text);
        text.remove_prefix(next.length);
        if (next.value < 0x10000) {
            out += static_cast<char16_t>(next.value);
            continue;
        }
        const char32_t beyond = next.value - 0x10000;
        out += static_cast<char16_t>(0xD800 + (beyond >> 10));
        out += static_cast<char16_t>(0xDC00 + (beyond & 0x3FF));
    }
    return out;
}

std::u16string foldedName(std::u16string_view name) {
    std::u16string out(name);
    std::transform(out.begin(), out.end(), out.begin(), folded);
    return out;
}

bool sameName(std::u16string_view a, std::u16string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char16_t x, char16_t y) { return folded(x) == folded(y); });
}

} // namespace jet
