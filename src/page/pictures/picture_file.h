#pragma once

#include "page/picture.h"

#include <QString>

#include <memory>
#include <optional>

namespace page {

// Pictures of a course: BMP, GIF (its first frame), JPEG, PNG and SVG, told apart by what is in
// them. Windows metafiles are not read: no library for them is kept so well that it could be given
// files from anywhere. A photo's note on how the camera was held is left aside: authors see
// pixels, and pages were written for programs that show them as they lie.

/// Largest file, in bytes: an uncompressed picture of nearly the most pixels still fits.
inline constexpr qint64 kMaxPictureFileBytes = 64 << 20;

/// Most pixels of a picture and of what is made of it: a photo of 24 megapixels, in 100 MB.
inline constexpr qint64 kMaxPicturePixels = 25'000'000;

/// Whether a picture of this size (in pixels) is one, and within the bound.
bool isPictureSize(QSize pixels);

/// What the first bytes of a file say; nothing for everything else. For an SVG they only say that
/// it might be one.
std::optional<PictureFormat> pictureFormat(const QByteArray& bytes);

/// Reads a picture and checks that it can be shown. Null for everything else; an incomplete JPEG or
/// GIF is shown as far as it goes, like a browser does it. SVG files that draw text need a
/// QGuiApplication.
std::shared_ptr<const Picture> pictureFrom(const QByteArray& bytes);

/// The picture in the file at `path`; null when there is none.
std::shared_ptr<const Picture> loadPicture(const QString& path);

} // namespace page
