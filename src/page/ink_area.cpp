#include "page/ink_area.h"

#include <algorithm>

namespace page {

namespace {

/// Heights of pages are rounded up to whole pixels, widths of texts are not rounded.
constexpr double kRounding = kTwipsPerPixel;

/// The surface, grown by the margin on each side beyond which the box reaches by `across`, or
/// `down`, at most.
QRectF grown(const QSizeF& surface, const QRectF& box, double across, double down) {
    const auto margin = [](double beyond, double most) { return beyond <= most ? kInkMargin : 0; };
    return QRectF({}, surface)
        .adjusted(-margin(-box.left(), across), -margin(-box.top(), down),
                  margin(box.right() - surface.width(), across),
                  margin(box.bottom() - surface.height(), down));
}

QRectF onSurface(const QRectF& box, const QSizeF& surface) {
    const bool touches = box.left() < surface.width() && box.top() < surface.height() &&
                         box.right() > 0 && box.bottom() > 0;
    return touches ? QRectF({}, surface) : QRectF();
}

} // namespace

QRectF withInkMargin(const QSizeF& surface) {
    return QRectF({}, surface).adjusted(-kInkMargin, -kInkMargin, kInkMargin, kInkMargin);
}

QRectF inkArea(const TextOperation& text, const QSizeF& surface, const TextMetrics& metrics) {
    const double height = metrics.height(text.font);
    const QRectF box(text.x, text.y, text.width, height);
    if (onSurface(box, surface).isEmpty())
        return {};
    return grown(surface, box, kRounding, height / 2);
}

QRectF inkArea(const LineOperation& line, const QSizeF& surface, const TextMetrics&) {
    const auto [left, right] = std::minmax(line.x1, line.x2);
    const auto [top, bottom] = std::minmax(line.y1, line.y2);
    // A border may stand at the very edge, a vector's bar above a first line.
    if (left > surface.width() || top > surface.height() || right < -kInkMargin ||
        bottom < -kInkMargin)
        return {};
    return grown(surface, {left, top, right - left, bottom - top}, kInkMargin, kInkMargin);
}

QRectF inkArea(const FillOperation& fill, const QSizeF& surface, const TextMetrics&) {
    return onSurface({fill.x, fill.y, fill.width, fill.height}, surface);
}

QRectF inkArea(const PictureOperation& picture, const QSizeF& surface, const TextMetrics&) {
    return onSurface({picture.x, picture.y, picture.width, picture.height}, surface);
}

bool isBelow(const TextOperation& text, double height) {
    return text.y > height - kRounding && !QStringView(text.text).trimmed().isEmpty();
}

} // namespace page
