#include "platform/qt/screen_factor.h"

#include <QtGui/private/qhighdpiscaling_p.h>
#include <qpa/qplatformwindow.h>

namespace platform {

void setScreenFactor(QScreen& screen, double factor) {
    QHighDpiScaling::setScreenFactor(&screen, factor);
}

double screenFactor(const QScreen& screen, double programScale) {
    return QHighDpiScaling::factor(&screen) / programScale;
}

void placeInItsPixels(QWindow& window, const QRect& geometry) {
    QPlatformWindow* system = window.handle();
    if (!system)
        return;
    // The bounds of its size are the same number of larger pixels.
    system->propagateSizeHints();
    system->setGeometry(QHighDpi::toNativeWindowGeometry(geometry, &window));
}

} // namespace platform
