#pragma once

#include <QRgb>

#include <optional>

namespace markup {

/// The tints that the ground of a page and a filled table row have in common, by the style that a
/// directive names: green, yellow, blue, orange. Nothing for the others, which each of them has, or
/// has not, for itself.
inline std::optional<QRgb> commonTint(int style) {
    switch (style) {
    case 1:
        return qRgb(220, 255, 230);
    case 2:
        return qRgb(255, 255, 220);
    case 4:
        return qRgb(220, 230, 255);
    case 5:
        return qRgb(255, 240, 220);
    default:
        return std::nullopt;
    }
}

} // namespace markup
