#pragma once

#include <QImage>

#include <memory>

namespace page {

/// Most bytes of what pictures have decoded, all of them together: a page full of photographs at
/// twice the screen's density.
inline constexpr qint64 kMostDecodedBytes = 64 << 20;

/// Most bytes of one thing that is kept: a page's pictures are smaller, and what is larger takes so
/// long to draw that decoding it counts little.
inline constexpr qint64 kMostKeptBytes = 4'000'000;

/// What pictures have decoded and may ask for again. It is shared by all of them, since a page
/// holds as many pictures as it likes: what was used longest ago goes first. Any thread may call.
namespace decoded {

/// What is kept of a picture.
enum class Part {
    Own,     ///< its pixels in its own size
    Drawn,   ///< in the size asked for last
    Drawing, ///< an SVG that has been read
};

/// Null when it is not there any more.
std::shared_ptr<const void> find(const void* picture, Part part);

/// `bytes`: what `thing` takes. Too large a thing is not kept, and what was there goes.
void keep(const void* picture, Part part, std::shared_ptr<const void> thing, qint64 bytes);

/// Pixels of that size; null when they are not there any more.
QImage findPixels(const void* picture, Part part, QSize size);
void keepPixels(const void* picture, Part part, const QImage& pixels);

/// To be called when the picture goes.
void forget(const void* picture);

/// What is kept at present, of all pictures.
qint64 bytes();

} // namespace decoded

} // namespace page
