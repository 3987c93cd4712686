#include "platform/qt/svg_picture.h"

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

/// Elements times pixels of one drawing. What is beyond is drawn smaller and enlarged: elements
/// that each fill a large picture would otherwise take minutes.
constexpr double kMaxWork = 2e10;

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
    return std::make_shared<SvgPicture>(bytes, std::move(renderer), size, guarded->weight);
}

SvgPicture::SvgPicture(const QByteArray& bytes, std::unique_ptr<QSvgRenderer> renderer, QSize size,
                       qint64 weight)
    : bytes_(bytes), renderer_(std::move(renderer)), size_(size), weight_(weight) {}

SvgPicture::~SvgPicture() = default;

QImage SvgPicture::image(QSize pixels) const {
    if (!isPictureSize(pixels))
        return {};
    if (pixels == last_.size())
        return last_;
    QImage image(affordable(pixels), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    renderer_->render(&painter, image.rect());
    painter.end();
    if (image.size() != pixels)
        image = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const bool isKept = qint64(pixels.width()) * pixels.height() <= kKeptPixels;
    last_ = isKept ? image : QImage();
    return image;
}

QSize SvgPicture::affordable(QSize pixels) const {
    const double work = static_cast<double>(weight_) * pixels.width() * pixels.height();
    if (work <= kMaxWork)
        return pixels;
    return (QSizeF(pixels) * std::sqrt(kMaxWork / work)).toSize().expandedTo({1, 1});
}

} // namespace platform
