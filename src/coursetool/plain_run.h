#pragma once

#include "jet/bytes.h"
#include "text/vectors.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace coursetool {

// How the characters of a text are written in a JSON string, and the loops over them that take the
// time of a dump (`bench/run jet`).

constexpr bool needsEscape(unsigned char c) {
    return c < 0x20 || c == '"' || c == '\\';
}

/// Longest escape, "\u0000", which is longer than any character in UTF-8.
inline constexpr std::size_t kLongest = 6;

/// A character as it is written.
struct Written {
    char bytes[7];
    unsigned char length;
};

constexpr Written writtenLatin(unsigned char c) {
    constexpr char kDigits[] = "0123456789abcdef";
    constexpr char kLetters[] = "........tn..r";
    if (c >= 0x80)
        return {{static_cast<char>(0xC0 | c >> 6), static_cast<char>(0x80 | (c & 0x3F))}, 2};
    if (!needsEscape(c))
        return {{static_cast<char>(c)}, 1};
    if (c == '"' || c == '\\')
        return {{'\\', static_cast<char>(c)}, 2};
    if (c == '\t' || c == '\n' || c == '\r')
        return {{'\\', kLetters[c - 1]}, 2};
    return {{'\\', 'u', '0', '0', kDigits[c >> 4], kDigits[c & 0xF]}, kLongest};
}

/// All characters up to U+00FF: a look here is quicker than a decision.
inline constexpr auto kWrittenLatin = [] {
    std::array<Written, 256> all{};
    for (std::size_t c = 0; c < all.size(); ++c)
        all[c] = writtenLatin(static_cast<unsigned char>(c));
    return all;
}();

/// Writes one of them, and as many bytes as a Written has, and gives its end.
inline char* putLatin(unsigned char c, char* to) {
    const Written& written = kWrittenLatin[c];
    std::memcpy(to, &written, sizeof written);
    return to + written.length;
}

#ifdef ORVALENTE_SSE2

/// All ones where the byte needs an escape.
inline __m128i needEscapes(__m128i bytes) {
    const __m128i isControl = _mm_cmpeq_epi8(_mm_min_epu8(bytes, _mm_set1_epi8(0x1F)), bytes);
    return _mm_or_si128(isControl, _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('"')),
                                                _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\'))));
}

/// Sixteen units, a byte each: units beyond a byte become 0xFF or, the upper half of them, 0.
inline __m128i narrowed(const std::uint8_t* units) {
    return _mm_packus_epi16(text::vectorAt(units), text::vectorAt(units, text::kVectorBytes));
}

#endif

/// Bytes that the loops below may write behind those that count.
inline constexpr std::size_t kOverrun = 16;

/// Writes units (UTF-16LE) as long as they are sixteen at a time below U+0100; `to` goes on with
/// them. Gives how many it took.
inline std::size_t putLatinRun(jet::Bytes units, char*& to) {
    std::size_t done = 0;
#ifdef ORVALENTE_SSE2
    constexpr std::size_t kUnits = text::kVectorBytes;
    // Twice as many are there, so that a block can be read again from any of its units on.
    for (; units.has(2 * done, 4 * kUnits); done += kUnits) {
        const std::uint8_t* const block = units.data() + 2 * done;
        const __m128i bytes = narrowed(block);
        // The highest bits: of bytes beyond ASCII, and of those that need an escape.
        auto stops =
            static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(bytes, needEscapes(bytes))));
        text::putVector(bytes, to);
        std::size_t written = 0;
        for (; stops != 0; stops &= stops - 1) {
            const auto at = static_cast<std::size_t>(std::countr_zero(stops));
            to += at - written;
            if (block[2 * at + 1] != 0)
                return done + at;
            to = putLatin(block[2 * at], to);
            written = at + 1;
            text::putVector(narrowed(block + 2 * written), to);
        }
        to += kUnits - written;
    }
#endif
    return done;
}

/// Copies bytes of UTF-8 up to the first that needs an escape, and gives their number.
inline std::size_t copyPlain(std::string_view utf8, char* to) {
    std::size_t done = 0;
#ifdef ORVALENTE_SSE2
    for (; utf8.size() - done >= text::kVectorBytes; done += text::kVectorBytes) {
        const __m128i bytes = text::vectorAt(utf8.data(), done);
        text::putVector(bytes, to + done);
        const auto stops = static_cast<unsigned>(_mm_movemask_epi8(needEscapes(bytes)));
        if (stops != 0)
            return done + static_cast<std::size_t>(std::countr_zero(stops));
    }
#endif
    for (; done < utf8.size() && !needsEscape(static_cast<unsigned char>(utf8[done])); ++done)
        to[done] = utf8[done];
    return done;
}

} // namespace coursetool
