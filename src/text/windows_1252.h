#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace text {

/// Windows-1252 from 0x80 to 0x9F; 0 for the five codes that it leaves open (0x81, 0x8D, 0x8F,
/// 0x90, 0x9D). All others are those of Latin-1. Source: Unicode's mapping of code page 1252.
inline constexpr std::array<char16_t, 32> kWindows1252Specials{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
inline constexpr std::uint8_t kFirstWindows1252Special = 0x80;

/// The character of a code; nothing for one that is left open.
constexpr std::optional<char16_t> fromWindows1252(std::uint8_t code) {
    const auto place = static_cast<std::size_t>(code - kFirstWindows1252Special);
    if (code < kFirstWindows1252Special || place >= kWindows1252Specials.size())
        return code;
    if (kWindows1252Specials[place] == 0)
        return std::nullopt;
    return kWindows1252Specials[place];
}

/// The code of a character; nothing for one that has none.
constexpr std::optional<std::uint8_t> toWindows1252(char16_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<std::uint8_t>(character);
    for (std::size_t place = 0; place < kWindows1252Specials.size(); ++place)
        if (kWindows1252Specials[place] == character)
            return static_cast<std::uint8_t>(kFirstWindows1252Special + place);
    return std::nullopt;
}

} // namespace text
