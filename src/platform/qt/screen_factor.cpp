#include "platform/qt/screen_factor.h"

#include <QWindow>
#include <QtGui/private/qhighdpiscaling_p.h>
#include <qpa/qplatformwindow.h>

namespace platform {

void setScreenFactor(QScreen& screen, double factor) {
    QHighDpiScaling::setScreenFactor(&screen, factor);
}

double screenFactor(const QScreen& screen, double programScale) {
    return QHighDpiScaling::factor(&screen) / programScale;
}

void placeInItsPixels(QWindow& window, QPoint frame, QSize size) {
    QPlatformWindow* system = window.handle();
    if (!system)
        return;
    const QMargins margins = window.frameMargins();
    const QRect geometry(frame + QPoint(margins.left(), margins.top()), size);
    // Placed by the window manager so far, it would stay where it is.
    window.setPosition(geometry.topLeft());
    // The bounds of its size are the same number of larger pixels.
    system->propagateSizeHints();
    system->setGeometry(QHighDpi::toNativeWindowGeometry(geometry, &window));
}

} // namespace platform
