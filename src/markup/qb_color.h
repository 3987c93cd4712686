#pragma once

#include <cstdint>
#include <optional>

namespace markup {

/// An opaque colour, 0xffRRGGBB: what Qt calls QRgb, without Qt.
using Rgb = std::uint32_t;

/// Of three parts from 0 to 255.
constexpr Rgb rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return 0xff000000 | red << 16 | green << 8 | blue;
}

/// Colour of the 16-colour palette of Windows; nothing for an index outside 0 to 15.
std::optional<Rgb> qbColor(int index);

inline constexpr Rgb kBlack = 0xff000000;
inline constexpr int kLightBlueIndex = 9;

} // namespace markup
