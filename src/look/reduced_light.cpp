#include "look/reduced_light.h"

#include "look/keeps_colours.h"
#include "look/light_filter.h"

#include <QApplication>
#include <QGraphicsEffect>
#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

namespace look {

namespace {

/// What keeps its colours in a window, in pixels of the screen.
QRegion keptIn(const QWidget& window) {
    const double ratio = window.devicePixelRatioF();
    QRegion all;
    for (const QWidget* child : window.findChildren<QWidget*>()) {
        const auto* keeping = dynamic_cast<const KeepsColours*>(child);
        if (!keeping || !child->isVisible())
            continue;
        const QPoint corner = child->mapTo(&window, QPoint());
        for (const QRect& part : keeping->keptArea() & child->visibleRegion()) {
            // To the nearest edges: rows of a region stay side by side, and none takes pixels of
            // the ground along.
            const QRectF placed = part.translated(corner);
            all |= QRect((placed.topLeft() * ratio).toPoint(),
                         (placed.bottomRight() * ratio).toPoint() - QPoint(1, 1));
        }
    }
    return all;
}

/// Over what a window and all in it have painted.
class LightEffect : public QGraphicsEffect {
public:
    explicit LightEffect(QWidget& window) : QGraphicsEffect(&window), window_(window) {}

protected:
    void draw(QPainter* painter) override {
        QPoint corner;
        QImage image = sourcePixmap(Qt::LogicalCoordinates, &corner, NoPad).toImage();
        if (image.hasAlphaChannel() && !window_.testAttribute(Qt::WA_TranslucentBackground))
            image = onGround(image);
        image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                : QImage::Format_RGB32);
        const QPoint shift = (QPointF(corner) * image.devicePixelRatio()).toPoint();
        reduceLight(image, keptIn(window_).translated(-shift));
        painter->drawImage(corner, image);
    }

private:
    /// The window's ground is painted below the effect, and is to be dark as well.
    QImage onGround(const QImage& above) const {
        QImage image(above.size(), QImage::Format_RGB32);
        image.setDevicePixelRatio(above.devicePixelRatio());
        image.fill(window_.palette().color(window_.backgroundRole()));
        QPainter(&image).drawImage(0, 0, above);
        return image;
    }

    const QWidget& window_;
};

void put(QWidget& window, bool on) {
    const bool has = dynamic_cast<LightEffect*>(window.graphicsEffect()) != nullptr;
    if (has != on)
        window.setGraphicsEffect(on ? new LightEffect(window) : nullptr);
}

} // namespace

ReducedLight::ReducedLight() {
    QCoreApplication::instance()->installEventFilter(this);
}

void ReducedLight::setOn(bool on) {
    on_ = on;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        put(*window, on);
}

/// The key reaches it before any window. A window that comes up later is dark from the start.
bool ReducedLight::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && watched->isWindowType()) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.key() != Qt::Key_F12 || key.modifiers() != Qt::NoModifier)
            return false;
        if (!key.isAutoRepeat())
            QMetaObject::invokeMethod(
                this, [this] { setOn(!on_); }, Qt::QueuedConnection);
        return true;
    }
    if (event->type() == QEvent::Show && watched->isWidgetType())
        if (auto& widget = static_cast<QWidget&>(*watched); widget.isWindow())
            put(widget, on_);
    return false;
}

} // namespace look
