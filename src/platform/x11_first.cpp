#include "platform/x11_first.h"

#include <QByteArray>

namespace platform {

namespace {

/// Read by Qt as its application object begins: names of platforms, the first that works.
constexpr char kPlatform[] = "QT_QPA_PLATFORM";

bool isWaylandDesktop() {
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           qgetenv("XDG_SESSION_TYPE") == "wayland";
}

} // namespace

X11First::X11First() {
    if (!isWaylandDesktop() || qEnvironmentVariableIsEmpty("DISPLAY") ||
        !qEnvironmentVariableIsEmpty(kPlatform))
        return;
    chosen_ = qputenv(kPlatform, "xcb;wayland");
}

X11First::~X11First() {
    if (chosen_)
        qunsetenv(kPlatform);
}

} // namespace platform
