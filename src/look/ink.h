#pragma once

#include <QPalette>
#include <QWidget>

namespace look {

/// Gives the words of a label another colour.
inline void setInk(QWidget& label, QRgb ink) {
    QPalette colours = label.palette();
    colours.setColor(QPalette::WindowText, QColor::fromRgb(ink));
    label.setPalette(colours);
}

} // namespace look
