#pragma once

#include "jet/bytes.h"
#include "text/vectors.h"

#include <bit>
#include <cstddef>
#include <cstdint>

namespace search {

// The loops that take the time of a search (`bench/run search`).

/// Lower case in Latin-1: A to Z, and À to Þ but the multiplication sign.
constexpr std::uint8_t foldedLatin(std::uint8_t c) {
    const bool isCapital = (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
    return static_cast<std::uint8_t>(c + (isCapital ? 0x20 : 0));
}

#ifdef ORVALENTE_SSE2

using text::kVectorBytes;
using text::putVector;
using text::vectorAt;

/// All ones where the byte is from `first` to `last`.
inline __m128i isBetween(__m128i bytes, unsigned first, unsigned last) {
    // There is no comparison of unsigned bytes: the range is moved to the bottom of the signed
    // ones.
    constexpr unsigned kBottom = 0x80;
    const auto all = [](unsigned byte) { return _mm_set1_epi8(static_cast<char>(byte)); };
    return _mm_cmplt_epi8(_mm_add_epi8(bytes, all(kBottom - first)),
                          all(kBottom + last - first + 1));
}

inline __m128i foldedLatin(__m128i bytes) {
    const __m128i times = _mm_cmpeq_epi8(bytes, _mm_set1_epi8(static_cast<char>(0xD7)));
    const __m128i isCapital = _mm_or_si128(isBetween(bytes, 'A', 'Z'),
                                           _mm_andnot_si128(times, isBetween(bytes, 0xC0, 0xDE)));
    return _mm_add_epi8(bytes, _mm_and_si128(isCapital, _mm_set1_epi8(0x20)));
}

#endif

/// Folds UTF-16LE units up to U+00FF, one byte each, and stops at a group of sixteen with a unit
/// beyond (or at that unit) and when fewer than sixteen are left (or none). `to` has room for a
/// byte a unit. Gives the number of units taken.
inline std::size_t foldLatin(jet::Bytes units, char* to) {
    std::size_t done = 0;
#ifdef ORVALENTE_SSE2
    const __m128i beyond = _mm_set1_epi16(static_cast<short>(0xFF00));
    const std::uint8_t* const from = units.data();
    for (; units.has(2 * done, 2 * kVectorBytes); done += kVectorBytes) {
        const __m128i first = vectorAt(from, 2 * done);
        const __m128i second = vectorAt(from, 2 * done + kVectorBytes);
        const __m128i high = _mm_and_si128(_mm_or_si128(first, second), beyond);
        if (_mm_movemask_epi8(_mm_cmpeq_epi8(high, _mm_setzero_si128())) != 0xFFFF)
            break;
        putVector(foldedLatin(_mm_packus_epi16(first, second)), to + done);
    }
#else
    for (; units.has(2 * done, 2) && units.u16(2 * done) <= 0xFF; ++done)
        to[done] = static_cast<char>(foldedLatin(units.u8(2 * done)));
#endif
    return done;
}

/// Copies folded bytes up to the first that is no ASCII or begins the four bytes of a unit, "A" to
/// "P", or to the end. May write past them, but no further than `count`. Gives how many there are.
inline std::size_t copyUnaccented(const char* from, std::size_t count, char* to) {
    std::size_t done = 0;
#ifdef ORVALENTE_SSE2
    for (; count - done >= kVectorBytes; done += kVectorBytes) {
        const __m128i bytes = vectorAt(from, done);
        putVector(bytes, to + done);
        // A mask of the highest bits: those of bytes beyond ASCII and those of the comparison.
        const auto stops = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_or_si128(bytes, isBetween(bytes, 'A', 'P'))));
        if (stops != 0)
            return done + static_cast<std::size_t>(std::countr_zero(stops));
    }
#endif
    const auto stops = [](char c) {
        return static_cast<std::uint8_t>(c) >= 0x80 || (c >= 'A' && c <= 'P');
    };
    for (; done < count && !stops(from[done]); ++done)
        to[done] = from[done];
    return done;
}

/// Places that bytePairs compares at once, one bit each in its result.
inline constexpr std::size_t kPairsAtOnce = 64;

/// The places i below 64 at which a[i] is `first` and b[i] is `second`, the lowest bit for i = 0.
inline std::uint64_t bytePairs(const char* a, char first, const char* b, char second) {
    std::uint64_t pairs = 0;
#ifdef ORVALENTE_SSE2
    const __m128i firsts = _mm_set1_epi8(first);
    const __m128i seconds = _mm_set1_epi8(second);
    __m128i both[kPairsAtOnce / kVectorBytes];
    __m128i any = _mm_setzero_si128();
    for (std::size_t i = 0; i < kPairsAtOnce / kVectorBytes; ++i) {
        both[i] = _mm_and_si128(_mm_cmpeq_epi8(vectorAt(a, i * kVectorBytes), firsts),
                                _mm_cmpeq_epi8(vectorAt(b, i * kVectorBytes), seconds));
        any = _mm_or_si128(any, both[i]);
    }
    if (_mm_movemask_epi8(any) == 0)
        return 0;
    for (std::size_t i = 0; i < kPairsAtOnce / kVectorBytes; ++i) {
        const auto bits = static_cast<std::uint32_t>(_mm_movemask_epi8(both[i]));
        pairs |= std::uint64_t{bits} << (i * kVectorBytes);
    }
#else
    for (std::size_t i = 0; i < kPairsAtOnce; ++i)
        pairs |= std::uint64_t{a[i] == first && b[i] == second} << i;
#endif
    return pairs;
}

} // namespace search
