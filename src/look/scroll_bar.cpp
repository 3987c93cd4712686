#include "look/scroll_bar.h"

#include "look/palette.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>

namespace look {

namespace {

constexpr double kArrowHeight = 16;
constexpr double kArrowPx = 14;
constexpr double kThumbWidth = 8;
constexpr double kShortestThumb = 24;
constexpr double kRadius = 4;

// While the button is held on an arrow or the track.
constexpr int kFirstRepeatMs = 400;
constexpr int kNextRepeatMs = 50;

} // namespace

ScrollBar::ScrollBar(QWidget* parent, Top top) : QScrollBar(Qt::Vertical, parent), top_(top) {
    setFocusPolicy(Qt::NoFocus);
}

QRectF ScrollBar::track() const {
    return {(width() - kThumbWidth) / 2, kArrowHeight, kThumbWidth, height() - 2 * kArrowHeight};
}

int ScrollBar::distanceFromTop() const {
    return top_ == Top::Maximum ? maximum() - value() : value() - minimum();
}

QRectF ScrollBar::thumb() const {
    const QRectF all = track();
    const double range = maximum() - minimum();
    if (range <= 0)
        return all;
    const double length =
        qBound(kShortestThumb, all.height() * pageStep() / (range + pageStep()), all.height());
    const double top = all.top() + (all.height() - length) * distanceFromTop() / range;
    return {all.left(), top, all.width(), length};
}

int ScrollBar::valueOfThumbAt(double top) const {
    const double room = track().height() - thumb().height();
    if (room <= 0)
        return maximum();
    const double share = qBound(0.0, (top - track().top()) / room, 1.0);
    const double distance = share * (maximum() - minimum());
    return qRound(top_ == Top::Maximum ? maximum() - distance : minimum() + distance);
}

void ScrollBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double arrowX = (width() - kArrowPx) / 2;
    up_.paint(painter, {arrowX, 1, kArrowPx, kArrowPx}, Icon::Style::Coloured);
    down_.paint(painter, {arrowX, height() - kArrowPx - 1, kArrowPx, kArrowPx},
                Icon::Style::Coloured);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(kScrollTrack));
    painter.drawRoundedRect(track(), kRadius, kRadius);
    painter.setBrush(QColor::fromRgb(isSliderDown() ? kMuted : kEdge));
    painter.drawRoundedRect(thumb(), kRadius, kRadius);
}

QAbstractSlider::SliderAction ScrollBar::actionAt(double y) const {
    const bool toMaximum = (y < thumb().top()) == (top_ == Top::Maximum);
    if (y < kArrowHeight || y >= height() - kArrowHeight)
        return toMaximum ? SliderSingleStepAdd : SliderSingleStepSub;
    if (y >= thumb().top() && y < thumb().bottom())
        return SliderNoAction;
    return toMaximum ? SliderPageStepAdd : SliderPageStepSub;
}

void ScrollBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    pressedAt_ = event->position().y();
    repeated_ = actionAt(pressedAt_);
    if (repeated_ == SliderNoAction) {
        grip_ = pressedAt_ - thumb().top();
        setSliderDown(true);
        update();
        return;
    }
    triggerAction(repeated_);
    repeat_.start(kFirstRepeatMs, this);
}

void ScrollBar::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        setSliderPosition(valueOfThumbAt(event->position().y() - grip_));
}

void ScrollBar::mouseReleaseEvent(QMouseEvent*) {
    repeat_.stop();
    repeated_ = SliderNoAction;
    setSliderDown(false);
    update();
}

void ScrollBar::timerEvent(QTimerEvent* event) {
    if (event->timerId() != repeat_.timerId()) {
        QScrollBar::timerEvent(event);
        return;
    }
    // The thumb stops once it has come under the pointer.
    if (actionAt(pressedAt_) != repeated_) {
        repeat_.stop();
        return;
    }
    triggerAction(repeated_);
    repeat_.start(kNextRepeatMs, this);
}

void ScrollBar::wheelEvent(QWheelEvent* event) {
    if (top_ == Top::Minimum)
        QScrollBar::wheelEvent(event); // the list or text hands it on
    else
        event->ignore(); // the window scrolls, wherever the pointer is
}

void ScrollBar::contextMenuEvent(QContextMenuEvent* event) {
    event->ignore(); // Qt's own menu is not in French
}

} // namespace look
