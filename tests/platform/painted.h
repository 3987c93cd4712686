#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

#include <string>

/// A widget as it is seen, and its pixels as one reads them.
inline QImage painted(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

inline std::string colour(QRgb pixel) {
    return QColor(pixel).name().toStdString();
}
