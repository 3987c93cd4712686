#pragma once

#include <QString>

namespace page {

/// The type a surface prints with. `face` is the name the page asked for, whatever face stands in
/// for it on this system.
struct Font {
    QString face = QStringLiteral("Arial");
    double points = 10; ///< 0 to kMaxFontPoints; at 0 nothing shows and every measure is 0
    bool bold = false;
    bool italic = false;
    bool underline = false;

    bool operator==(const Font&) const = default;
};

/// Largest size a surface accepts, in points: larger letters would not fit any page, and their
/// line heights would leave the 16-bit range of the vertical shifts.
inline constexpr double kMaxFontPoints = 2048;

/// Where an underline runs below the foot of the letters and how thick it is, in parts of the
/// letters' square: where the text faces have it.
inline constexpr double kUnderlineDrop = 1 / 10.0;
inline constexpr double kUnderlineThickness = 1 / 14.0;

/// Height of the letters' square in whole pixels of 96 to the inch: sizes snap to whole pixels so
/// that a page breaks alike on every device.
int fontPixels(double points);

} // namespace page
