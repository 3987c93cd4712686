#include "coursetool/json_text.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace coursetool {

namespace {

bool needsEscape(unsigned char c) {
    return c < 0x20 || c == '"' || c == '\\';
}

// Text is looked at in blocks of this many bytes.
constexpr std::size_t kBlock = sizeof(std::uint64_t);

/// Copies a block as it stands and returns how many of its bytes come before the first one that
/// needs an escape.
std::size_t copyBlock(const char* text, char* to) {
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::uint64_t block;
    std::memcpy(&block, text, kBlock);
    std::memcpy(to, &block, kBlock);
    // The high bit of each byte below `limit`; bytes after the first such one may be wrong.
    const auto below = [](std::uint64_t x, unsigned limit) { return (x - kOnes * limit) & ~x; };
    const std::uint64_t found =
        (below(block, 0x20) | below(block ^ kOnes * '"', 1) | below(block ^ kOnes * '\\', 1)) &
        kHighBits;
    if constexpr (std::endian::native == std::endian::little)
        return static_cast<std::size_t>(std::countr_zero(found)) / 8;
    std::size_t plain = 0;
    while (plain < kBlock && !needsEscape(static_cast<unsigned char>(text[plain])))
        ++plain;
    return plain;
}

/// Writes the escape and returns what follows it.
char* writeEscape(unsigned char c, char* to) {
    static constexpr char kDigits[] = "0123456789abcdef";
    static constexpr char kLetters[] = "........tn..r";
    *to++ = '\\';
    if (c == '"' || c == '\\') {
        *to++ = static_cast<char>(c);
    } else if (c == '\t' || c == '\n' || c == '\r') {
        *to++ = kLetters[c - 1];
    } else {
        std::memcpy(to, "u00", 3);
        to[3] = kDigits[c >> 4];
        to[4] = kDigits[c & 0xF];
        to += 5;
    }
    return to;
}

/// Longest escape, "\u0000".
constexpr std::size_t kLongestEscape = 6;

/// Text is escaped in pieces of this many bytes, which fit a buffer on the stack at their longest.
constexpr std::size_t kPiece = 1024;

/// Writes the piece with its escapes; `to` has room for a whole block more than it may need.
char* writePiece(std::string_view piece, char* to) {
    const char* at = piece.data();
    const char* const end = at + piece.size();
    while (end - at >= static_cast<std::ptrdiff_t>(kBlock)) {
        const std::size_t plain = copyBlock(at, to);
        at += plain;
        to += plain;
        if (plain == kBlock)
            continue;
        do // line ends come as two
            to = writeEscape(static_cast<unsigned char>(*at++), to);
        while (at != end && needsEscape(static_cast<unsigned char>(*at)));
    }
    for (; at != end; ++at) {
        const auto c = static_cast<unsigned char>(*at);
        if (needsEscape(c))
            to = writeEscape(c, to);
        else
            *to++ = *at;
    }
    return to;
}

template <class Number>
void appendShortest(Number number, std::string& out) {
    if (!std::isfinite(number)) {
        out += std::isnan(number) ? "\"NaN\"" : number > 0 ? "\"Infinity\"" : "\"-Infinity\"";
        return;
    }
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    out.append(digits, end);
}

} // namespace

void appendJsonString(std::string_view utf8, std::string& out) {
    char buffer[kPiece * kLongestEscape + kBlock];
    out += '"';
    while (!utf8.empty()) {
        const std::string_view piece = utf8.substr(0, kPiece);
        out.append(buffer, writePiece(piece, buffer));
        utf8.remove_prefix(piece.size());
    }
    out += '"';
}

void appendJsonNumber(double number, std::string& out) {
    appendShortest(number, out);
}

void appendJsonNumber(float number, std::string& out) {
    appendShortest(number, out);
}

} // namespace coursetool
