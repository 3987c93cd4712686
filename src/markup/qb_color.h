#pragma once

#include <QRgb>

#include <optional>

namespace markup {

/// Colour of the 16-colour palette of Windows; nothing for an index outside 0 to 15.
std::optional<QRgb> qbColor(int index);

inline constexpr QRgb kBlack = 0xff000000;
inline constexpr int kLightBlueIndex = 9;

} // namespace markup
