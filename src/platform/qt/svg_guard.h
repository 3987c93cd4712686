#pragma once

#include <QByteArray>
#include <QSizeF>

#include <optional>

namespace platform {

/// An SVG that can be drawn without harm.
struct GuardedSvg {
    QByteArray source; ///< UTF-8, with a view box where the file gives a size
    QSizeF size;       ///< in pixels; empty when the file does not tell
};

// What SVG files may cost, generous for drawings made by hand or by a program for plots.
inline constexpr qsizetype kMaxSvgBytes = 4 << 20;
inline constexpr int kMaxSvgElements = 20'000;
inline constexpr int kMaxSvgDepth = 64;
inline constexpr int kMaxSvgUses = 50'000; ///< elements, those used again each time

/// Reads an SVG file and leaves out what would reach beyond it: pictures that are not inside the
/// file, style sheets of other files, scripts, document types. Pictures inside stay when they are
/// pictures of pixels within the bounds of pictures. Nothing when it is no SVG, is damaged, uses
/// itself, or would cost too much.
std::optional<GuardedSvg> guardSvg(const QByteArray& file);

} // namespace platform
