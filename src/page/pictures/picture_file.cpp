#include "page/pictures/picture_file.h"

#include "page/pictures/raster_picture.h"
#include "page/pictures/svg_picture.h"

#include <QFile>
#include <QFileInfo>

namespace page {

namespace {

constexpr char kUtf8Mark[] = "\xEF\xBB\xBF";
constexpr char kUtf16Marks[2][3] = {"\xFF\xFE", "\xFE\xFF"};

/// Blanks before an SVG's first tag are at most a screenful.
constexpr qsizetype kFirstBytes = 2048;

bool looksLikeXml(const QByteArray& bytes) {
    if (bytes.startsWith(kUtf16Marks[0]) || bytes.startsWith(kUtf16Marks[1]))
        return true;
    const qsizetype mark = bytes.startsWith(kUtf8Mark) ? qsizetype(sizeof(kUtf8Mark)) - 1 : 0;
    return bytes.mid(mark, kFirstBytes).trimmed().startsWith('<');
}

} // namespace

bool isPictureSize(QSize pixels) {
    return !pixels.isEmpty() && qint64(pixels.width()) * pixels.height() <= kMaxPicturePixels;
}

std::optional<PictureFormat> pictureFormat(const QByteArray& bytes) {
    if (bytes.startsWith("BM"))
        return PictureFormat::Bmp;
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a"))
        return PictureFormat::Gif;
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return PictureFormat::Jpeg;
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return PictureFormat::Png;
    if (looksLikeXml(bytes))
        return PictureFormat::Svg;
    return std::nullopt;
}

std::shared_ptr<const Picture> pictureFrom(const QByteArray& bytes) {
    const auto format = pictureFormat(bytes);
    if (!format || bytes.size() > kMaxPictureFileBytes)
        return nullptr;
    if (*format == PictureFormat::Svg)
        return SvgPicture::read(bytes);
    return RasterPicture::read(bytes, *format);
}

std::shared_ptr<const Picture> loadPicture(const QString& path) {
    // Reading from what is no file could wait for ever.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) ||
        file.size() > kMaxPictureFileBytes)
        return nullptr;
    return pictureFrom(file.read(kMaxPictureFileBytes));
}

} // namespace page
