#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>

namespace test_support {

/// What a display shows in a rectangle of its screen; null when it cannot be read.
QImage pictureOfScreen(const QByteArray& display, const QRect& part);

} // namespace test_support
