#include "page/pictures/png_picture.h"

#include "page/pictures/picture_file.h"

#include <png.h>

namespace page {

namespace {

/// What stands before the pixels. `png` has to be freed when it was read.
bool readHeader(png_image& png, const QByteArray& bytes) {
    png.version = PNG_IMAGE_VERSION;
    return png_image_begin_read_from_memory(&png, bytes.constData(),
                                            static_cast<std::size_t>(bytes.size())) != 0;
}

/// Empty for more pixels in a row or column than pictures may have in all.
QSize sizeOf(const png_image& png) {
    const bool fits = png.width <= kMaxPicturePixels && png.height <= kMaxPicturePixels;
    return fits ? QSize(static_cast<int>(png.width), static_cast<int>(png.height)) : QSize();
}

} // namespace

QSize pngSize(const QByteArray& bytes) {
    png_image png{};
    if (!readHeader(png, bytes))
        return {};
    const QSize size = sizeOf(png);
    png_image_free(&png);
    return size;
}

QImage readPng(const QByteArray& bytes) {
    png_image png{};
    if (!readHeader(png, bytes))
        return {};
    const bool hasAlpha = (png.format & PNG_FORMAT_FLAG_ALPHA) != 0;
    png.format = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
    png.flags |= PNG_IMAGE_FLAG_16BIT_sRGB; // screens' values, as in files of 8 bits
    const QSize size = sizeOf(png);
    QImage image = isPictureSize(size)
                       ? QImage(size, hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32)
                       : QImage();
    const bool read = !image.isNull() &&
                      png_image_finish_read(&png, nullptr, image.bits(),
                                            static_cast<png_int_32>(image.bytesPerLine()), nullptr);
    png_image_free(&png);
    return read ? image : QImage();
}

} // namespace page
