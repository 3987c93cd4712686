#include "look/zoom.h"

#include "look/scale.h"
#include "look/screen_filling.h"
#include "platform/qt/screen_factor.h"

#include <QApplication>
#include <QBackingStore>
#include <QKeyEvent>
#include <QScreen>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace look {

namespace {

/// What a wheel reports for one notch.
constexpr int kWheelNotch = 120;

struct PlacedWindow {
    QWidget* window;
    QSize size;
    QPoint place; ///< of its frame
};

std::vector<PlacedWindow> visibleWindows() {
    std::vector<PlacedWindow> windows;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* window : all)
        if (window->isVisible() && window->windowHandle())
            windows.push_back({window, window->size(), window->pos()});
    return windows;
}

/// The nearest place with the whole window on the screen, its upper left corner rather than the
/// lower right one.
QRect shiftedInto(const QScreen& screen, QRect window) {
    const QRect room = screen.availableGeometry();
    window.moveRight(std::min(window.right(), room.right()));
    window.moveBottom(std::min(window.bottom(), room.bottom()));
    window.moveLeft(std::max(window.left(), room.left()));
    window.moveTop(std::max(window.top(), room.top()));
    return window;
}

/// The drawing behind a window has so many pixels as the scale was; it is told to look again.
void repaintWhole(QWidget& window) {
    if (QBackingStore* store = window.backingStore())
        store->resize(window.size());
    QEvent changed(QEvent::ScreenChangeInternal);
    QCoreApplication::sendEvent(&window, &changed);
    const auto inner = window.findChildren<QWidget*>();
    for (QWidget* widget : inner)
        if (widget->isVisible())
            widget->update();
    window.update();
}

} // namespace

Zoom::Zoom(double programScale) : programScale_(programScale), scale_(programScale) {
    QCoreApplication::instance()->installEventFilter(this);
}

void Zoom::setWindow(QWidget& main, Hooks hooks) {
    main_ = &main;
    hooks_ = std::move(hooks);
}

/// The screen's own pixels; a screen that the system enlarges by itself counts the enlarged ones.
QSizeF Zoom::screenPixels() const {
    return QSizeF(main_->screen()->size()) * scale_;
}

/// Centred by its contents, a window leaves below it what its title takes above.
double Zoom::largestWithFrame() const {
    const QSize frame = (main_->frameGeometry().size() - main_->size()) * scale_;
    const QSizeF room = QSizeF(main_->screen()->availableSize()) * scale_ -
                        QSizeF(2 * frame.width(), 2 * frame.height());
    return std::clamp(largestScale(room.width(), room.height()), programScale_, kLargestScale);
}

void Zoom::larger() {
    zoomTo(nextLargerScale(scale_,
                           filled_ ? largestScale(screenPixels().width(), screenPixels().height())
                                   : largestWithFrame()));
}

void Zoom::smaller() {
    zoomTo(nextSmallerScale(scale_));
}

void Zoom::reset() {
    zoomTo(programScale_);
}

void Zoom::zoomTo(double scale) {
    if (!main_ || (forGood_ && scale > scale_))
        return;
    setScale(scale);
}

void Zoom::setScale(double scale) {
    QScreen& screen = *main_->screen();
    if (scale == scale_)
        return;
    if (screenScale_ == 0)
        screenScale_ = platform::screenFactor(screen, programScale_);
    const std::vector<PlacedWindow> windows = visibleWindows();
    const QPoint origin = main_->pos();
    platform::setScreenFactor(screen, screenScale_ * scale / programScale_);
    scale_ = scale;
    if (hooks_.changed)
        hooks_.changed(scale_);
    const QRect place = hooks_.place && !filled_ ? hooks_.place() : QRect(QPoint(), main_->size());
    for (const PlacedWindow& each : windows) {
        const bool fills = filled_ && each.window->isFullScreen();
        const QRect placed =
            fills ? screen.geometry()
                  : shiftedInto(screen, QRect(place.topLeft() + each.place - origin, each.size));
        platform::placeInItsPixels(*each.window->windowHandle(), placed.topLeft(), placed.size());
        repaintWhole(*each.window);
    }
}

void Zoom::toggleScreenFilled() {
    if (main_ && !forGood_)
        setFilled(!filled_);
}

void Zoom::fillScreenForGood() {
    setFilled(true);
    forGood_ = true;
}

bool Zoom::leaveFilledScreen() {
    if (!filled_ || forGood_)
        return false;
    setFilled(false);
    return true;
}

void Zoom::setFilled(bool filled) {
    QWidget* active = QApplication::activeWindow();
    if (filled) {
        scaleBeforeFilling_ = scale_;
        const QSizeF screen = screenPixels();
        // In hundredths, downwards: rounding must not cut the last row.
        setScale(std::floor(largestScale(screen.width(), screen.height()) * 100) / 100);
    }
    filled_ = filled;
    if (!filled)
        setScale(scaleBeforeFilling_);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (auto* filling = dynamic_cast<ScreenFilling*>(window);
            filling && (window->isVisible() || window == main_))
            filling->setFillsScreen(filled);
    if (active)
        active->activateWindow();
}

/// The keys reach it before any window, so that they work in all of them. What they do comes after
/// the event that asks for it.
bool Zoom::eventFilter(QObject* watched, QEvent* event) {
    if (!main_ || !watched->isWindowType())
        return false;
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        return handleKey(key.key(), key.modifiers());
    }
    if (event->type() == QEvent::Wheel) {
        const auto& wheel = *static_cast<QWheelEvent*>(event);
        return wheel.modifiers().testFlag(Qt::ControlModifier) &&
               handleWheel(wheel.angleDelta().y());
    }
    return false;
}

bool Zoom::handleKey(int key, Qt::KeyboardModifiers modifiers) {
    if (key == Qt::Key_F11 && modifiers == Qt::NoModifier) {
        later(&Zoom::toggleScreenFilled);
        return true;
    }
    // Shift is held where + stands above another sign, and the keypad has signs of its own.
    modifiers &= ~Qt::KeyboardModifiers(Qt::ShiftModifier | Qt::KeypadModifier);
    if (modifiers != Qt::ControlModifier)
        return false;
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        later(&Zoom::larger);
        return true;
    case Qt::Key_Minus:
        later(&Zoom::smaller);
        return true;
    case Qt::Key_0:
        later(&Zoom::reset);
        return true;
    default:
        return false;
    }
}

/// Touchpads report fractions of a notch.
bool Zoom::handleWheel(int angle) {
    wheelAngle_ += angle;
    for (; wheelAngle_ >= kWheelNotch; wheelAngle_ -= kWheelNotch)
        later(&Zoom::larger);
    for (; wheelAngle_ <= -kWheelNotch; wheelAngle_ += kWheelNotch)
        later(&Zoom::smaller);
    return true;
}

void Zoom::later(void (Zoom::*action)()) {
    QMetaObject::invokeMethod(
        this, [this, action] { (this->*action)(); }, Qt::QueuedConnection);
}

} // namespace look
