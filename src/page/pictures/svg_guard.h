#pragma once

#include <QByteArray>
#include <QSizeF>

#include <optional>

namespace page {

/// An SVG that can be drawn without harm.
struct GuardedSvg {
    QByteArray source; ///< UTF-8, with a view box where the file gives a size
    QSizeF size;       ///< in pixels; empty when the file does not tell
    qint64 pixels = 0; ///< of the pictures inside
    qint64 elements = 0;
};

// What SVG files may cost, generous for drawings made by hand or by a program for plots.
inline constexpr qsizetype kMaxSvgBytes = 4 << 20;
inline constexpr int kMaxSvgElements = 20'000;
inline constexpr int kMaxSvgDepth = 64;
inline constexpr int kMaxSvgUses = 50'000; ///< elements, those used again each time

/// Texts are laid out anew each time they are drawn: each counts as so many elements, and one more
/// for every few letters.
inline constexpr int kSvgTextElements = 16;
inline constexpr int kSvgLettersToElement = 4;

/// Words of the style sheets, times elements: each rule is tried on each of them.
inline constexpr qint64 kMaxSvgStyleWork = 6'000'000;

/// Longest value of an attribute, paths and the like aside: style sheets of an element have a
/// kilobyte at most. Longer ones are left out.
inline constexpr qsizetype kMaxSvgValue = 4096;

/// Reads an SVG file and leaves out what would reach beyond it: pictures that are not inside the
/// file, style sheets of other files, scripts, document types; and animations, since a page stands
/// still. Pictures inside stay when they are pictures of pixels, all of them together within the
/// bounds of one picture. Nothing when it is no SVG, is damaged, uses itself, or would cost too
/// much. Takes time in proportion to the file and the pictures inside.
std::optional<GuardedSvg> guardSvg(const QByteArray& file);

} // namespace page
