#pragma once

#include <QMargins>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace look {

/// Thickness, in logical pixels, of a line of `pixels` that covers whole device pixels.
inline double crisp(const QPainter& painter, double pixels = 1) {
    const double ratio = painter.device()->devicePixelRatioF();
    return std::max(1.0, std::round(pixels * ratio)) / ratio;
}

/// `position` moved to the nearest edge of a device pixel, for an unscaled painter.
inline double snapped(const QPainter& painter, double position) {
    const double ratio = painter.device()->devicePixelRatioF();
    return std::round(position * ratio) / ratio;
}

/// What a child keeps free at the edges of a window part with a frame of a pixel: at one and a half
/// pixels of the screen to a logical one, the frame takes more than the first.
inline constexpr QMargins kInsideFrame{2, 2, 2, 2};

/// Draws a frame of `thickness` logical pixels just inside `outside`.
inline void drawFrame(QPainter& painter, const QRectF& outside, double radius, QRgb edge,
                      QBrush ground, double thickness = 1) {
    const double width = crisp(painter, thickness);
    const double inset = width / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(edge), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(ground);
    const QRectF line = outside.adjusted(inset, inset, -inset, -inset);
    painter.drawRoundedRect(line, radius, radius);
    painter.restore();
}

} // namespace look
