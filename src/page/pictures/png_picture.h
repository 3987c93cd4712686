#pragma once

#include <QByteArray>
#include <QImage>

namespace page {

/// Reads a PNG file that is held in memory: Format_ARGB32, or Format_RGB32 where all is opaque; of
/// samples of 16 bits eight are left. Null when the file is damaged or has more pixels than
/// pictures may have (isPictureSize). Qt's own reader lets libpng write its complaints to standard
/// error.
QImage readPng(const QByteArray& bytes);

/// Its size in pixels as the file tells it before the pixels; empty when what
/// stands there is damaged, or for sizes far beyond those of pictures. In silence, as well.
QSize pngSize(const QByteArray& bytes);

} // namespace page
