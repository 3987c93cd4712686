#include "platform/qt/qt_screen.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace platform {

namespace {

QSize logicalSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->size() : QSize(0, 0);
}

/// Whole pixels: Qt has rounded the smaller length, and the rounding must not decide a threshold.
double unscaledTwips(int logicalPixels, double scale) {
    return std::round(logicalPixels * scale) * page::kTwipsPerPixel;
}

} // namespace

double QtScreen::widthTwips() const {
    return unscaledTwips(logicalSize().width(), scale_);
}

double QtScreen::heightTwips() const {
    return unscaledTwips(logicalSize().height(), scale_);
}

} // namespace platform
