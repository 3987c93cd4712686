#pragma once

#include <cstddef>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define ORVALENTE_SSE2
#endif

namespace text {

// The vector instructions that every 64-bit PC has. Whoever uses them does so where ORVALENTE_SSE2
// is defined, and has a plain loop for other machines.

#ifdef ORVALENTE_SSE2

inline constexpr std::size_t kVectorBytes = sizeof(__m128i);

inline __m128i vectorAt(const void* bytes, std::size_t offset = 0) {
    return _mm_loadu_si128(
        reinterpret_cast<const __m128i*>(static_cast<const char*>(bytes) + offset));
}

inline void putVector(__m128i bytes, char* to) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(to), bytes);
}

#endif

} // namespace text
