#include "platform/qt/svg_picture.h"

#include "platform/qt/bounded_canvas.h"
#include "platform/qt/picture_file.h"
#include "platform/qt/svg_guard.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

/// Pictures up to this many pixels (4 MB each) are kept.
constexpr qint64 kKeptPixels = 1'000'000;

constexpr double kLargestSide = 1e6;

QSize wholePixels(QSizeF size) {
    const auto side = [](double length) {
        return static_cast<int>(std::clamp(std::round(length), 1.0, kLargestSide));
    };
    return {side(size.width()), side(size.height())};
}

} // namespace

std::shared_ptr<const SvgPicture> SvgPicture::read(const QByteArray& bytes) {
    const auto guarded = guardSvg(bytes);
    if (!guarded)
        return nullptr;
    auto renderer = std::make_unique<QSvgRenderer>(guarded->source);
    if (!renderer->isValid())
        return nullptr;
    // Given sizes stretch a drawing like any other picture.
    renderer->setAspectRatioMode(Qt::IgnoreAspectRatio);
    const QSize size =
        wholePixels(guarded->size.isEmpty() ? QSizeF(renderer->defaultSize()) : guarded->size);
    if (!isPictureSize(size))
        return nullptr;
    return std::make_shared<SvgPicture>(bytes, std::move(renderer), size);
}

SvgPicture::SvgPicture(const QByteArray& bytes, std::unique_ptr<QSvgRenderer> renderer, QSize size)
    : bytes_(bytes), renderer_(std::move(renderer)), size_(size) {}

SvgPicture::~SvgPicture() = default;

void SvgPicture::draw(QPainter& painter, const QRectF& place) const {
    painter.save();
    renderer_->render(&painter, place);
    painter.restore();
}

QImage SvgPicture::image(QSize pixels) const {
    if (!isPictureSize(pixels))
        return {};
    if (pixels == last_.size())
        return last_;
    BoundedCanvas canvas(pixels);
    QPainter painter(&canvas);
    renderer_->render(&painter, QRectF(QPointF(), pixels));
    painter.end();
    const bool isKept = qint64(pixels.width()) * pixels.height() <= kKeptPixels;
    last_ = isKept ? canvas.image() : QImage();
    return canvas.image();
}

} // namespace platform
