#include "jet/utf8_writer.h"

#include "jet/unicode.h"

#include <array>
#include <bit>
#include <cstring>
#include <utility>

namespace jet {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
/// A unit completes at most a replacement for an unpaired surrogate before it, and itself.
constexpr std::size_t kMostPerUnit = 6;
/// Units that go through the buffer on the stack at a time.
constexpr std::size_t kStretch = 512;
/// Units looked at together.
constexpr std::size_t kTogether = 4;

bool isHigh(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isLow(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// Tests of four units in a word, the first one lowest.
bool areAscii(std::uint64_t word) {
    return (word & 0xFF80FF80FF80FF80u) == 0;
}
bool takeTwoBytesAtMost(std::uint64_t word) {
    return (word & 0xF800F800F800F800u) == 0;
}

void put32(char* to, std::uint32_t bytes) {
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(to, &bytes, sizeof bytes);
    } else {
        for (std::size_t i = 0; i < sizeof bytes; ++i)
            to[i] = static_cast<char>(bytes >> (8 * i));
    }
}

/// The low bytes of four units, written as four characters.
void narrow(std::uint64_t word, char* to) {
    std::uint64_t packed = word & 0x00FF00FF00FF00FFu;
    packed = (packed | packed >> 8) & 0x0000FFFF0000FFFFu;
    packed |= packed >> 16;
    put32(to, static_cast<std::uint32_t>(packed));
}

/// Four units below U+0800, without a branch: in accented text no guess would be right often.
char* putShort(std::uint64_t word, char* to) {
    for (std::size_t i = 0; i < kTogether; ++i) {
        const auto unit = static_cast<unsigned>(word >> (16 * i) & 0xFFFF);
        const unsigned isLong = unit >= 0x80;
        to[0] = static_cast<char>(isLong ? 0xC0 | unit >> 6 : unit);
        to[1] = static_cast<char>(0x80 | (unit & 0x3F));
        to += 1 + isLong;
    }
    return to;
}

} // namespace

void Utf8Writer::unit(char16_t unit) {
    std::array<char, kMostPerUnit> buffer;
    out_.append(buffer.data(), put(unit, buffer.data()));
}

void Utf8Writer::ascii(const std::uint8_t* bytes, std::size_t count) {
    if (count == 0)
        return;
    finish();
    out_.append(reinterpret_cast<const char*>(bytes), count);
}

void Utf8Writer::wide(Bytes units) {
    std::array<char, kStretch * kMostPerUnit + kTogether> buffer;
    while (units.size() >= 2) {
        const Bytes stretch = units.first(2 * kStretch);
        out_.append(buffer.data(), putStretch(stretch, buffer.data()));
        units = units.from(stretch.size());
    }
}

void Utf8Writer::finish() {
    if (std::exchange(high_, u'\0') == 0)
        return;
    std::array<char, kMostPerUnit> buffer;
    out_.append(buffer.data(), encodeUtf8(kReplacement, buffer.data()));
}

char* Utf8Writer::put(char16_t unit, char* to) {
    if (high_ != 0) {
        const char16_t high = std::exchange(high_, u'\0');
        if (isLow(unit))
            return encodeUtf8(0x10000u + ((high - 0xD800u) << 10) + (unit - 0xDC00u), to);
        to = encodeUtf8(kReplacement, to);
    }
    if (isHigh(unit)) {
        high_ = unit;
        return to;
    }
    return encodeUtf8(isLow(unit) ? kReplacement : char32_t{unit}, to);
}

char* Utf8Writer::putStretch(Bytes units, char* to) {
    std::size_t at = 0;
    while (at + 1 < units.size()) {
        const std::uint64_t word = units.u64(at);
        if (high_ != 0 || !units.has(at, 2 * kTogether) || !takeTwoBytesAtMost(word)) {
            to = put(units.u16(at), to);
            at += 2;
            continue;
        }
        if (areAscii(word)) {
            narrow(word, to);
            to += kTogether;
        } else {
            to = putShort(word, to);
        }
        at += 2 * kTogether;
    }
    return to;
}

} // namespace jet
