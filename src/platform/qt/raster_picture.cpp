#include "platform/qt/raster_picture.h"

#include "platform/qt/picture_file.h"
#include "platform/qt/png_picture.h"

#include <QBuffer>
#include <QImageReader>

namespace platform {

namespace {

/// Pictures up to this many pixels (4 MB each) are kept: every page's are smaller.
constexpr qint64 kKeptPixels = 1'000'000;

/// Scans of a progressive JPEG. Ten are usual; each takes the time of the whole picture, and a
/// small file can ask for thousands.
constexpr qsizetype kMaxJpegScans = 32;
constexpr char kScanMarker[] = "\xFF\xDA";

const char* readerName(PictureFormat format) {
    switch (format) {
    case PictureFormat::Bmp:
        return "bmp";
    case PictureFormat::Gif:
        return "gif";
    case PictureFormat::Jpeg:
        return "jpg";
    case PictureFormat::Png:
        return "png";
    case PictureFormat::Svg:
        break;
    }
    return "";
}

QImage inScreenFormat(const QImage& image) {
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

/// The picture, scaled to `pixels` when they are given.
QImage decode(QByteArray bytes, PictureFormat format, QSize pixels = {}) {
    if (format == PictureFormat::Jpeg && bytes.count(kScanMarker) > kMaxJpegScans)
        return {};
    if (format == PictureFormat::Png) {
        const QImage image = inScreenFormat(readPng(bytes));
        return pixels.isEmpty() || image.isNull()
                   ? image
                   : image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, readerName(format));
    reader.setAutoDetectImageFormat(false);
    if (!isPictureSize(reader.size()))
        return {};
    if (!pixels.isEmpty())
        reader.setScaledSize(pixels);
    return inScreenFormat(reader.read());
}

bool isKept(const QImage& image) {
    return qint64(image.width()) * image.height() <= kKeptPixels;
}

} // namespace

std::shared_ptr<const RasterPicture> RasterPicture::read(const QByteArray& bytes,
                                                         PictureFormat format) {
    const QImage pixels = decode(bytes, format);
    if (!isPictureSize(pixels.size()))
        return nullptr;
    return std::make_shared<RasterPicture>(bytes, format, pixels);
}

RasterPicture::RasterPicture(const QByteArray& bytes, PictureFormat format, const QImage& pixels)
    : bytes_(bytes), format_(format), size_(pixels.size()) {
    if (isKept(pixels))
        own_ = pixels;
}

QImage RasterPicture::image(QSize pixels) const {
    if (!isPictureSize(pixels))
        return {};
    if (pixels == own_.size())
        return own_;
    if (pixels == last_.size())
        return last_;
    QImage image = own_.isNull()
                       ? decode(bytes_, format_, pixels)
                       : own_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // Scaling may leave another format behind.
    image = inScreenFormat(image);
    last_ = isKept(image) ? image : QImage();
    return image;
}

} // namespace platform
