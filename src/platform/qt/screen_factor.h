#pragma once

#include <QPoint>
#include <QSize>

class QScreen;
class QWindow;

namespace platform {

/// Enlarges everything on `screen` while the program runs: from then on a pixel of a window covers
/// `factor` (above 0) pixels of the screen across and down, on top of what QT_SCALE_FACTOR says.
/// Windows keep their place and size on the screen until placeInItsPixels() tells them another.
///
/// Qt offers this to its own platform plugins only (QHighDpiScaling); the functions here are the
/// one place that calls what may change with Qt's next release.
void setScreenFactor(QScreen& screen, double factor);

/// The factor of `screen` without that of QT_SCALE_FACTOR, which is `programScale`.
double screenFactor(const QScreen& screen, double programScale);

/// Gives a window that exists a place, of its frame, and a size in its own pixels as they are now,
/// even when it believes that it has them already.
void placeInItsPixels(QWindow& window, QPoint frame, QSize size);

} // namespace platform
