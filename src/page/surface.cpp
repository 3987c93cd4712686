#include "page/surface.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace page {

namespace {

bool fitsPen(double value) {
    return std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max());
}

} // namespace

Surface::Surface(SurfaceId id, double scaleWidth, const TextMetrics& metrics, Recording& recording)
    : id_(id), scaleWidth_(scaleWidth), metrics_(metrics), recording_(recording) {}

bool Surface::setPenX(double x) {
    if (!fitsPen(x))
        return false;
    penX_ = x;
    return true;
}

bool Surface::setPenY(double y) {
    if (!fitsPen(y))
        return false;
    penY_ = y;
    return true;
}

bool Surface::setFontPoints(double points) {
    if (!(points >= 0 && points <= kMaxFontPoints))
        return false;
    font_.points = points;
    textHeight_ = -1;
    return true;
}

void Surface::setFace(const QString& face) {
    font_.face = face;
    textHeight_ = -1;
}

void Surface::setBold(bool on) {
    font_.bold = on;
    textHeight_ = -1;
}

void Surface::setItalic(bool on) {
    font_.italic = on;
    textHeight_ = -1;
}

void Surface::setUnderline(bool on) {
    font_.underline = on;
}

double Surface::textWidth(QStringView text) const {
    return metrics_.width(font_, text);
}

double Surface::textHeight() const {
    if (textHeight_ < 0)
        textHeight_ = metrics_.height(font_);
    return textHeight_;
}

void Surface::print(const QString& text) {
    if (text.isEmpty())
        return;
    const double width = textWidth(text);
    recording_.add(TextOperation{id_, penX_, penY_, text, font_, ink_, width});
    setPenX(penX_ + width);
}

void Surface::line(double x1, double y1, double x2, double y2) {
    recording_.add(LineOperation{id_, x1, y1, x2, y2, ink_, lineWidth_});
    setPenX(x2);
    setPenY(y2);
}

void Surface::fill(double x, double y, double width, double height, QRgb ink, FillMode mode) {
    recording_.add(FillOperation{id_, x, y, width, height, ink, mode});
}

void Surface::paint(std::shared_ptr<const Picture> picture, double width, double height,
                    const QString& name, bool symbol) {
    recording_.add(
        PictureOperation{id_, penX_, penY_, width, height, std::move(picture), name, symbol});
}

void Surface::clear() {
    recording_.add(ClearOperation{id_});
    penX_ = 0;
    penY_ = 0;
}

bool Surface::setHeightPx(double pixels) {
    if (!(pixels >= 0))
        return false;
    heightPx_ = std::min(pixels, kMaxSurfaceHeightPx);
    return true;
}

} // namespace page
