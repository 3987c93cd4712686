#include "page/pictures/raster_picture.h"

#include "page/pictures/decoded_cache.h"
#include "page/pictures/picture_file.h"
#include "page/pictures/png_picture.h"

#include <QBuffer>
#include <QImageReader>

namespace page {

namespace {

using decoded::Part;

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

} // namespace

std::shared_ptr<const RasterPicture> RasterPicture::read(const QByteArray& bytes,
                                                         PictureFormat format) {
    const QImage pixels = decode(bytes, format);
    if (!isPictureSize(pixels.size()))
        return nullptr;
    return std::make_shared<RasterPicture>(bytes, format, pixels);
}

QSize RasterPicture::toldSize(const QByteArray& bytes, PictureFormat format) {
    const auto told = [&] {
        if (format == PictureFormat::Png)
            return pngSize(bytes);
        QByteArray read = bytes;
        QBuffer buffer(&read);
        QImageReader reader(&buffer, readerName(format));
        reader.setAutoDetectImageFormat(false);
        return reader.size();
    };
    const QSize size = told();
    return isPictureSize(size) ? size : QSize(0, 0);
}

bool RasterPicture::isReadable(const QByteArray& bytes, PictureFormat format) {
    return isPictureSize(decode(bytes, format).size());
}

RasterPicture::RasterPicture(const QByteArray& bytes, PictureFormat format, const QImage& pixels)
    : bytes_(bytes), format_(format), size_(pixels.size()) {
    decoded::keepPixels(this, Part::Own, pixels);
}

RasterPicture::~RasterPicture() {
    decoded::forget(this);
}

/// In its own size, where that is small enough to be kept.
QImage RasterPicture::own() const {
    if (4 * qint64(size_.width()) * size_.height() > kMostKeptBytes)
        return {};
    QImage pixels = decoded::findPixels(this, Part::Own, size_);
    if (pixels.isNull()) {
        pixels = decode(bytes_, format_);
        decoded::keepPixels(this, Part::Own, pixels);
    }
    return pixels;
}

QImage RasterPicture::image(QSize pixels) const {
    if (!isPictureSize(pixels))
        return {};
    if (QImage last = decoded::findPixels(this, Part::Drawn, pixels); !last.isNull())
        return last;
    const QImage own = this->own();
    if (pixels == own.size())
        return own;
    QImage image = own.isNull()
                       ? decode(bytes_, format_, pixels)
                       : own.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // Scaling may leave another format behind.
    image = inScreenFormat(image);
    decoded::keepPixels(this, Part::Drawn, image);
    return image;
}

} // namespace page
