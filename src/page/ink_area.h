#pragma once

#include "page/recording.h"
#include "page/text_metrics.h"
#include "page/twips.h"

#include <QRectF>
#include <QSizeF>

namespace page {

/// Room around a surface for ink, in twips. A surface is as tall as the lines on it are high, but
/// letters lean out of the boxes that measure them, and a border stands just beyond the row that it
/// closes: accents of capitals on a first line, feet of a last one, the right and the lower edge of
/// a table. Whoever shows a surface shows this margin too; it counts in no height and no scrolling.
inline constexpr double kInkMargin = 8 * kTwipsPerPixel;

/// The surface with its margin.
QRectF withInkMargin(const QSizeF& surface);

// What an operation may ink of a surface of this size, in twips of it. A text whose middle is on
// the surface, and a line that ends no further out than the margin, ink the margin as well; what
// reaches further out to a side is cut at the surface's edge there, as fills and pictures are at
// each. Empty when nothing of it stands on the surface.
QRectF inkArea(const TextOperation& text, const QSizeF& surface, const TextMetrics& metrics);
QRectF inkArea(const LineOperation& line, const QSizeF& surface, const TextMetrics& metrics);
QRectF inkArea(const FillOperation& fill, const QSizeF& surface, const TextMetrics& metrics);
QRectF inkArea(const PictureOperation& picture, const QSizeF& surface, const TextMetrics& metrics);

/// Whether a text that shows something stands below a surface that is `height` twips tall, where
/// nobody sees it.
bool isBelow(const TextOperation& text, double height);

} // namespace page
