#include "look/progress_bar.h"

#include "look/palette.h"

#include <QPainter>

namespace look {

namespace {

constexpr double kRadius = 4;

} // namespace

ProgressBar::ProgressBar(QWidget* parent) : QProgressBar(parent) {
    setTextVisible(false);
}

void ProgressBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(kVideoTrack));
    painter.drawRoundedRect(rect(), kRadius, kRadius);
    const int range = maximum() - minimum();
    const double share = range > 0 ? double(value() - minimum()) / range : 0;
    painter.setBrush(QColor::fromRgb(kBlue));
    painter.setClipRect(QRectF(0, 0, width() * share, height()));
    painter.drawRoundedRect(rect(), kRadius, kRadius);
}

} // namespace look
